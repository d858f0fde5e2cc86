#ifndef TOOLS_DXMD_JSON_ENUMTABLE_H
#define TOOLS_DXMD_JSON_ENUMTABLE_H

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <vector>

#include <trn/I18NString.h>

namespace dxmd_tool {

/// The texts of an enumeration, which in JSON are those of the XML.
template <typename Enum>
class EnumTable {
 public:
  /// Enumerators from first to last, through the library's own conversion, as in
  ///   const EnumTable<QFQueryDataItem::ESort> kSorts{QFQueryDataItem::kSortNone, QFQueryDataItem::kSortDescending,
  ///                                                  &QFQueryDataItem::ToString};
  EnumTable(Enum first, Enum last, const I18NString& (*toString)(Enum))
      : m_first(first), m_last(last), m_toString(toString) {}
  EnumTable(Enum first, Enum last, I18NString (*toString)(Enum)) : m_first(first), m_last(last), m_toString(toString) {}

  /// Enumerators from the first on, by the texts given, where the library has no conversion to offer.
  EnumTable(Enum first, std::initializer_list<const char*> texts)
      : m_first(first),
        m_last(static_cast<Enum>(static_cast<int>(first) + static_cast<int>(texts.size()) - 1)),
        m_toString([first, all = std::vector<const char*>(texts)](Enum value) {
          return I18NString(all[static_cast<std::size_t>(value - first)]);
        }) {}

  std::vector<Enum> values() const {
    std::vector<Enum> all;
    for (int value = static_cast<int>(m_first); value <= static_cast<int>(m_last); ++value)
      all.push_back(static_cast<Enum>(value));
    return all;
  }

  /// The enumerator's text; empty for a value outside the table, such as the unset one.
  I18NString text(Enum value) const { return value < m_first || m_last < value ? I18NString() : m_toString(value); }

 private:
  Enum m_first;
  Enum m_last;
  std::function<I18NString(Enum)> m_toString;
};

}  // namespace dxmd_tool

#endif
