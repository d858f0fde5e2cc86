#include <trnidom/TRNIDOM_ParseError.h>

struct TRNIDOM_ParseError::Texts {
  std::string reason;
  std::string what;
};

TRNIDOM_ParseError::TRNIDOM_ParseError(std::size_t line, std::size_t column, const std::string& reason)
    : m_line(line), m_column(column) {
  std::string place;
  if (line != 0) place = std::to_string(line) + ':' + std::to_string(column) + ": ";
  m_texts = std::make_shared<const Texts>(Texts{reason, place + reason});
}

TRNIDOM_ParseError::TRNIDOM_ParseError(const TRNIDOM_ParseError&) noexcept = default;
TRNIDOM_ParseError& TRNIDOM_ParseError::operator=(const TRNIDOM_ParseError&) noexcept = default;
TRNIDOM_ParseError::~TRNIDOM_ParseError() = default;

const std::string& TRNIDOM_ParseError::getReason() const noexcept {
  return m_texts->reason;
}

const char* TRNIDOM_ParseError::what() const noexcept {
  return m_texts->what.c_str();
}
