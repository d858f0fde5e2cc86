#include <algorithm>
#include <cstddef>
#include <istream>
#include <string>
#include <utility>

#include <tools/dxmd/Detect.h>
#include <tools/dxmd/Input.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonParser.h>
#include <tools/dxmd/json/JsonPlace.h>
#include <tools/dxmd/json/JsonWriter.h>

namespace dxmd_tool {

namespace {

/// A message as JSON. Both have the same keys and as many items.
struct Side {
  std::string kind;
  Json json;    ///< with secrets, which may differ
  Json masked;  ///< what is shown
};

/// A value in both forms.
struct Value {
  const Json* json = nullptr;
  const Json* masked = nullptr;

  Value operator[](const std::string& key) const {
    const auto found = json->find(key);
    return found == json->end() ? Value{} : Value{&*found, &masked->at(key)};
  }
  Value operator[](std::size_t index) const { return {&(*json)[index], &(*masked)[index]}; }
};

/// The message decoded as that kind. Errors that it reports are no reason not to compare it.
std::string decoded(const Kind& kind, const Settings& settings, const Input& input) {
  StringOutput out;
  try {
    decode(kind, settings, input, out);
  } catch (const ToolError& error) {
    if (error.status() != kStatusReported) throw;
    std::string text = out.take();
    if (text.empty()) throw;
    return text;
  }
  return out.take();
}

Side sideOf(const Kind* asked, const Settings& settings, const std::string& file, std::istream& in) {
  const Input input = inputOf(file, in, settings.onRead);
  const std::string bytes = readSource(input.source);
  const auto again = [&] {
    return Input{input.name, [&bytes, given = std::size_t{0}](char* buffer, std::size_t size) mutable {
                   const std::size_t count = bytes.copy(buffer, size, given);
                   given += count;
                   return count;
                 }};
  };
  const Input whole = again();
  const Kind& kind = asked != nullptr ? *asked : kindIn(whole, settings.exact);
  // Read twice, since a large message is printed as it is read.
  const auto decodedWith = [&](bool showSecrets) {
    Settings ofSide = settings;
    ofSide.showSecrets = showSecrets;
    return parseJson(decoded(kind, ofSide, again()), input.name);
  };
  return {kind.name, decodedWith(true), decodedWith(false)};
}

/// Writes the places in which two values differ.
class Differences {
 public:
  explicit Differences(Output& out) : m_out(out) {}

  /// JSON is no deeper than `kMaxJsonDepth`.
  void compare(const Value& left, const Value& right, const std::string& path) {
    if (left.json == nullptr || right.json == nullptr) return tell(left, right, path);
    if (left.json->is_object() && right.json->is_object()) return compareMembers(left, right, path);
    if (left.json->is_array() && right.json->is_array()) return compareItems(left, right, path);
    if (*left.json != *right.json) tell(left, right, path);
  }

  bool hasAny() const { return m_hasAny; }

  void tell(const Value& left, const Value& right, const std::string& path) {
    m_hasAny = true;
    for (const auto& [mark, side] : {std::pair("- ", left), std::pair("+ ", right)})
      if (side.json != nullptr) m_out.write(mark + path + ": " + toText(*side.masked, 0) + "\n");
  }

 private:
  void compareMembers(const Value& left, const Value& right, const std::string& path) {
    const auto below = [&](const std::string& key) {
      std::string place = path;
      JsonPlace::appendStep(place, key, 0);
      return place;
    };
    for (const auto& member : left.json->get_ref<const Json::object_t&>())
      compare(left[member.first], right[member.first], below(member.first));
    for (const auto& member : right.json->get_ref<const Json::object_t&>())
      if (!left.json->contains(member.first)) tell({}, right[member.first], below(member.first));
  }

  /// Items that are the same at the start and at the end are paired, and those between them in their order.
  void compareItems(const Value& left, const Value& right, const std::string& path) {
    const std::size_t lefts = left.json->size();
    const std::size_t rights = right.json->size();
    const std::size_t least = std::min(lefts, rights);
    std::size_t first = 0;
    while (first < least && (*left.json)[first] == (*right.json)[first]) ++first;
    std::size_t last = 0;
    while (last < least - first && (*left.json)[lefts - 1 - last] == (*right.json)[rights - 1 - last]) ++last;
    for (std::size_t i = first; i < std::max(lefts, rights) - last; ++i)
      compare(i < lefts - last ? left[i] : Value{}, i < rights - last ? right[i] : Value{},
              path + "[" + std::to_string(i) + "]");
  }

  Output& m_out;
  bool m_hasAny = false;
};

}  // namespace

bool diff(const Kind* kind, const Settings& settings, const std::string& left, const std::string& right,
          std::istream& in, Output& out) {
  const Side leftSide = sideOf(kind, settings, left, in);
  const Side rightSide = sideOf(kind, settings, right, in);
  Differences differences(out);
  if (leftSide.kind != rightSide.kind) {
    const Json leftKind = leftSide.kind;
    const Json rightKind = rightSide.kind;
    differences.tell({&leftKind, &leftKind}, {&rightKind, &rightKind}, "kind");
  } else {
    differences.compare({&leftSide.json, &leftSide.masked}, {&rightSide.json, &rightSide.masked}, "$");
  }
  return !differences.hasAny();
}

}  // namespace dxmd_tool
