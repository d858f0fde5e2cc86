#include "JsonReader.h"

#include <algorithm>
#include <memory>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonError.h>
#include <tools/dxmd/text/Escape.h>
#include <tools/dxmd/text/Suggest.h>
#include <tools/dxmd/text/Words.h>

namespace dxmd_tool {

namespace {

I18NString toI18N(std::string_view text) {
  return I18NString(text.data(), nullptr, static_cast<long>(text.size()));
}

const char* kindOf(const Json& json) {
  if (json.is_number_float()) return "a fractional number";
  switch (json.type()) {
    case Json::value_t::object:
      return "an object";
    case Json::value_t::array:
      return "a list";
    case Json::value_t::string:
      return "a text";
    case Json::value_t::boolean:
      return "a boolean";
    case Json::value_t::null:
      return "null";
    default:
      return "a number";
  }
}

}  // namespace

I18NString JsonValue::text(const I18NString& otherwise) const {
  if (m_json == nullptr) return otherwise;
  if (!m_json->is_string()) failType("a text");
  return toI18N(m_json->get_ref<const std::string&>());
}

bool JsonValue::boolean(bool otherwise) const {
  if (m_json == nullptr) return otherwise;
  if (!m_json->is_boolean()) failType("true or false");
  return m_json->get<bool>();
}

std::int64_t JsonValue::signedWithin(std::int64_t least, std::int64_t most) const {
  if (!m_json->is_number_integer()) failType("a whole number");
  // Numbers beyond the signed range are held as unsigned ones.
  const bool tooLarge = m_json->is_number_unsigned() &&
                        m_json->get<std::uint64_t>() > std::uint64_t{std::numeric_limits<std::int64_t>::max()};
  const std::int64_t value = tooLarge ? 0 : m_json->get<std::int64_t>();
  if (tooLarge || value < least || most < value)
    fail("the number is not from " + std::to_string(least) + " to " + std::to_string(most));
  return value;
}

std::uint64_t JsonValue::unsignedWithin(std::uint64_t least, std::uint64_t most) const {
  if (!m_json->is_number_integer()) failType("a whole number");
  const bool negative = !m_json->is_number_unsigned() && m_json->get<std::int64_t>() < 0;
  const std::uint64_t value = negative ? 0 : m_json->get<std::uint64_t>();
  if (negative || value < least || most < value)
    fail("the number is not from " + std::to_string(least) + " to " + std::to_string(most));
  return value;
}

std::optional<I18NLocale> JsonValue::locale() const {
  if (m_json == nullptr) return std::nullopt;
  return I18NLocale(text());
}

TRNIDOM_Element JsonValue::xml() const {
  if (m_json == nullptr) return TRNIDOM_Element();
  if (!m_json->is_string()) failType("a text of XML");
  try {
    return TRNIDOM_Parser::parseString(m_json->get_ref<const std::string&>()).getDocumentElement();
  } catch (const TRNIDOM_ParseError& error) {
    fail("the text is not well-formed XML (line " + std::to_string(error.getLine()) + ", column " +
         std::to_string(error.getColumn()) + ")");
  }
}

void JsonValue::object(const std::function<void(JsonObject&)>& read) const {
  if (m_json == nullptr) return;
  if (!m_json->is_object()) failType("an object");
  JsonObject object(*m_json, m_place);
  try {
    read(object);
  } catch (const std::exception&) {
    // What a reader found wrong may come from reading a missing key as empty.
    if (object.isMissingAny()) object.finish();
    throw;
  }
  object.finish();
}

void JsonValue::each(const std::function<void(const JsonValue&)>& read) const {
  if (m_json == nullptr) return;
  if (!m_json->is_array()) failType("a list");
  std::size_t index = 0;
  for (const Json& item : *m_json) read(JsonValue(&item, JsonPlace{&m_place, std::string_view(), index++}));
}

void JsonValue::members(const std::function<void(const I18NString&, const JsonValue&)>& read) const {
  if (m_json == nullptr) return;
  if (!m_json->is_object()) failType("an object");
  for (const auto& member : m_json->get_ref<const Json::object_t&>())
    read(toI18N(member.first), JsonValue(&member.second, JsonPlace{&m_place, member.first}));
}

void JsonValue::fail(const std::string& reason) const {
  throw JsonError(JsonError::kUnfit, std::string(m_place.source()) + ": " + m_place.path() + ": " + reason);
}

void JsonValue::failType(const char* expected) const {
  fail(std::string("expected ") + expected + ", found " + kindOf(*m_json));
}

void JsonValue::failAmong(const std::string& texts) const {
  fail((m_place.isSecret() ? "the text" : inQuotes(m_json->get_ref<const std::string&>())) + " is none of " + texts);
}

std::size_t JsonValue::size() const {
  return m_json != nullptr && m_json->is_structured() ? m_json->size() : 0;
}

bool JsonValue::isText() const {
  return m_json != nullptr && m_json->is_string();
}

bool JsonValue::isNull() const {
  return m_json != nullptr && m_json->is_null();
}

bool JsonValue::isList() const {
  return m_json != nullptr && m_json->is_array();
}

bool JsonObject::has(std::string_view key) const {
  return m_json.contains(key);
}

JsonValue JsonObject::required(std::string_view key) {
  const JsonValue value = optional(key);
  if (!value) m_missing.emplace_back(key);
  return value;
}

JsonValue JsonObject::optional(std::string_view key) {
  if (std::find(m_known.begin(), m_known.end(), key) == m_known.end()) m_known.emplace_back(key);
  for (const auto& member : m_json.get_ref<const Json::object_t&>())
    if (member.first == key) return JsonValue(&member.second, JsonPlace{&m_place, member.first});
  return JsonValue(nullptr, m_place);
}

void JsonObject::finish() const {
  std::string reason;
  if (!m_missing.empty()) {
    reason = m_missing.size() == 1 ? "the key " : "the keys ";
    for (std::size_t i = 0; i < m_missing.size(); ++i)
      reason += (i == 0 ? "" : i + 1 < m_missing.size() ? ", " : " and ") + inQuotes(m_missing[i]);
    reason += m_missing.size() == 1 ? " is missing" : " are missing";
  }
  std::vector<std::string> unknown;
  for (const auto& member : m_json.get_ref<const Json::object_t&>())
    if (std::find(m_known.begin(), m_known.end(), member.first) == m_known.end()) unknown.push_back(member.first);
  if (!unknown.empty()) {
    // More than some are a whole object of another sort.
    constexpr std::size_t kMost = 5;
    reason += std::string(reason.empty() ? "" : "; ") + (unknown.size() == 1 ? "unknown key " : "unknown keys ");
    for (std::size_t i = 0; i < std::min(unknown.size(), kMost); ++i)
      reason += (i == 0 ? "" : ", ") + inQuotes(unknown[i]);
    if (unknown.size() > kMost) reason += ", ...";
    reason += "; known are ";
    for (const std::string& key : m_known) reason += (&key == &m_known.front() ? "" : ", ") + inQuotes(key);
    for (std::size_t i = 0; i < std::min(unknown.size(), kMost); ++i) reason += didYouMean(unknown[i], m_known);
  }
  if (!reason.empty()) fail(reason);
}

void JsonObject::fail(const std::string& reason) const {
  JsonValue(&m_json, m_place).fail(reason);
}

namespace {

void requireXmlCharacters(std::string_view text, const JsonPlace& place) {
  if (const std::string reason = refusedByXml(text); !reason.empty())
    throw JsonError(JsonError::kUnfit, std::string(place.source()) + ": " + place.path() + ": " + reason);
}

void requireXmlCharacters(const Json& json, const JsonPlace& place) {
  if (json.is_object()) {
    for (const auto& member : json.get_ref<const Json::object_t&>()) {
      const JsonPlace below{&place, member.first};
      requireXmlCharacters(std::string_view(member.first), below);
      requireXmlCharacters(member.second, below);
    }
  } else if (json.is_array()) {
    std::size_t index = 0;
    for (const Json& item : json) requireXmlCharacters(item, JsonPlace{&place, std::string_view(), index++});
  } else if (json.is_string()) {
    requireXmlCharacters(std::string_view(json.get_ref<const std::string&>()), place);
  }
}

}  // namespace

void requireXmlCharacters(const Json& json, const std::string& source) {
  requireXmlCharacters(json, JsonPlace{nullptr, source});
}

void readObject(const Json& json, const std::string& source, const std::function<void(JsonObject&)>& read) {
  JsonValue(&json, JsonPlace{nullptr, source}).object(read);
}

}  // namespace dxmd_tool
