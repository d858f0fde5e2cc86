#include "text/Utf8.h"

#include <cstdint>
#include <cstring>

namespace trnidom_detail {

char16_t* utf16Of(std::string_view utf8, char16_t* out) noexcept {
  const auto* at = reinterpret_cast<const unsigned char*>(utf8.data());
  const auto* const end = at + utf8.size();
  constexpr std::ptrdiff_t kBlock = 8;
  while (at != end) {
    // ASCII by blocks; the inner loop is one the compiler turns into vector instructions.
    while (end - at >= kBlock) {
      std::uint64_t bytes;
      std::memcpy(&bytes, at, sizeof bytes);
      if ((bytes & 0x8080808080808080) != 0) break;
      for (std::ptrdiff_t i = 0; i < kBlock; ++i) out[i] = at[i];
      at += kBlock;
      out += kBlock;
    }
    for (std::ptrdiff_t i = 0; i < kBlock && at != end; ++i) {
      const unsigned lead = *at;
      const auto rest = [at](std::ptrdiff_t index) { return at[index] & 0x3FU; };
      if (lead < 0x80) {
        *out++ = static_cast<char16_t>(lead);
        ++at;
      } else if (lead < 0xE0) {
        *out++ = static_cast<char16_t>((lead & 0x1F) << 6 | rest(1));
        at += 2;
      } else if (lead < 0xF0) {
        *out++ = static_cast<char16_t>((lead & 0x0F) << 12 | rest(1) << 6 | rest(2));
        at += 3;
      } else {
        const unsigned character = ((lead & 0x07) << 18 | rest(1) << 12 | rest(2) << 6 | rest(3)) - 0x10000;
        *out++ = static_cast<char16_t>(0xD800 + (character >> 10));
        *out++ = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
        at += 4;
      }
    }
  }
  return out;
}

std::size_t utf8Length(Text text) noexcept {
  std::size_t length = 0;
  const char16_t* at = text.data();
  const char16_t* const end = at + text.size();
  while (at != end) {
    const char32_t character = nextCharacter(at, end);
    length += character < 0x80 ? 1 : character < 0x800 ? 2 : character < 0x10000 ? 3 : 4;
  }
  return length;
}

}  // namespace trnidom_detail
