#ifndef TRNIDOM_TEXT_TEXT_H
#define TRNIDOM_TEXT_TEXT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include <trn/I18NString.h>

namespace trnidom_detail {

/// UTF-16 by pointer and length.
using Text = std::u16string_view;

inline Text textOf(const I18NString& string) noexcept {
  return string.view();
}

inline I18NString stringOf(Text text) {
  return I18NString(text);
}

/// Whether two texts of that length are the same, which are mostly short.
inline bool areEqual(const char16_t* left, const char16_t* right, std::size_t length) noexcept {
  constexpr std::size_t kUnits = sizeof(std::uint64_t) / sizeof(char16_t);
  if (length < kUnits) {
    for (std::size_t at = 0; at < length; ++at)
      if (left[at] != right[at]) return false;
    return true;
  }
  // Four code units at a time, and once more the last four.
  const auto same = [left, right](std::size_t at) {
    std::uint64_t first;
    std::uint64_t second;
    std::memcpy(&first, left + at, sizeof first);
    std::memcpy(&second, right + at, sizeof second);
    return first == second;
  };
  for (std::size_t at = 0; at < length - kUnits; at += kUnits)
    if (!same(at)) return false;
  return same(length - kUnits);
}

/// Whether the text has the character U+0000.
bool hasNul(Text text) noexcept;

}  // namespace trnidom_detail

#endif
