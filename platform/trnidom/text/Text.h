#ifndef TRNIDOM_TEXT_TEXT_H
#define TRNIDOM_TEXT_TEXT_H

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

/// Whether the text has the character U+0000.
bool hasNul(Text text) noexcept;

}  // namespace trnidom_detail

#endif
