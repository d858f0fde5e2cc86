#ifndef DXMD_CORE_ENUMTEXTS_H
#define DXMD_CORE_ENUMTEXTS_H

#include <array>
#include <cstddef>
#include <utility>

#include <trn/I18NString.h>

#include <dxmd/resources/Vocabulary.h>

namespace dxmd {

/// The texts of an enumeration, serving both directions. Texts are compared exactly.
template <typename Enum, std::size_t N>
class EnumTexts {
 public:
  struct Row {
    Enum value;
    FixedText text;
  };

  constexpr EnumTexts(const Row (&rows)[N]) : EnumTexts(rows, std::make_index_sequence<N>()) {}  // NOLINT: a table

  /// The enumerator's text, or the given one for a value outside the table.
  const I18NString& text(Enum value, const I18NString& otherwise = STR_unknown) const {
    for (const Row& row : m_rows)
      if (row.value == value) return row.text.text();
    return otherwise;
  }

  /// The text's enumerator, or the given value, by default the unset one, for any other text.
  Enum value(const I18NString& text, Enum otherwise = Enum{}) const {
    for (const Row& row : m_rows)
      if (row.text.text() == text) return row.value;
    return otherwise;
  }

  auto begin() const { return m_rows.begin(); }
  auto end() const { return m_rows.end(); }

 private:
  template <std::size_t... I>
  constexpr EnumTexts(const Row (&rows)[N], std::index_sequence<I...>) : m_rows{{rows[I]...}} {}

  std::array<Row, N> m_rows;
};

}  // namespace dxmd

#endif
