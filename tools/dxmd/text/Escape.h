#ifndef TOOLS_DXMD_TEXT_ESCAPE_H
#define TOOLS_DXMD_TEXT_ESCAPE_H

#include <cstddef>
#include <string>
#include <string_view>

namespace dxmd_tool {

constexpr char32_t kMalformed = 0xFFFFFFFF;

/// The character at `at` in UTF-8, and moves behind it; `kMalformed` for a byte that belongs to none.
char32_t nextCharacter(std::string_view text, std::size_t& at);

/// Whether a terminal may do something else with the character than to show it: C0 and C1 controls, DEL, controls of
/// bidirectional text, and separators of lines and paragraphs.
bool isControl(char32_t character);

/// The text on one line, with such characters as escapes: `\n`, `\x1B`, `\u202E`.
std::string escaped(std::string_view text);

/// The same for a text of several lines: line feeds and tabs stay, and carriage returns before line feeds.
std::string escapedLines(std::string_view text);

/// What is wrong with the first character that XML does not have, as in "U+0001 is no character of XML"; else empty.
std::string refusedByXml(std::string_view text);

/// Writes a string of JSON, in quotes. Controls are escaped there too; malformed bytes become U+FFFD.
void appendJsonString(std::string& json, std::string_view text);

}  // namespace dxmd_tool

#endif
