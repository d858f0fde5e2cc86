#ifndef DXMD_CORE_ENUMTEXTS_H
#define DXMD_CORE_ENUMTEXTS_H

#include <array>
#include <cstddef>
#include <utility>

#include <trn/I18NString.h>

#include <dxmd/resources/Vocabulary.h>

namespace dxmd {

/// A fixed text: an entry of the vocabulary, or a static constant of a helper's source. Constant-initialised, so that
/// tables of them run no code at load.
class FixedText {
 public:
  constexpr FixedText(VocabularyEntry entry) noexcept : m_entry(entry) {}              // NOLINT: implicit by design
  constexpr FixedText(const I18NString& constant) noexcept : m_constant(&constant) {}  // NOLINT: implicit by design
  FixedText(I18NString&&) = delete;

  const I18NString& text() const { return m_constant != nullptr ? *m_constant : m_entry.text(); }

 private:
  VocabularyEntry m_entry{0};
  const I18NString* m_constant = nullptr;
};

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

  /// Whether the value has a text.
  bool has(Enum value) const {
    for (const Row& row : m_rows)
      if (row.value == value) return true;
    return false;
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
