#include "parse/DocumentParser.h"

#include <algorithm>
#include <new>
#include <utility>

#include <trnidom/TRNIDOM_ParseError.h>

#include "parse/SyntaxError.h"
#include "text/Quote.h"

namespace trnidom_detail {

namespace {

// A document is given to expat in pieces, small ones first, so that a short document takes little memory.
constexpr std::size_t kFirstPiece = std::size_t{1} << 14;
constexpr std::size_t kPiece = std::size_t{1} << 18;
constexpr std::size_t kLargestPiece = std::size_t{1} << 29;  // expat counts its buffer by int

std::string_view viewOf(const char* text) {
  return text != nullptr ? std::string_view(text) : std::string_view();
}

std::string_view viewOf(const char* text, int size) {
  return {text, static_cast<std::size_t>(size)};
}

}  // namespace

/// What expat calls. No exception may cross its frames: the first one stops it and waits for it to return.
struct DocumentParser::Handlers {
  template <typename Work>
  static void guarded(void* self, Work work) noexcept {
    auto& parser = *static_cast<DocumentParser*>(self);
    if (parser.m_failure != nullptr) return;  // expat may tell one more end
    try {
      work(parser);
    } catch (...) {
      parser.m_failure = std::current_exception();
      XML_StopParser(parser.m_expat.get(), XML_FALSE);
    }
  }

