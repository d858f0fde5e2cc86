#ifndef TOOLS_DXMD_SHAPE_SHAPE_H
#define TOOLS_DXMD_SHAPE_SHAPE_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <trn/I18NLocale.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <tools/dxmd/json/EnumTable.h>
#include <tools/dxmd/json/JsonFwd.h>
#include <tools/dxmd/json/JsonReader.h>
#include <tools/dxmd/shape/Description.h>

// The JSON of a record, said once: a function `shape` beside the record lists its keys, and whoever reads, writes or
// describes the JSON runs it.
//
//   struct Notice {
//     I18NString text;
//     Urgency urgency{};
//   };
//   void shape(Shape& s, Notice& notice) {
//     s.required("text", notice.text, "What the users of the model are told");
//     s.optional("urgency", notice.urgency, "How soon they should act", kUrgencies);
//   }
//
// A member is a text (I18NString), a bool, an integer, an enumerator (with its table), a locale
// (std::optional<I18NLocale>), XML (TRNIDOM_Element), a record, or a std::vector or std::optional of one of these.
// std::map<I18NString, I18NString> is an object of texts under any keys. What has no std::optional around it does not
// tell an absent key from an empty value, from false, 0 or the enumerator 0.
//
// A shape stands in the namespace of its record, where the compiler looks for it. For a type of the library it stands
// in `dxmd_tool` itself, as a static function, not in a namespace without a name.
//
// Behind the meaning stand, in any order, the table of an enumeration and the facts below. A shape may not depend on
// the values in its record except through `choice`.

namespace dxmd_tool {

/// A fact about a key, which stands behind its meaning.
struct KeyFact {
  enum What {
    kNone,
    kNonEmpty,
    kNonEmptyItems,
    kNullableItems,
    kSecret,
    kAsKind,
    kElementNames,
    kLines,
    kByHand,
    kChoice,
    kLoss
  };

  What what = kNone;
  Loss::How how = Loss::kNever;
  const char* text = "";
  const char* key = "";
};

/// An empty text or list is refused, for that reason.
constexpr KeyFact nonEmpty(const char* reason = "must not be empty") {
  return {KeyFact::kNonEmpty, Loss::kNever, reason};
}
/// An empty text in a list of texts is refused.
constexpr KeyFact nonEmptyItems() {
  return {KeyFact::kNonEmptyItems};
}
/// A text in a list of texts may be null.
constexpr KeyFact nullableItems() {
  return {KeyFact::kNullableItems};
}
/// The value is a secret, though its name does not tell.
constexpr KeyFact secret() {
  return {KeyFact::kSecret};
}
/// The value is the JSON of that kind.
constexpr KeyFact asKind(const char* kind) {
  return {KeyFact::kAsKind, Loss::kNever, kind};
}
/// The keys of an object of texts are names of elements.
constexpr KeyFact elementNames() {
  return {KeyFact::kElementNames};
}
/// A text of lines, each of which a line feed ends, the last one too.
constexpr KeyFact lines() {
  return {KeyFact::kLines};
}

// What of the value is not there again, and why, when what was encoded is decoded (see `Loss`). Help shows it, and the
// test over all kinds goes by it.

constexpr KeyFact neverReturns(const char* why) {
  return {KeyFact::kLoss, Loss::kNever, why, ""};
}
constexpr KeyFact absentIsLost(const char* why) {
  return {KeyFact::kLoss, Loss::kAbsent, why, ""};
}
constexpr KeyFact emptyIsLost(const char* why) {
  return {KeyFact::kLoss, Loss::kEmpty, why, ""};
}
constexpr KeyFact repeatedIsLost(const char* why, const char* key = "") {
  return {KeyFact::kLoss, Loss::kRepeated, why, key};
}
constexpr KeyFact choiceIsLost(const char* why, const char* choice) {
  return {KeyFact::kLoss, Loss::kChoice, why, choice};
}
constexpr KeyFact orderIsLost(const char* why, const char* key = "") {
  return {KeyFact::kLoss, Loss::kOrder, why, key};
}

/// A key and what there is to say of it beside its type.
struct KeyFacts {
  enum Presence { kRequired, kOptional, kShown };

