#ifndef TRNIDOM_PARSE_DOCUMENTPARSER_H
#define TRNIDOM_PARSE_DOCUMENTPARSER_H

#include <cstddef>
#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include "parse/ByteInput.h"
#include "parse/Decoder.h"
#include "parse/Expat.h"
#include "parse/TextPlace.h"
#include "store/TreeBuilder.h"

namespace trnidom_detail {

/// A document while it is built.
struct Building {
  TRNIDOM_Document document = newDocument();
  TreeBuilder builder{document};
};

/// Has expat read a text and builds the document of what it finds.
class DocumentParser {
 public:
  explicit DocumentParser(ByteInput& input) : m_input(input), m_decoder(input) {}

  /// The same, but each outermost element of that name is built as a document of its own, for the visitor to see.
  DocumentParser(ByteInput& input, std::string name, const TRNIDOM_Parser::Visit& visit)
      : m_input(input), m_decoder(input), m_visitedName(std::move(name)), m_visit(&visit) {}

  DocumentParser(const DocumentParser&) = delete;
  DocumentParser& operator=(const DocumentParser&) = delete;

  /// @throws TRNIDOM_ParseError, std::bad_alloc; whatever reading and the visitor throw.
  TRNIDOM_Document parse();

 private:
  struct Handlers;
  enum class Outcome { kWhole, kOtherEncoding };

  Outcome parseDecoded();
  void setHandlers();
  void parsePiece(std::size_t size, bool isFinal);
  std::size_t nextSize(std::size_t size) const;
  [[noreturn]] void refuse(const TextPlace& place, const std::string& reason) const;

  // Told by expat.
  void declare(std::string_view version, std::string_view encoding);
  void requireNoDoctype(std::string_view markup);
  void startElement(const char* name, const char* const* attributes);
  void endElement();
  void text(std::string_view characters);
  void endCdata();
  TreeBuilder& builder() { return m_building->builder; }

  ByteInput& m_input;
  Decoder m_decoder;
  Expat m_expat;
  std::exception_ptr m_failure;    // of a handler
  bool m_isOtherEncoding = false;  // the text starts again, in the encoding that it declares
  bool m_isInCdata = false;
  std::string m_cdata;        // the characters of the section
  unsigned long m_given = 0;  // bytes; may overflow, as expat's own count does

  const std::string m_visitedName;
  const TRNIDOM_Parser::Visit* const m_visit = nullptr;
  Building m_main;
  std::optional<Building> m_visited;  // while an element of that name is open
  Building* m_building = &m_main;     // one of these
};

}  // namespace trnidom_detail

#endif
