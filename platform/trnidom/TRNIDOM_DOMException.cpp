#include <trnidom/TRNIDOM_DOMException.h>

TRNIDOM_DOMException::TRNIDOM_DOMException(unsigned short code, const std::string& what)
    : m_code(code), m_what(std::make_shared<const std::string>(what)) {}

TRNIDOM_DOMException::TRNIDOM_DOMException(const TRNIDOM_DOMException&) noexcept = default;
TRNIDOM_DOMException& TRNIDOM_DOMException::operator=(const TRNIDOM_DOMException&) noexcept = default;
TRNIDOM_DOMException::~TRNIDOM_DOMException() = default;

const char* TRNIDOM_DOMException::what() const noexcept {
  return m_what->c_str();
}
