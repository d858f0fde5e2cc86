#include "text/Quote.h"

#include <array>
#include <cstdint>

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include "text/Utf8.h"

namespace trnidom_detail {

namespace {

/// Whether a character shows as itself and neither ends the quotation, nor breaks the line, nor changes its direction.
bool showsAsItself(UChar32 character) noexcept {
  constexpr std::uint32_t kBreaksLines = U_GC_ZL_MASK | U_GC_ZP_MASK;
  return character != '"' && character != '\\' && u_isprint(character) != 0 &&
         (U_GET_GC_MASK(character) & kBreaksLines) == 0;
}

void appendEscape(std::string& text, UChar32 character) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  text += "\\u{";
  int shift = 20;
  while (shift > 0 && character >> shift == 0) shift -= 4;
  for (; shift >= 0; shift -= 4) text += kDigits[character >> shift & 0xF];
  text += '}';
}

void appendCharacter(std::string& text, UChar32 character) {
  std::array<char, 4> bytes{};
  const char* const end = putUtf8(static_cast<char32_t>(character), bytes.data());
  text.append(bytes.data(), static_cast<std::size_t>(end - bytes.data()));
}

}  // namespace

std::string quotedName(std::string_view utf8, std::size_t limit) {
  constexpr UChar32 kReplacement = 0xFFFD;
  constexpr UChar32 kEllipsis = 0x2026;
  std::string text = "\"";
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(utf8.data());
  std::size_t at = 0;
  for (std::size_t count = 0; at < utf8.size() && count < limit; ++count) {
    UChar32 character = 0;
    U8_NEXT(bytes, at, utf8.size(), character);
    if (character < 0) character = kReplacement;
    if (showsAsItself(character))
      appendCharacter(text, character);
    else
      appendEscape(text, character);
  }
  if (at < utf8.size()) appendCharacter(text, kEllipsis);
  text += '"';
  return text;
}

}  // namespace trnidom_detail
