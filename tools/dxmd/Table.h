#ifndef TOOLS_DXMD_TABLE_H
#define TOOLS_DXMD_TABLE_H

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace dxmd_tool {

/// Writes rows of text in aligned columns, for a terminal: all texts are UTF-8.
///
/// The header and the first 100 rows set the width of each column, 60 at most, and whether numbers stand in it, which
/// are aligned to the right. A wider cell is cut and ends in "…". Rows may differ in length; columns beyond the header
/// get an empty one. Line feeds and other control characters print as escapes, so that a row is one line.
class Table {
 public:
  /// @param write  is given whole lines.
  Table(std::vector<std::string> header, std::function<void(std::string_view lines)> write);

  void addRow(const std::vector<std::string>& cells);

  /// Writes what is left: the header and a rule under it at least, but nothing when there is neither column nor row.
  void finish();

 private:
  struct Column {
    std::size_t width = 0;
    bool hasNumber = false;
    bool hasOther = false;

    bool isRight() const { return hasNumber && !hasOther; }
  };

  void writeFirst();
  void writeLine(const std::vector<std::string>& cells);

  std::vector<std::vector<std::string>> m_first;  ///< the header and the rows that widths are taken from
  std::vector<Column> m_columns;
  bool m_hasWidths = false;
  std::function<void(std::string_view)> m_write;
};

/// How many columns of a terminal the text takes: two for each wide character, none for a combining mark.
std::size_t displayWidth(std::string_view text);

}  // namespace dxmd_tool

#endif