  std::string_view name;
  const char* meaning;
  Presence presence;
  const KeyFact* facts;
  std::size_t count;

  const KeyFact* begin() const { return facts; }
  const KeyFact* end() const { return facts + count; }
  /// The fact, or null.
  const KeyFact* find(KeyFact::What what) const {
    for (const KeyFact& fact : *this)
      if (fact.what == what) return &fact;
    return nullptr;
  }
};

/// What an absent key reads as, where that is not the empty value, false, 0 or the enumerator 0.
template <typename T>
struct Otherwise {
  T value;
};
template <typename T>
Otherwise<T> otherwise(T value) {
  return {std::move(value)};
}

class Shape;
class Gatherer;

/// A member of a record, as readers, writers and describers see it.
class Value {
 public:
  virtual ~Value() = default;

  virtual void read(const JsonValue& json) = 0;
  virtual void write(Json& json) const = 0;
  virtual void describe(DescribedType& type, Gatherer& gatherer) const = 0;
  /// What the member is when its key is absent.
  virtual void setAbsent() = 0;
  virtual bool isAbsent() const = 0;
  /// That as JSON; empty when it is no value of the type.
  virtual std::string absentAsJson() const = 0;
};

/// Lists the keys of a record. Each call adds one; the order is that of decoded JSON.
class Shape {
 public:
  Shape() = default;
  Shape(const Shape&) = delete;
  Shape& operator=(const Shape&) = delete;
  virtual ~Shape() = default;

  /// A key that must be there.
  template <typename T, typename... Facts>
  void required(std::string_view name, T& value, const char* meaning, const Facts&... facts) {
    add(KeyFacts::kRequired, name, value, meaning, facts...);
  }

  /// A key that may be absent, and is not written when its value is what an absent one reads as.
  template <typename T, typename... Facts>
  void optional(std::string_view name, T& value, const char* meaning, const Facts&... facts) {
    add(KeyFacts::kOptional, name, value, meaning, facts...);
  }

  /// A key that may be absent, but is always written.
  template <typename T, typename... Facts>
  void shown(std::string_view name, T& value, const char* meaning, const Facts&... facts) {
    add(KeyFacts::kShown, name, value, meaning, facts...);
  }

  /// A key as `shown` adds it, of that type, which the kind reads and writes by hand because it may be large.
  template <typename T, typename... Facts>
  void byHand(std::string_view name, const char* meaning, const Facts&... facts) {
    T none{};
    add(KeyFacts::kShown, name, none, meaning, facts..., KeyFact{KeyFact::kByHand});
  }

  /// A required key whose value tells which others there are: `keysOf(value)` adds those that go with it.
  template <typename Enum>
  void choice(std::string_view name, Enum& value, const char* meaning, const EnumTable<Enum>& table,
              const std::function<void(Enum)>& keysOf) {
    required(name, value, meaning, table, KeyFact{KeyFact::kChoice});
    if (!gathers()) return keysOf(value);
    for (const Enum each : table.values()) {
      beginCase(name, table.text(each).toUtf8());
      keysOf(each);
    }
    beginCase(name, "");
  }

  /// At most one of these keys may be there. Stands before them, so that it is told before what is wrong inside one.
  void exclusive(std::initializer_list<const char*> keys) { rule(DescribedRule::kExclusive, keys); }

  /// Exactly one of these keys must be there. Stands before them; each is `optional`.
  void oneOf(std::initializer_list<const char*> keys) { rule(DescribedRule::kOneOf, keys); }

  /// Unless the list is empty, the boolean must be true. Stands before both.
  void needsTrue(const char* list, const char* boolean) { rule(DescribedRule::kNeedsTrue, {list, boolean}); }

 protected:
  virtual void member(const KeyFacts& key, Value& value) = 0;
  virtual void rule(DescribedRule::Of of, const std::vector<std::string>& keys) = 0;
  virtual bool gathers() const { return false; }
  virtual void beginCase(std::string_view, const std::string&) {}

