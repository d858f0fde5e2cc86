#ifndef TRNIDOM_TRNIDOM_PARSER_H
#define TRNIDOM_TRNIDOM_PARSER_H

#include <string>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Export.h>

/// Parses documents of XML 1.0.
///
/// The encoding is that of the document's own declaration or byte order mark. Prefixes need no declaration. Each run of
/// characters is one text node; white space, comments and CDATA sections are kept as nodes. Nothing outside the
/// document is ever read, and a document with a DOCTYPE is refused.
///
/// Threads: safe from any number of threads at once.
class TRNIDOM_API TRNIDOM_Parser {
 public:
  /// @throws TRNIDOM_ParseError with line, column and reason.
  static TRNIDOM_Document parseString(const std::string& bytes);

  /// @throws TRNIDOM_ParseError; without a place when the file cannot be read.
  static TRNIDOM_Document parseFile(const std::string& path);
};

#endif