  static void XMLCALL xmlDeclaration(void* self, const char* version, const char* encoding, int) {
    guarded(self, [=](DocumentParser& parser) { parser.declare(viewOf(version), viewOf(encoding)); });
  }
  static void XMLCALL startElement(void* self, const char* name, const char** attributes) {
    guarded(self, [=](DocumentParser& parser) { parser.startElement(name, attributes); });
  }
  static void XMLCALL endElement(void* self, const char*) {
    guarded(self, [](DocumentParser& parser) { parser.endElement(); });
  }
  static void XMLCALL text(void* self, const char* characters, int size) {
    guarded(self, [=](DocumentParser& parser) { parser.text(viewOf(characters, size)); });
  }
  static void XMLCALL startCdata(void* self) {
    guarded(self, [](DocumentParser& parser) { parser.m_isInCdata = true; });
  }
  static void XMLCALL endCdata(void* self) {
    guarded(self, [](DocumentParser& parser) { parser.endCdata(); });
  }
  static void XMLCALL comment(void* self, const char* characters) {
    guarded(self, [=](DocumentParser& parser) { parser.builder().comment(characters); });
  }
  static void XMLCALL instruction(void* self, const char* target, const char* data) {
    guarded(self, [=](DocumentParser& parser) { parser.builder().instruction(target, data); });
  }
  static void XMLCALL other(void* self, const char* markup, int size) {
    guarded(self, [=](DocumentParser& parser) { parser.requireNoDoctype(viewOf(markup, size)); });
  }
};

TRNIDOM_Document DocumentParser::parse() {
  while (parseDecoded() == Outcome::kOtherEncoding) {
  }
  return m_main.document;
}

/// Parses the text as the decoder gives it, from its start.
DocumentParser::Outcome DocumentParser::parseDecoded() {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  m_expat = newExpat();
  setHandlers();
  m_given = 0;
  TextPlace end;
  for (std::size_t size = kFirstPiece;; size = nextSize(size)) {
    auto* const piece = static_cast<char*>(XML_GetBuffer(m_expat.get(), static_cast<int>(size)));
    if (piece == nullptr) throw std::bad_alloc();
    const std::string_view text(piece, m_decoder.read(piece, size));
    // expat would take it for the byte order mark, which the decoder has removed already.
    if (m_given == 0 && text.substr(0, kMark.size()) == kMark) refuse(end, "unexpected " + quotedName(kMark));
    end.advance(text);
    parsePiece(text.size(), m_decoder.state() == Decoder::State::kEnd);
    if (std::exchange(m_isOtherEncoding, false)) return Outcome::kOtherEncoding;
    // An XML declaration is the first token.
    if (XML_GetCurrentByteIndex(m_expat.get()) > 0) m_input.forget();

    switch (m_decoder.state()) {
      case Decoder::State::kMore:
        break;
      case Decoder::State::kEnd:
        return Outcome::kWhole;
      case Decoder::State::kMalformed:
        refuse(end, "malformed bytes");
      case Decoder::State::kNul:
        refuse(end, "U+0000 is no character of XML");
    }
  }
}

void DocumentParser::setHandlers() {
  auto* const expat = m_expat.get();
  XML_SetUserData(expat, this);
  XML_SetXmlDeclHandler(expat, Handlers::xmlDeclaration);
  XML_SetElementHandler(expat, Handlers::startElement, Handlers::endElement);
  XML_SetCharacterDataHandler(expat, Handlers::text);
  XML_SetCdataSectionHandler(expat, Handlers::startCdata, Handlers::endCdata);
  XML_SetCommentHandler(expat, Handlers::comment);
  XML_SetProcessingInstructionHandler(expat, Handlers::instruction);
  XML_SetDefaultHandler(expat, Handlers::other);
}

/// Has expat parse what stands in its buffer.
void DocumentParser::parsePiece(std::size_t size, bool isFinal) {
  m_given += static_cast<unsigned long>(size);
  const XML_Status status = XML_ParseBuffer(m_expat.get(), static_cast<int>(size), isFinal ? XML_TRUE : XML_FALSE);
  if (m_failure != nullptr) std::rethrow_exception(m_failure);
  if (status != XML_STATUS_OK && !m_isOtherEncoding)
    throw syntaxError(m_expat.get(), m_building->document, builder().depth());
}

/// The size of the piece after one of that size. expat scans a token that is not complete again from its start with
/// each piece, so a next piece that is as long as what there is of the token keeps the cost linear.
std::size_t DocumentParser::nextSize(std::size_t size) const {
  const std::size_t unfinished = m_given - static_cast<unsigned long>(XML_GetCurrentByteIndex(m_expat.get()));
  return std::min(std::max(std::min(2 * size, kPiece), unfinished), kLargestPiece);
}

void DocumentParser::refuse(const TextPlace& place, const std::string& reason) const {
  throw TRNIDOM_ParseError(place.line(), place.column(), reason);
}

void DocumentParser::declare(std::string_view version, std::string_view encoding) {
  if (version != "1.0") refuse({}, "only XML 1.0 is supported");
  switch (m_decoder.declare(encoding)) {
    case Decoder::Declared::kFits:
      return;
    case Decoder::Declared::kElse:
      m_isOtherEncoding = true;
      XML_StopParser(m_expat.get(), XML_FALSE);
      return;
    case Decoder::Declared::kUnknown:
      refuse(placeBehind(m_expat.get()), "unknown encoding " + quotedName(encoding));
    case Decoder::Declared::kImpossible:
      refuse(placeBehind(m_expat.get()), "the document is not in the encoding " + quotedName(encoding));
    case Decoder::Declared::kMissing:
      refuse(placeBehind(m_expat.get()), "a document in EBCDIC has to declare its encoding");
  }
}

/// Told of markup that has no handler, the start of a document type declaration among it.
void DocumentParser::requireNoDoctype(std::string_view markup) {
  if (markup == "<!DOCTYPE") refuse(placeOf(m_expat.get()), "a document type declaration is not allowed");
}

void DocumentParser::startElement(const char* name, const char* const* attributes) {
  if (m_visit != nullptr && m_building == &m_main && name == m_visitedName) m_building = &m_visited.emplace();
  TreeBuilder& target = builder();
  target.startElement(name);
  for (; *attributes != nullptr; attributes += 2) target.attribute(attributes[0], attributes[1]);
}

void DocumentParser::endElement() {
  builder().endElement();
  if (m_building == &m_main || builder().depth() != 0) return;
  const TRNIDOM_Element element = m_visited->document.getDocumentElement();
  m_building = &m_main;
  m_visited.reset();
  (*m_visit)(element);
}

void DocumentParser::text(std::string_view characters) {
  if (m_isInCdata)
    m_cdata += characters;
  else
    builder().text(characters);
}

void DocumentParser::endCdata() {
  builder().cdata(m_cdata);
  m_cdata.clear();
  m_isInCdata = false;
}

}  // namespace trnidom_detail
