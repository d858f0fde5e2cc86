#ifndef TOOLS_DXMD_TEXT_WORDS_H
#define TOOLS_DXMD_TEXT_WORDS_H

#include <string>
#include <string_view>
#include <vector>

namespace dxmd_tool {

/// ASCII letters as small ones.
std::string lowerCase(std::string_view text);

constexpr bool startsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

/// The words with that between them, and before the last one what that needs: "a, b or c".
std::string joined(const std::vector<std::string>& words, std::string_view between, std::string_view last);
inline std::string joined(const std::vector<std::string>& words, std::string_view between = ", ") {
  return joined(words, between, between);
}

}  // namespace dxmd_tool

#endif