 private:
  void rule(DescribedRule::Of of, std::initializer_list<const char*> keys) {
    rule(of, std::vector<std::string>(keys.begin(), keys.end()));
  }

  template <typename T, typename... Facts>
  void add(KeyFacts::Presence presence, std::string_view name, T& value, const char* meaning, const Facts&... facts);
};

/// Describes records. A record that is met again is described once.
class Gatherer {
 public:
  const DescribedRecord* record(const void* identity, const std::function<void(Shape&)>& run);

  Description take() { return std::move(m_description); }

 private:
  Description m_description;
  std::map<const void*, const DescribedRecord*> m_known;
};

// Reads and writes the record on which `run` runs its shape.
void runReader(JsonObject& json, const std::function<void(Shape&)>& run);
void runWriter(Json& json, const std::function<void(Shape&)>& run);
bool writesNothing(const std::function<void(Shape&)>& run);

/// Reads a record.
/// @throws JsonError
template <typename Record>
void readRecord(JsonObject& json, Record& record) {
  runReader(json, [&](Shape& s) { shape(s, record); });
}

/// Writes a record, which a shape does not change, into an object.
template <typename Record>
void writeRecord(Json& json, const Record& record) {
  runWriter(json, [&](Shape& s) { shape(s, const_cast<Record&>(record)); });
}

template <typename Record>
const DescribedRecord* describe(Gatherer& gatherer) {
  static const char identity = 0;
  return gatherer.record(&identity, [](Shape& s) {
    Record record{};
    shape(s, record);
  });
}

/// What the JSON of a record looks like.
template <typename Record>
Description describe() {
  Gatherer gatherer;
  describe<Record>(gatherer);
  return gatherer.take();
}

// How each type of member is read, written and described: a codec for each.

namespace codec {

template <typename T>
struct Tag {};

struct Text {
  void read(const JsonValue& json, I18NString& value) const;
  void write(Json& json, const I18NString& value) const;
  bool isEmpty(const I18NString& value) const { return value.empty(); }
  const char* emptyJson() const { return "\"\""; }
  void describe(DescribedType& type, Gatherer&) const { type.of = DescribedType::kText; }
};

struct Boolean {
  void read(const JsonValue& json, bool& value) const;
  void write(Json& json, bool value) const;
  bool isEmpty(bool value) const { return !value; }
  const char* emptyJson() const { return "false"; }
  void describe(DescribedType& type, Gatherer&) const { type.of = DescribedType::kBoolean; }
};

void writeInteger(Json& json, std::int64_t value);

template <typename T>
struct Integer {
  static_assert(sizeof(T) <= sizeof(std::int32_t), "JSON has the numbers that are on the wire, of 32 bits at most");

  void read(const JsonValue& json, T& value) const { value = json.integer<T>(); }
  void write(Json& json, T value) const { writeInteger(json, value); }
  bool isEmpty(T value) const { return value == 0; }
  const char* emptyJson() const { return "0"; }
  void describe(DescribedType& type, Gatherer&) const {
    type.of = DescribedType::kInteger;
    type.least = std::numeric_limits<T>::min();
    type.most = std::numeric_limits<T>::max();
  }
};

struct Xml {
  void read(const JsonValue& json, TRNIDOM_Element& value) const;
  void write(Json& json, const TRNIDOM_Element& value) const;
  bool isEmpty(const TRNIDOM_Element& value) const { return value.isNull(); }
  const char* emptyJson() const { return ""; }
  void describe(DescribedType& type, Gatherer&) const { type.of = DescribedType::kXml; }
};

struct Locale {
  void read(const JsonValue& json, std::optional<I18NLocale>& value) const { value = json.locale(); }
  void write(Json& json, const std::optional<I18NLocale>& value) const { Text().write(json, value->getName()); }
  bool isEmpty(const std::optional<I18NLocale>& value) const { return !value; }
  const char* emptyJson() const { return ""; }
  void describe(DescribedType& type, Gatherer&) const { type.of = DescribedType::kLocale; }
};

struct Texts {
  void read(const JsonValue& json, std::map<I18NString, I18NString>& value) const;
  void write(Json& json, const std::map<I18NString, I18NString>& value) const;
  bool isEmpty(const std::map<I18NString, I18NString>& value) const { return value.empty(); }
  const char* emptyJson() const { return "{}"; }
  void describe(DescribedType& type, Gatherer&) const { type.of = DescribedType::kTexts; }
};

template <typename E>
struct Enumerator {
  const EnumTable<E>& table;

