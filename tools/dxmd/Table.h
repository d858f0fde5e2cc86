#ifndef TOOLS_DXMD_TABLE_H
#define TOOLS_DXMD_TABLE_H

#include <string>
#include <vector>

namespace dxmd_tool {

/// Rows of text in aligned columns, for a terminal: all texts are UTF-8.
///
/// Rows may differ in length; columns beyond the header get an empty one. Line feeds and other control characters
/// print as escapes, so that a row is one line.
class Table {
 public:
  explicit Table(std::vector<std::string> header);

  void addRow(std::vector<std::string> cells);

  /// The header, a rule under it, and the rows; nothing when there is neither a column nor a row.
  std::string text() const;

 private:
  std::vector<std::vector<std::string>> m_rows;
  std::vector<std::size_t> m_widths;
};

/// How many columns of a terminal the text takes: two for each wide character, none for a combining mark.
std::size_t displayWidth(const std::string& text);

}  // namespace dxmd_tool

#endif
