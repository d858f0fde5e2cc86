#ifndef TRNIDOM_TEXT_QUOTE_H
#define TRNIDOM_TEXT_QUOTE_H

#include <cstddef>
#include <string>
#include <string_view>

namespace trnidom_detail {

/// A name as messages show it: in double quotes, cut behind `limit` characters with U+2026 in place of the rest. What
/// does not print, U+2028, U+2029, a quote and a backslash are shown as `\u{22}`. The result is valid UTF-8 without a
/// NUL; a malformed sequence in the name becomes U+FFFD.
std::string quotedName(std::string_view utf8, std::size_t limit = 64);

}  // namespace trnidom_detail

#endif
