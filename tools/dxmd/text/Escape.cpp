#include "Escape.h"

#include <algorithm>
#include <array>

namespace dxmd_tool {

namespace {

constexpr const char* kHex = "0123456789ABCDEF";

bool isContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Whether the byte stands for itself in any escaping: a printable character of ASCII, but for `"` and `\`.
constexpr std::array<bool, 256> plainBytes() {
  std::array<bool, 256> plain{};
  for (int byte = 0x20; byte < 0x7F; ++byte) plain[static_cast<std::size_t>(byte)] = byte != '"' && byte != '\\';
  return plain;
}
constexpr std::array<bool, 256> kPlain = plainBytes();

std::size_t plainLength(std::string_view text, std::size_t at) {
  const std::size_t start = at;
  while (at < text.size() && kPlain[static_cast<unsigned char>(text[at])]) ++at;
  return at - start;
}

/// `\u202E`; no control lies beyond the first plane.
void appendUnicode(std::string& out, char32_t character) {
  out += "\\u";
  for (const int shift : {12, 8, 4, 0}) out += kHex[character >> shift & 0xF];
}

void appendEscape(std::string& out, char32_t character) {
  if (character == '\n') {
    out += "\\n";
  } else if (character == '\r') {
    out += "\\r";
  } else if (character == '\t') {
    out += "\\t";
  } else if (character < 0x100) {
    out += "\\x";
    out += kHex[character >> 4];
    out += kHex[character & 0xF];
  } else {
    appendUnicode(out, character);
  }
}

std::string escapedBut(std::string_view text, std::string_view kept) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const char32_t character = nextCharacter(text, at);
    if (character == kMalformed)
      appendEscape(out, static_cast<unsigned char>(text[start]));
    else if (isControl(character) &&
             (character > 0x7F || kept.find(static_cast<char>(character)) == std::string_view::npos) &&
             !(character == '\r' && !kept.empty() && at < text.size() && text[at] == '\n'))
      appendEscape(out, character);
    else
      out.append(text, start, at - start);
  }
  return out;
}

}  // namespace

char32_t nextCharacter(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(text[at++]);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || text.size() - at < more) return kMalformed;
  char32_t character = lead & (0x3Fu >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if (!isContinuation(text[at + i])) return kMalformed;
    character = character << 6 | (static_cast<unsigned char>(text[at + i]) & 0x3Fu);
  }
  constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
  if (character < kLeast[more] || character > 0x10FFFF || (0xD800 <= character && character <= 0xDFFF))
    return kMalformed;
  at += more;
  return character;
}

bool isControl(char32_t character) {
  return character < 0x20 || (0x7F <= character && character < 0xA0) || character == 0x061C || character == 0x200E ||
         character == 0x200F || (0x2028 <= character && character <= 0x202E) ||
         (0x2066 <= character && character <= 0x2069);
}

std::string escaped(std::string_view text) {
  return escapedBut(text, "");
}

std::string escapedLines(std::string_view text) {
  return escapedBut(text, "\n\t");
}

std::string refusedByXml(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = nextCharacter(text, at);
    const bool isAllowed = character >= 0x20 ? character != 0xFFFE && character != 0xFFFF
                                             : character == '\t' || character == '\n' || character == '\r';
    if (isAllowed) continue;
    std::string number;
    appendUnicode(number, character);
    return "U+" + number.substr(2) + " is no character of XML";
  }
  return "";
}

void appendJsonString(std::string& json, std::string_view text) {
  json += '"';
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t plain = plainLength(text, at);
    json.append(text, at, plain);
    at += plain;
    if (at == text.size()) break;
    const std::size_t start = at;
    const char32_t character = nextCharacter(text, at);
    if (character == kMalformed) {
      // One for all that would have been a character.
      while (at < text.size() && isContinuation(text[at])) ++at;
      json += "\xEF\xBF\xBD";
    } else if (character == '"' || character == '\\') {
      json += '\\';
      json += static_cast<char>(character);
    } else if (character == '\b') {
      json += "\\b";
    } else if (character == '\f') {
      json += "\\f";
    } else if (character == '\n' || character == '\r' || character == '\t') {
      appendEscape(json, character);
    } else if (isControl(character)) {
      appendUnicode(json, character);
    } else {
      json.append(text, start, at - start);
    }
  }
  json += '"';
}

}  // namespace dxmd_tool
