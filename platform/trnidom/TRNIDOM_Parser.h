#ifndef TRNIDOM_TRNIDOM_PARSER_H
#define TRNIDOM_TRNIDOM_PARSER_H

#include <cstddef>
#include <functional>
#include <string>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Export.h>

/// Parses documents of XML 1.0.
///
/// The encoding is that of the byte order mark or else of the document's own declaration. Prefixes need no declaration.
/// Each run of characters is one text node; white space, comments and CDATA sections are kept as nodes. Nothing outside
/// the document is ever read, and a document with a DOCTYPE is refused. The time is linear in the bytes, whatever they
/// are. Exhausted memory is std::bad_alloc.
///
/// Threads: safe from any number of threads at once.
class TRNIDOM_API TRNIDOM_Parser {
 public:
  /// Gives up to `size` bytes into `buffer` and says how many; 0 at the end, after which it is not called again. May
  /// throw, which ends the parsing.
  using Source = std::function<std::size_t(char* buffer, std::size_t size)>;

  /// Told of an element, the document element of a document of its own, which goes unless a handle is kept. May throw,
  /// which ends the parsing.
  using Visit = std::function<void(TRNIDOM_Element element)>;

  /// The document that the bytes are.
  /// @throws TRNIDOM_ParseError with line, column and reason.
  static TRNIDOM_Document parseString(const std::string& bytes);

  /// The document in that file.
  /// @throws TRNIDOM_ParseError as `parseString`; without a place when the file cannot be read.
  static TRNIDOM_Document parseFile(const std::string& path);

  /// Parses a document that may be larger than memory, element by element.
  ///
  /// Each element of that name that is not inside another one is handed to the visitor as soon as it is complete, and
  /// is not part of the document that is returned: there, the characters before and behind it are one text node. The
  /// returned document has no element when the document element has that name. What is wrong with the document is found
  /// as the bytes come, so elements may have been visited by then.
  ///
  /// @param source  gives the bytes; it is asked for a few, which tell the encoding, then for many at a time.
  /// @param name    of the elements to visit, with its prefix.
  /// @param visit   is handed each of them, in document order.
  /// @throws TRNIDOM_ParseError with line, column and reason; what source or visitor throw, as it is.
  static TRNIDOM_Document parseEach(const Source& source, const I18NString& name, const Visit& visit);
};

#endif
