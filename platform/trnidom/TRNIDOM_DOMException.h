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
  /// The W3C's codes, and when this wrapper raises them.
  enum Code : unsigned short {
    INDEX_SIZE_ERR = 1,               ///< not raised by this wrapper
    DOMSTRING_SIZE_ERR = 2,           ///< not raised by this wrapper
    HIERARCHY_REQUEST_ERR = 3,        ///< a node cannot stand there: null, an ancestor, or a second document element
    WRONG_DOCUMENT_ERR = 4,           ///< a node of another document, which is to be imported first
    INVALID_CHARACTER_ERR = 5,        ///< a name that XML does not allow, or a text that cannot be held or written
    NO_DATA_ALLOWED_ERR = 6,          ///< not raised by this wrapper
    NO_MODIFICATION_ALLOWED_ERR = 7,  ///< not raised by this wrapper
    NOT_FOUND_ERR = 8,                ///< a node given as a child is no child of this node
    NOT_SUPPORTED_ERR = 9,            ///< an operation of elements or documents on a node that is none
    INUSE_ATTRIBUTE_ERR = 10,         ///< not raised by this wrapper
    INVALID_STATE_ERR = 11,           ///< a change through a null handle
    SYNTAX_ERR = 12,                  ///< not raised by this wrapper
    INVALID_MODIFICATION_ERR = 13,    ///< not raised by this wrapper
    NAMESPACE_ERR = 14,               ///< a document element whose prefix does not go with its namespace
    INVALID_ACCESS_ERR = 15           ///< not raised by this wrapper
  };

  /// @param code  one of `Code`.
  /// @param what  what was tried on which node, in UTF-8.
  TRNIDOM_DOMException(unsigned short code, const std::string& what);

  /// Shares the text, and so cannot fail.
  TRNIDOM_DOMException(const TRNIDOM_DOMException&) noexcept;

  /// Shares the text, and so cannot fail.
  TRNIDOM_DOMException& operator=(const TRNIDOM_DOMException&) noexcept;
  ~TRNIDOM_DOMException() override;

  /// One of `Code`.
  unsigned short code() const noexcept { return m_code; }

  /// What was tried on which node, in UTF-8, valid as long as the exception or a copy of it. Texts and attribute values
  /// are never part of it.
  const char* what() const noexcept override;

 private:
  unsigned short m_code;
  std::shared_ptr<const std::string> m_what;
};

#endif
