#ifndef TOOLS_DXMD_JSON_JSONREADER_H
#define TOOLS_DXMD_JSON_JSONREADER_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <trn/I18NLocale.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <tools/dxmd/json/EnumTable.h>
#include <tools/dxmd/json/JsonFwd.h>
#include <tools/dxmd/json/JsonPlace.h>
#include <tools/dxmd/json/Quote.h>

// Strict reading of JSON: a mapping function asks for what it knows, and whatever it did not ask for is refused.
//
// Every refusal is a JsonError that names the source and the place, such as
//   request.json: $.queries[2].dataItems[0].sort: "up" is none of "none", "ascending", "descending"
// and never shows a value that may be a secret.
//
// A value that was optional and is not there reads as empty, false, 0, no list: readers need no check.

namespace dxmd_tool {

class JsonObject;

/// One value of the JSON text, or none when it was optional and is absent. Valid as long as what it was asked from.
class JsonValue {
 public:
  JsonValue(const Json* json, const JsonPlace& place) : m_json(json), m_place(place) {}

  /// Whether the value is there.
  explicit operator bool() const { return m_json != nullptr; }

  I18NString text(const I18NString& otherwise = I18NString()) const;
  bool boolean(bool otherwise = false) const;

  /// A whole number that fits the type.
  template <typename Integer>
  Integer integer(Integer otherwise = 0) const {
    return integerWithin<Integer>(std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max(), otherwise);
  }

  /// A whole number from `least` to `most`. On the wire a long has 32 bits.
  template <typename Integer>
  Integer integerWithin(Integer least, Integer most, Integer otherwise = 0) const {
    if (m_json == nullptr) return otherwise;
    if constexpr (std::is_unsigned_v<Integer>)
      return static_cast<Integer>(unsignedWithin(least, most));
    else
      return static_cast<Integer>(signedWithin(least, most));
  }

  /// The enumerator of a text of the table.
  template <typename Enum>
  Enum enumerator(const EnumTable<Enum>& table, Enum otherwise = Enum{}) const {
    if (m_json == nullptr) return otherwise;
    if (const std::optional<Enum> value = table.value(text())) return *value;
    failAmong(table.quotedTexts());
  }

  /// A locale; the helpers take pointers to it and leave it with the caller.
  std::optional<I18NLocale> locale() const;

  /// The root element of a text of XML; null when absent.
  TRNIDOM_Element xml() const;

  /// An object: what `read` did not ask for is refused when it returns.
  void object(const std::function<void(JsonObject&)>& read) const;

  /// The items of a list.
  void each(const std::function<void(const JsonValue&)>& read) const;

  /// The members of an object with keys of the writer's own choice.
  void members(const std::function<void(const I18NString& key, const JsonValue&)>& read) const;

  bool isText() const;
  bool isNull() const;
  bool isList() const;
  /// The number of items or members; 0 for anything else.
  std::size_t size() const;

  /// Refuses the value, for a reason that does not show it.
  [[noreturn]] void fail(const std::string& reason) const;

 private:
  std::int64_t signedWithin(std::int64_t least, std::int64_t most) const;
  std::uint64_t unsignedWithin(std::uint64_t least, std::uint64_t most) const;
  [[noreturn]] void failType(const char* expected) const;
  [[noreturn]] void failAmong(const std::string& texts) const;

  const Json* m_json;
  JsonPlace m_place;
};

/// An object whose members are asked for by key.
class JsonObject {
 public:
  JsonObject(const Json& json, const JsonPlace& place) : m_json(json), m_place(place) {}
  JsonObject(const JsonObject&) = delete;
  JsonObject& operator=(const JsonObject&) = delete;

  /// Whether the member is there; does not ask for it.
  bool has(std::string_view key) const;

  /// The member, which must be there. One that is missing reads as an optional one, and is refused by `finish`.
  JsonValue required(std::string_view key);

  /// The member, or none.
  JsonValue optional(std::string_view key);

  /// Refuses required members that are missing, and members that were not asked for, listing those that were.
  void finish() const;

  /// Whether a required member is missing.
  bool isMissingAny() const { return !m_missing.empty(); }

  /// Refuses the object, for a reason that shows none of its values.
  [[noreturn]] void fail(const std::string& reason) const;

 private:
  const Json& m_json;
  const JsonPlace m_place;
  std::vector<std::string> m_known;
  std::vector<std::string> m_missing;
};

/// Refuses texts and keys with characters that XML does not have.
/// @throws JsonError with the place
void requireXmlCharacters(const Json& json, const std::string& source);

/// Reads a whole text, which must be one object; `source` names it in errors.
void readObject(const Json& json, const std::string& source, const std::function<void(JsonObject&)>& read);

}  // namespace dxmd_tool

#endif
