#ifndef TRNIDOM_TRNIDOM_PARSEERROR_H
#define TRNIDOM_TRNIDOM_PARSEERROR_H

#include <cstddef>
#include <exception>
#include <memory>
#include <string>

#include <trnidom/TRNIDOM_Export.h>

/// Why a document could not be parsed, and where. Lines and columns count from 1; both are 0 when no place is known,
/// as for a file that cannot be opened.
class TRNIDOM_API TRNIDOM_ParseError : public std::exception {
 public:
  /// @param line    counted from 1; 0 when no place is known.
  /// @param column  counted from 1 in characters; 0 when no place is known.
  /// @param reason  what is wrong, in UTF-8.
  TRNIDOM_ParseError(std::size_t line, std::size_t column, const std::string& reason);

  /// Shares the texts, and so cannot fail.
  TRNIDOM_ParseError(const TRNIDOM_ParseError&) noexcept;

  /// Shares the texts, and so cannot fail.
  TRNIDOM_ParseError& operator=(const TRNIDOM_ParseError&) noexcept;
  ~TRNIDOM_ParseError() override;

  /// The line, counted from 1; 0 when no place is known.
  std::size_t getLine() const noexcept { return m_line; }

  /// The column in characters, counted from 1; 0 when no place is known.
  std::size_t getColumn() const noexcept { return m_column; }

  /// The reason alone, in UTF-8.
  const std::string& getReason() const noexcept;

  /// `LINE:COLUMN: REASON`, or the reason alone when no place is known.
  const char* what() const noexcept override;

 private:
  struct Texts;
  std::size_t m_line;
  std::size_t m_column;
  std::shared_ptr<const Texts> m_texts;
};

#endif
