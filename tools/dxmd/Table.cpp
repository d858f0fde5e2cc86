#include "Table.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <tools/dxmd/text/Escape.h>

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

/// Whether a cell is a number as databases print it.
bool isNumber(std::string_view cell) {
  std::size_t at = cell.find_first_not_of("+-");
  if (at > 1) return false;  // also when there is nothing else
  bool hasDigit = false;
  for (; at < cell.size() && (('0' <= cell[at] && cell[at] <= '9') || cell[at] == '.' || cell[at] == ','); ++at)
    hasDigit = hasDigit || (cell[at] != '.' && cell[at] != ',');
  if (at < cell.size() && hasDigit && (cell[at] == 'e' || cell[at] == 'E')) {
    at += at + 1 < cell.size() && (cell[at + 1] == '+' || cell[at + 1] == '-') ? 2 : 1;
    at = std::min(cell.find_first_not_of("0123456789", at), cell.size());
  }
  return hasDigit && at == cell.size();
}

/// The cell with its controls escaped, cut to that width. No more of it is looked at than fits.
std::string fitted(std::string_view cell, std::size_t most) {
  constexpr const char* kCut = "\u2026";
  std::string shown;
  std::size_t width = 0;
  std::size_t sizeBeforeLast = 0;  // of what leaves room for the mark
  for (std::size_t at = 0; at < cell.size();) {
    const std::size_t start = at;
    nextCharacter(cell, at);
    const std::string next = escaped(cell.substr(start, at - start));
    width += displayWidth(next);
    if (width > most) return shown.substr(0, sizeBeforeLast) + kCut;
    shown += next;
    if (width < most) sizeBeforeLast = shown.size();
  }
  return shown;
}

}  // namespace

std::size_t displayWidth(std::string_view text) {
  std::size_t width = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = nextCharacter(text, at);
    width += character == kMalformed ? 1 : characterWidth(character);
  }
  return width;
}

constexpr std::size_t kFirstRows = 100;
constexpr std::size_t kWidest = 60;

Table::Table(std::vector<std::string> header, std::function<void(std::string_view)> write) : m_write(std::move(write)) {
  for (std::string& name : header) name = fitted(name, kWidest);
  m_columns.resize(header.size());
  m_first.push_back(std::move(header));
}

void Table::addRow(const std::vector<std::string>& cells) {
  if (m_hasWidths) return writeLine(cells);
  std::vector<std::string> fitting;
  fitting.reserve(cells.size());
  for (const std::string& cell : cells) fitting.push_back(fitted(cell, kWidest));
  if (m_columns.size() < cells.size()) m_columns.resize(cells.size());
  m_first.push_back(std::move(fitting));
  if (m_first.size() > kFirstRows) writeFirst();
}

void Table::finish() {
  if (!m_hasWidths) writeFirst();
}

void Table::writeFirst() {
  m_hasWidths = true;
  for (const auto& row : m_first) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      Column& column = m_columns[i];
      column.width = std::max(column.width, displayWidth(row[i]));
      if (&row == &m_first.front() || row[i].empty()) continue;
      (isNumber(row[i]) ? column.hasNumber : column.hasOther) = true;
    }
  }
  if (m_columns.empty()) return;
  for (const auto& row : m_first) {
    writeLine(row);
    if (&row != &m_first.front()) continue;
    std::vector<std::string> rule;
    for (const Column& column : m_columns) rule.emplace_back(column.width, '-');
    writeLine(rule);
  }
  m_first.clear();
}

void Table::writeLine(const std::vector<std::string>& cells) {
  std::string line;
  std::size_t gap = 0;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const bool isKnown = i < m_columns.size();
    const std::string cell = fitted(cells[i], isKnown ? m_columns[i].width : kWidest);
    const std::size_t width = displayWidth(cell);
    const std::size_t room = isKnown ? m_columns[i].width - width : 0;
    const bool isRight = isKnown && m_columns[i].isRight();
    if (!cell.empty()) line.append(gap + (isRight ? room : 0), ' ').append(cell);
    gap = (cell.empty() ? gap + width : 0) + (isRight && !cell.empty() ? 0 : room) + 2;
  }
  line += '\n';
  m_write(line);
}

}  // namespace dxmd_tool