  void read(const JsonValue& json, E& value) const { value = json.enumerator(table); }
  void write(Json& json, E value) const { Text().write(json, table.text(value)); }
  bool isEmpty(E value) const { return value == E{}; }
  const char* emptyJson() const { return ""; }
  void describe(DescribedType& type, Gatherer&) const {
    type.of = DescribedType::kText;
    for (const E each : table.values()) type.choices.push_back(table.text(each).toUtf8());
  }
};

template <typename T>
struct Record {
  void read(const JsonValue& json, T& value) const {
    json.object([&](JsonObject& object) { readRecord(object, value); });
  }
  void write(Json& json, const T& value) const { writeRecord(json, value); }
  bool isEmpty(const T& value) const {
    return writesNothing([&](Shape& s) { shape(s, const_cast<T&>(value)); });
  }
  const char* emptyJson() const { return "{}"; }
  void describe(DescribedType& type, Gatherer& gatherer) const {
    type.of = DescribedType::kRecord;
    type.record = dxmd_tool::describe<T>(gatherer);
  }
};

void startList(Json& json);
Json& appendItem(Json& json);

template <typename T, typename Item>
struct List {
  Item item;

  void read(const JsonValue& json, std::vector<T>& value) const {
    value.clear();
    json.each([&](const JsonValue& each) { item.read(each, value.emplace_back()); });
  }
  void write(Json& json, const std::vector<T>& value) const {
    startList(json);
    for (const T& each : value) item.write(appendItem(json), each);
  }
  bool isEmpty(const std::vector<T>& value) const { return value.empty(); }
  const char* emptyJson() const { return "[]"; }
  void describe(DescribedType& type, Gatherer& gatherer) const {
    auto described = std::make_shared<DescribedType>();
    item.describe(*described, gatherer);
    type.of = DescribedType::kList;
    type.item = std::move(described);
  }
};

template <typename T, typename Present>
struct Optional {
  Present present;

  void read(const JsonValue& json, std::optional<T>& value) const { present.read(json, value.emplace()); }
  void write(Json& json, const std::optional<T>& value) const { present.write(json, *value); }
  bool isEmpty(const std::optional<T>& value) const { return !value; }
  const char* emptyJson() const { return ""; }
  void describe(DescribedType& type, Gatherer& gatherer) const { present.describe(type, gatherer); }
};

// The codec of a type; the pack is the facts, among which is the table of an enumeration.

template <typename... Facts>
Text of(Tag<I18NString>, const Facts&...) {
  return {};
}
template <typename... Facts>
Boolean of(Tag<bool>, const Facts&...) {
  return {};
}
template <typename... Facts>
Xml of(Tag<TRNIDOM_Element>, const Facts&...) {
  return {};
}
template <typename... Facts>
Locale of(Tag<std::optional<I18NLocale>>, const Facts&...) {
  return {};
}
template <typename... Facts>
Texts of(Tag<std::map<I18NString, I18NString>>, const Facts&...) {
  return {};
}

template <typename E, typename Fact, typename... Facts>
const EnumTable<E>& tableAmong(const Fact& fact, const Facts&... facts) {
  if constexpr (std::is_same_v<Fact, EnumTable<E>>)
    return fact;
  else
    return tableAmong<E>(facts...);
}

template <typename T, typename... Facts, typename = std::enable_if_t<!std::is_same_v<T, bool>>>
auto of(Tag<T>, const Facts&... facts) {
  if constexpr ((std::is_same_v<Facts, EnumTable<T>> || ...))
    return Enumerator<T>{tableAmong<T>(facts...)};
  else if constexpr (std::is_integral_v<T>)
    return Integer<T>{};
  else
    return Record<T>{};
}

template <typename T, typename... Facts>
auto of(Tag<std::vector<T>>, const Facts&... facts) {
  auto item = of(Tag<T>(), facts...);
  return List<T, decltype(item)>{item};
}
template <typename T, typename... Facts>
auto of(Tag<std::optional<T>>, const Facts&... facts) {
  auto present = of(Tag<T>(), facts...);
  return Optional<T, decltype(present)>{present};
}

std::string toJsonText(const std::function<void(Json&)>& write);

/// Whether there is a value: JSON has no text for an optional one that is not there.
template <typename T>
bool isWritable(const T&) {
  return true;
}
template <typename T>
bool isWritable(const std::optional<T>& value) {
  return value.has_value();
}

/// A member of type T, its codec, and what an absent one reads as.
template <typename T, typename Codec>
class Bound final : public Value {
 public:
  Bound(T& value, const Codec& codec) : m_value(value), m_codec(codec) {}

