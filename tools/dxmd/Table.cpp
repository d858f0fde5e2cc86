#include "Table.h"

#include <algorithm>
#include <utility>

namespace dxmd_tool {

namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// The blocks that matter in data; finer distinctions within them are not made.
constexpr Range kNarrowless[] = {{0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x0610, 0x061A},
                                 {0x064B, 0x065F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x200B, 0x200F},
                                 {0x202A, 0x202E}, {0x2060, 0x2064}, {0x20D0, 0x20FF}, {0x3099, 0x309A},
                                 {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0xFEFF, 0xFEFF}};
constexpr Range kWide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},
                           {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},
                           {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},
                           {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

template <std::size_t N>
bool isIn(const Range (&ranges)[N], char32_t character) {
  return std::any_of(std::begin(ranges), std::end(ranges),
                     [&](const Range& range) { return range.first <= character && character <= range.last; });
}

std::size_t characterWidth(char32_t character) {
  if (isIn(kNarrowless, character)) return 0;
  return isIn(kWide, character) ? 2 : 1;
}

/// The text without characters that would break the line.
std::string onOneLine(std::string text) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  if (std::none_of(text.begin(), text.end(), isControl)) return text;
  constexpr const char* kHex = "0123456789ABCDEF";
  std::string escaped;
  for (const char c : text) {
    if (!isControl(c))
      escaped += c;
    else if (c == '\n')
      escaped += "\\n";
    else if (c == '\r')
      escaped += "\\r";
    else if (c == '\t')
      escaped += "\\t";
    else
      escaped += std::string("\\x") + kHex[c >> 4 & 0xF] + kHex[c & 0xF];
  }
  return escaped;
}

}  // namespace

std::size_t displayWidth(const std::string& text) {
  std::size_t width = 0;
  for (std::size_t at = 0; at < text.size();) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    char32_t character = lead < 0xC0 ? lead : lead < 0xE0 ? lead & 0x1Fu : lead < 0xF0 ? lead & 0x0Fu : lead & 0x07u;
    for (; at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80; ++at)
      character = character << 6 | (static_cast<unsigned char>(text[at]) & 0x3Fu);
    width += characterWidth(character);
  }
  return width;
}

Table::Table(std::vector<std::string> header) {
  addRow(std::move(header));
}

void Table::addRow(std::vector<std::string> cells) {
  if (m_widths.size() < cells.size()) m_widths.resize(cells.size());
  for (std::size_t i = 0; i < cells.size(); ++i) {
    cells[i] = onOneLine(std::move(cells[i]));
    m_widths[i] = std::max(m_widths[i], displayWidth(cells[i]));
  }
  m_rows.push_back(std::move(cells));
}

std::string Table::text() const {
  if (m_widths.empty()) return std::string();
  std::string text;
  const auto addLine = [&](const auto& cellOf) {
    std::size_t gap = 0;
    for (std::size_t i = 0; i < m_widths.size(); ++i) {
      const std::string cell = cellOf(i);
      if (!cell.empty()) text += std::string(gap, ' ') + cell;
      gap = (cell.empty() ? gap : 0) + m_widths[i] - displayWidth(cell) + 2;
    }
    text += '\n';
  };
  for (const auto& row : m_rows) {
    addLine([&](std::size_t i) { return i < row.size() ? row[i] : std::string(); });
    if (&row == &m_rows.front()) addLine([&](std::size_t i) { return std::string(m_widths[i], '-'); });
  }
  return text;
}

}  // namespace dxmd_tool
