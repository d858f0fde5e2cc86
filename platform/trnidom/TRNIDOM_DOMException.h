#ifndef TRNIDOM_TRNIDOM_DOMEXCEPTION_H
#define TRNIDOM_TRNIDOM_DOMEXCEPTION_H

#include <exception>
#include <memory>
#include <string>

#include <trnidom/TRNIDOM_Export.h>

/// A change that the DOM does not allow. No other exception leaves the wrapper but TRNIDOM_ParseError and, for
/// exhausted memory, std::bad_alloc.
class TRNIDOM_API TRNIDOM_DOMException : public std::exception {
 public:
  /// The W3C's codes.
  enum Code : unsigned short {
    INDEX_SIZE_ERR = 1,
    DOMSTRING_SIZE_ERR = 2,
    HIERARCHY_REQUEST_ERR = 3,
    WRONG_DOCUMENT_ERR = 4,
    INVALID_CHARACTER_ERR = 5,
    NO_DATA_ALLOWED_ERR = 6,
    NO_MODIFICATION_ALLOWED_ERR = 7,
    NOT_FOUND_ERR = 8,
    NOT_SUPPORTED_ERR = 9,
    INUSE_ATTRIBUTE_ERR = 10,
    INVALID_STATE_ERR = 11,
    SYNTAX_ERR = 12,
    INVALID_MODIFICATION_ERR = 13,
    NAMESPACE_ERR = 14,
    INVALID_ACCESS_ERR = 15
  };

  TRNIDOM_DOMException(unsigned short code, const std::string& what);
  TRNIDOM_DOMException(const TRNIDOM_DOMException&) noexcept;
  TRNIDOM_DOMException& operator=(const TRNIDOM_DOMException&) noexcept;
  ~TRNIDOM_DOMException() override;

  unsigned short code() const noexcept { return m_code; }

  /// What was tried on which node, in UTF-8. Texts and attribute values are never part of it.
  const char* what() const noexcept override;

 private:
  unsigned short m_code;
  std::shared_ptr<const std::string> m_what;
};

#endif
