#include "JsonParser.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include <tools/dxmd/json/JsonError.h>
#include <tools/dxmd/json/JsonPlace.h>
#include <tools/dxmd/json/Quote.h>

namespace dxmd_tool {

namespace {

/// Builds the value, with what the JSON library's own builder lacks: a limit to depth, a check for keys that occur
/// twice, and errors that do not quote the text.
class Builder : public nlohmann::json_sax<Json> {
 public:
  Builder(const std::string& text, const std::string& source) : m_text(text), m_source(source) {}

  Json take() { return std::move(m_root); }

  bool null() override { return add(nullptr); }
  bool boolean(bool value) override { return add(value); }
  bool number_integer(number_integer_t value) override { return add(value); }
  bool number_unsigned(number_unsigned_t value) override { return add(value); }
  bool number_float(number_float_t value, const string_t&) override { return add(value); }
  bool string(string_t& value) override { return add(std::move(value)); }
  bool binary(binary_t&) override { return false; }

  bool start_object(std::size_t) override { return open(Json::object()); }
  bool end_object() override { return close(); }
  bool start_array(std::size_t) override { return open(Json::array()); }
  bool end_array() override { return close(); }

  bool key(string_t& key) override {
    if (!m_open.back().keys.insert(key).second)
      throw JsonError(JsonError::kUnfit, m_source + ": " + path() + ": the key " + inQuotes(key) + " occurs twice");
    m_open.back().key = std::move(key);
    return true;
  }

  bool parse_error(std::size_t position, const std::string& lastToken, const Json::exception& error) override {
    // The position is that of the character behind the last one read.
    const std::string why = reason(lastToken, error);
    const bool isControl = why.find("control character") != std::string::npos;
    failAt(position == 0 ? 0 : position - 1, why + (isControl ? " (in " + placeOfNext() + ")" : ""));
  }

  [[noreturn]] void failAt(std::size_t position, const std::string& reason) const {
    const std::string_view before(m_text.data(), std::min(position, m_text.size()));
    const std::size_t lineStart = before.rfind('\n') + 1;
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    const auto column = 1 + std::count_if(before.begin() + static_cast<std::ptrdiff_t>(lineStart), before.end(),
                                          [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
    throw JsonError(JsonError::kMalformed,
                    m_source + ":" + std::to_string(line) + ":" + std::to_string(column) + ": " + reason);
  }

 private:
  struct Open {
    Json* value;
    std::unordered_set<std::string> keys;
    std::string key;
  };

  /// What is wrong, without the text that the library quotes.
  static std::string reason(const std::string& lastToken, const Json::exception& error) {
    if (dynamic_cast<const Json::parse_error*>(&error) == nullptr) return "a number is out of range";
    std::string what = error.what();
    const std::size_t start = what.find("syntax error ");
    const std::string quote = "; last read: '" + lastToken + "'";
    const std::size_t quoteAt = what.find(quote);
    if (start == std::string::npos) return "not JSON";
    if (quoteAt != std::string::npos)
      what.erase(quoteAt, quote.size());
    else if (what.find("; last read") != std::string::npos)
      return "not JSON";
    return "not JSON: " + what.substr(start);
  }

  bool add(Json value) {
    put(std::move(value));
    return true;
  }

  Json* put(Json value) {
    if (m_open.empty()) return &(m_root = std::move(value));
    Open& parent = m_open.back();
    if (parent.value->is_array()) return &parent.value->emplace_back(std::move(value));
    // Keys are known to be distinct here, so that the member need not be searched for.
    auto& members = parent.value->get_ref<Json::object_t&>();
    static_cast<Json::object_t::Container&>(members).emplace_back(parent.key, std::move(value));
    return &members.back().second;
  }

  bool open(Json container) {
    if (m_open.size() == kMaxJsonDepth)
      throw JsonError(JsonError::kUnfit,
                      m_source + ": the JSON nests deeper than " + std::to_string(kMaxJsonDepth) + " levels");
    m_open.push_back({put(std::move(container)), {}, {}});
    return true;
  }

  bool close() {
    m_open.pop_back();
    return true;
  }

  std::string path() const {
    std::string path = "$";
    for (std::size_t i = 0; i + 1 < m_open.size(); ++i) {
      const Open& level = m_open[i];
      if (level.value->is_array())
        JsonPlace::appendStep(path, std::string_view(), level.value->size() - 1);
      else
        JsonPlace::appendStep(path, level.key, 0);
    }
    return path;
  }

  /// The path of the value that comes next, or of the object whose key does.
  std::string placeOfNext() const {
    std::string place = path();
    if (m_open.empty()) return place;
    const Open& last = m_open.back();
    if (last.value->is_array())
      JsonPlace::appendStep(place, std::string_view(), last.value->size());
    else if (!last.key.empty() && last.value->size() < last.keys.size())
      JsonPlace::appendStep(place, last.key, 0);
    return place;
  }

  const std::string& m_text;
  const std::string& m_source;
  Json m_root;
  std::vector<Open> m_open;
};

}  // namespace

Json parseJson(const std::string& text, const std::string& source) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) throw JsonError(JsonError::kMalformed, source + ":1:1: empty where JSON is expected");
  if (text[first] == '<') throw JsonError(JsonError::kMalformed, source + ":1:1: not JSON: this looks like XML");
  Builder builder(text, source);
  // The parser takes it for the end of the input.
  if (const std::size_t nul = text.find('\0'); nul != std::string::npos)
    builder.failAt(nul, "U+0000 is no character of JSON");
  Json::sax_parse(text, &builder);
  return builder.take();
}

}  // namespace dxmd_tool
