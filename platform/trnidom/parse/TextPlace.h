#ifndef TRNIDOM_PARSE_TEXTPLACE_H
#define TRNIDOM_PARSE_TEXTPLACE_H

#include <cstddef>
#include <string_view>

namespace trnidom_detail {

/// A place in a text, by line and column. Both count from 1, columns in characters. A line ends with LF, CR or CRLF.
class TextPlace {
 public:
  TextPlace() noexcept = default;
  TextPlace(std::size_t line, std::size_t column) noexcept : m_line(line), m_column(column) {}

  std::size_t line() const noexcept { return m_line; }
  std::size_t column() const noexcept { return m_column; }

  /// Moves behind a text of whole characters in UTF-8.
  void advance(std::string_view text) noexcept;

 private:
  std::size_t m_line = 1;
  std::size_t m_column = 1;
  bool m_isAfterCr = false;  // LF would end the same line
};

}  // namespace trnidom_detail

#endif