  void read(const JsonValue& json) override { m_codec.read(json, m_value); }
  void write(Json& json) const override { m_codec.write(json, m_value); }
  void describe(DescribedType& type, Gatherer& gatherer) const override { m_codec.describe(type, gatherer); }
  void setAbsent() override { m_value = T{}; }
  bool isAbsent() const override { return m_codec.isEmpty(m_value); }
  std::string absentAsJson() const override { return m_codec.emptyJson(); }

 private:
  T& m_value;
  Codec m_codec;
};

template <typename T, typename Codec>
class BoundOtherwise final : public Value {
 public:
  BoundOtherwise(T& value, const Codec& codec, T otherwise)
      : m_value(value), m_codec(codec), m_otherwise(std::move(otherwise)) {}

  void read(const JsonValue& json) override { m_codec.read(json, m_value); }
  void write(Json& json) const override { m_codec.write(json, m_value); }
  void describe(DescribedType& type, Gatherer& gatherer) const override { m_codec.describe(type, gatherer); }
  void setAbsent() override { m_value = m_otherwise; }
  bool isAbsent() const override { return m_value == m_otherwise || !isWritable(m_value); }
  std::string absentAsJson() const override {
    return toJsonText([this](Json& json) { m_codec.write(json, m_otherwise); });
  }

 private:
  T& m_value;
  Codec m_codec;
  T m_otherwise;
};

template <typename Fact>
inline constexpr bool isOtherwise = false;
template <typename T>
inline constexpr bool isOtherwise<Otherwise<T>> = true;

template <typename Fact, typename... Facts>
const auto& otherwiseAmong(const Fact& fact, const Facts&... facts) {
  if constexpr (isOtherwise<Fact>)
    return fact.value;
  else
    return otherwiseAmong(facts...);
}

template <typename Fact>
constexpr KeyFact factOf(const Fact&) {
  return {};
}
constexpr KeyFact factOf(const KeyFact& fact) {
  return fact;
}

}  // namespace codec

template <typename T, typename... Facts>
void Shape::add(KeyFacts::Presence presence, std::string_view name, T& value, const char* meaning,
                const Facts&... facts) {
  const KeyFact list[] = {codec::factOf(facts)..., KeyFact()};
  const KeyFacts key{name, meaning, presence, list, sizeof...(facts)};
  auto valueCodec = codec::of(codec::Tag<T>(), facts...);
  using Codec = decltype(valueCodec);
  if constexpr ((codec::isOtherwise<Facts> || ...)) {
    codec::BoundOtherwise<T, Codec> bound(value, valueCodec, T(codec::otherwiseAmong(facts...)));
    member(key, bound);
  } else {
    codec::Bound<T, Codec> bound(value, valueCodec);
    member(key, bound);
  }
}

}  // namespace dxmd_tool

#endif
