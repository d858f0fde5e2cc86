#ifndef DXMD_RESOURCES_VOCABULARY_H
#define DXMD_RESOURCES_VOCABULARY_H

#include <trn/I18NString.h>

#include <dxmd/resources/dxmd_actionhelper_resources.h>

// Names for the entries of the vocabulary, for the sources of the helpers. Nothing here runs code at load.

namespace dxmd {

/// An entry of the vocabulary, usable wherever a text is.
class VocabularyEntry {
 public:
  constexpr explicit VocabularyEntry(long index) noexcept : m_index(index) {}

  const I18NString& text() const { return dxmd_actionhelper_resources::getString(m_index); }
  operator const I18NString&() const { return text(); }  // NOLINT: stands for its text

 private:
  long m_index;
};

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

}  // namespace dxmd

// Each entry goes by two names: the long one, which assertion messages spell out, and STR_ with the XML name.
#define DXMD_ENTRY(index, identifier, text)                                                     \
  inline constexpr dxmd::VocabularyEntry dxmd_actionhelper_resources_##identifier##_str{index}; \
  inline constexpr dxmd::VocabularyEntry STR_##identifier{index};
#include <dxmd/resources/vocabulary.def>
#undef DXMD_ENTRY

#endif
