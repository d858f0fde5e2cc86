#ifndef TRNIDOM_TEXT_UTF8_H
#define TRNIDOM_TEXT_UTF8_H

#include <cstddef>
#include <string_view>

#include "text/Text.h"

namespace trnidom_detail {

/// Writes the UTF-16 of valid UTF-8 to `out`, which has room for as many code units as there are bytes. Gives the place
/// behind what was written.
char16_t* utf16Of(std::string_view utf8, char16_t* out) noexcept;

/// The number of bytes that the text takes in UTF-8, of which a lone surrogate is three.
std::size_t utf8Length(Text text) noexcept;

/// Writes a character as UTF-8, at most four bytes. Gives the place behind it.
inline char* putUtf8(char32_t character, char* out) noexcept {
  const auto put = [&out](char32_t byte) { *out++ = static_cast<char>(static_cast<unsigned char>(byte)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | character >> 6);
    put(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    put(0xE0 | character >> 12);
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  } else {
    put(0xF0 | character >> 18);
    put(0x80 | (character >> 12 & 0x3F));
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  }
  return out;
}

inline bool isLeadSurrogate(char16_t unit) noexcept {
  return unit >= 0xD800 && unit < 0xDC00;
}

inline bool isTrailSurrogate(char16_t unit) noexcept {
  return unit >= 0xDC00 && unit < 0xE000;
}

/// The character that begins at `at`, which moves behind it; a lone surrogate stands for itself.
inline char32_t nextCharacter(const char16_t*& at, const char16_t* end) noexcept {
  const char16_t unit = *at++;
  if (!isLeadSurrogate(unit) || at == end || !isTrailSurrogate(*at)) return unit;
  return 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (char32_t{*at++} - 0xDC00);
}

}  // namespace trnidom_detail

#endif
