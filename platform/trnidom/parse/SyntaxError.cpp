#include "parse/SyntaxError.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <string>
#include <string_view>

#include <trnidom/TRNIDOM_Element.h>

#include "text/Quote.h"

namespace trnidom_detail {

namespace {

/// The text from where expat is to the end of what it has; empty when it keeps none.
std::string_view textAhead(XML_Parser parser) {
  int offset = 0;
  int size = 0;
  const char* const text = XML_GetInputContext(parser, &offset, &size);
  if (text == nullptr) return {};
  return {text + offset, static_cast<std::size_t>(size - offset)};
}

/// The name of the innermost element that is open: the last child of each one around it.
std::string nameOfOpenElement(const TRNIDOM_Document& built, std::size_t depth) {
  TRNIDOM_Node open = built.getDocumentElement();
  for (; depth > 1; --depth) open = open.getLastChild();
  return quotedName(open.getNodeName().toUtf8());
}

std::string firstCharacter(std::string_view text) {
  const auto isContinuation = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
  const auto* const end = std::find_if_not(std::next(text.begin()), text.end(), isContinuation);
  return quotedName(text.substr(0, static_cast<std::size_t>(end - text.begin())));
}

/// The first reference in a text to an entity that XML does not define: "&" and the name.
std::string_view undefinedReference(std::string_view text) {
  constexpr std::string_view kDefined[] = {"&lt", "&gt", "&amp", "&apos", "&quot"};
  for (std::size_t at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1)) {
    const std::string_view reference = text.substr(at, text.find(';', at) - at);
    if (reference.substr(0, 2) != "&#" &&
        std::find(std::begin(kDefined), std::end(kDefined), reference) == std::end(kDefined))
      return reference;
  }
  return {};
}

/// What is ahead may be the reference, or the start-tag that has it in a value.
TRNIDOM_ParseError undefinedEntity(TextPlace place, std::string_view ahead) {
  const std::string_view reference = undefinedReference(ahead);
  if (reference.empty()) return {place.line(), place.column(), "an entity is not defined"};
  place.advance(ahead.substr(0, static_cast<std::size_t>(reference.data() - ahead.data())));
  return {place.line(), place.column(), "the entity " + quotedName(reference.substr(1)) + " is not defined"};
}

/// What is ahead is the token as far as it goes.
TRNIDOM_ParseError unclosedToken(const TextPlace& begin, std::string_view ahead) {
  TextPlace end = begin;
  end.advance(ahead);
  return {
      end.line(), end.column(),
      "the document ends inside what begins at " + std::to_string(begin.line()) + ':' + std::to_string(begin.column())};
}

std::string reasonOf(XML_Error code, std::string_view ahead, const TRNIDOM_Document& built, std::size_t depth) {
  const auto upTo = [ahead](const char* ends) { return quotedName(ahead.substr(0, ahead.find_first_of(ends))); };
  switch (code) {
    case XML_ERROR_SYNTAX:
    case XML_ERROR_INVALID_TOKEN:
      if (!ahead.empty()) return "unexpected " + firstCharacter(ahead);
      break;
    case XML_ERROR_NO_ELEMENTS:
      if (depth == 0) return "the document has no element";
      return "the document ends inside the element " + nameOfOpenElement(built, depth);
    case XML_ERROR_UNCLOSED_CDATA_SECTION:
      return "the document ends inside a CDATA section";
    case XML_ERROR_TAG_MISMATCH:
      if (depth == 0 || ahead.empty()) break;
      return "the end tag " + upTo(" \t\r\n>") + " does not match the start tag " + nameOfOpenElement(built, depth);
    case XML_ERROR_DUPLICATE_ATTRIBUTE:
      if (!ahead.empty()) return "the attribute " + upTo(" \t\r\n=") + " is given twice";
      break;
    case XML_ERROR_BAD_CHAR_REF:
      if (!ahead.empty())
        return "the reference " + quotedName(ahead.substr(0, ahead.find(';') + 1)) + " stands for no character of XML";
      break;
    case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
      return "only comments and processing instructions may follow the document element";
    case XML_ERROR_MISPLACED_XML_PI:
      return "an XML declaration may stand only at the start of the document";
    case XML_ERROR_XML_DECL:
      return "malformed XML declaration";
    default:
      break;
  }
  return XML_ErrorString(code);
}

}  // namespace

TextPlace placeOf(XML_Parser parser) {
  return {static_cast<std::size_t>(XML_GetCurrentLineNumber(parser)),
          static_cast<std::size_t>(XML_GetCurrentColumnNumber(parser)) + 1};
}

TextPlace placeBehind(XML_Parser parser) {
  TextPlace place = placeOf(parser);
  place.advance(textAhead(parser).substr(0, static_cast<std::size_t>(XML_GetCurrentByteCount(parser))));
  return place;
}

TRNIDOM_ParseError syntaxError(XML_Parser parser, const TRNIDOM_Document& built, std::size_t depth) {
  const XML_Error code = XML_GetErrorCode(parser);
  if (code == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
  const TextPlace place = placeOf(parser);
  const std::string_view ahead = textAhead(parser);
  if (code == XML_ERROR_UNDEFINED_ENTITY) return undefinedEntity(place, ahead);
  if (code == XML_ERROR_UNCLOSED_TOKEN) return unclosedToken(place, ahead);
  return {place.line(), place.column(), reasonOf(code, ahead, built, depth)};
}

}  // namespace trnidom_detail
