#ifndef TOOLS_DXMD_JSON_ENUMTABLE_H
#define TOOLS_DXMD_JSON_ENUMTABLE_H

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include <trn/I18NString.h>

#include <tools/dxmd/json/Quote.h>

namespace dxmd_tool {

/// The texts of an enumeration, which in JSON are those of the XML.
///
/// The enumerators are found by asking the library's own conversion, when they are first needed: one that the library
/// gains is known without a change here.
template <typename Enum>
class EnumTable {
 public:
  /// The enumerators that the conversion tells from a value outside the enumeration, as in
  ///   const EnumTable<QFQueryDataItem::ESort> kSorts{&QFQueryDataItem::ToString};
  /// @param otherwise  the enumerator, if there is one, whose text a value outside the enumeration gets too.
  explicit EnumTable(const I18NString& (*toString)(Enum), std::optional<Enum> otherwise = std::nullopt)
      : m_toString(toString), m_otherwise(otherwise) {}
  explicit EnumTable(I18NString (*toString)(Enum), std::optional<Enum> otherwise = std::nullopt)
      : m_toString(toString), m_otherwise(otherwise) {}
  explicit EnumTable(I18NString (*toString)(const Enum&), std::optional<Enum> otherwise = std::nullopt)
      : m_toString(toString), m_otherwise(otherwise) {}

  /// Enumerators from the first on, by the texts given, where the library has no conversion to offer.
  EnumTable(Enum first, std::initializer_list<const char*> texts)
      : m_toString([first, all = std::vector<const char*>(texts)](Enum value) {
          return I18NString(all[static_cast<std::size_t>(value - first)]);
        }) {
    for (std::size_t i = 0; i < texts.size(); ++i)
      m_values.push_back(static_cast<Enum>(static_cast<int>(first) + static_cast<int>(i)));
  }

  /// In order of their numbers.
  const std::vector<Enum>& values() const {
    std::call_once(m_once, [this] {
      if (m_values.empty()) find();
    });
    return m_values;
  }

  /// The enumerator's text; empty for a value outside the table, such as the unset one.
  I18NString text(Enum value) const {
    for (const Enum known : values())
      if (known == value) return m_toString(value);
    return I18NString();
  }

  /// The enumerator of that text.
  std::optional<Enum> value(const I18NString& text) const {
    for (const Enum known : values())
      if (m_toString(known) == text) return known;
    return std::nullopt;
  }

  /// The texts for an error: `"none", "ascending"`.
  std::string quotedTexts() const {
    std::string texts;
    for (const Enum known : values()) texts += (texts.empty() ? "" : ", ") + inQuotes(m_toString(known).toUtf8());
    return texts;
  }

 private:
  /// The library's enumerations are of type int and count from 0 or 1.
  void find() const {
    constexpr int kMost = 255;
    const I18NString none = m_toString(static_cast<Enum>(-1));
    for (int number = 0; number <= kMost; ++number)
      if (const auto value = static_cast<Enum>(number); m_otherwise == value || m_toString(value) != none)
        m_values.push_back(value);
  }

  std::function<I18NString(Enum)> m_toString;
  std::optional<Enum> m_otherwise;
  mutable std::once_flag m_once;
  mutable std::vector<Enum> m_values;
};

}  // namespace dxmd_tool

#endif
