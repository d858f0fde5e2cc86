#include "Oracle.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/Attributes.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>

namespace dxmd_test {

namespace {

std::string utf8(const XMLCh* text, XMLSize_t size) {
  return I18NString::fromUtf16(text, size).toUtf8();
}

std::string utf8(const XMLCh* text) {
  return text != nullptr ? utf8(text, std::char_traits<XMLCh>::length(text)) : "";
}

std::string startTag(const std::string& name, const std::map<std::string, std::string>& attributes) {
  std::string tag = "<" + name;
  for (const auto& attribute : attributes) tag += " " + attribute.first + "='" + attribute.second + "'";
  return tag + ">";
}

/// Outlines what Xerces-C finds.
struct XercesHandler : xercesc::DefaultHandler {
  void startElement(const XMLCh*, const XMLCh*, const XMLCh* name, const xercesc::Attributes& attributes) override {
    std::map<std::string, std::string> all;
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i)
      all[utf8(attributes.getQName(i))] = utf8(attributes.getValue(i));
    outline += startTag(utf8(name), all);
  }
  void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override { outline += "</>"; }
  void characters(const XMLCh* text, XMLSize_t size) override { outline += utf8(text, size); }
  void startCDATA() override { outline += "[CDATA "; }
  void endCDATA() override { outline += " CDATA]"; }
  void comment(const XMLCh* text, XMLSize_t size) override { outline += "<!" + utf8(text, size) + "!>"; }
  void processingInstruction(const XMLCh* target, const XMLCh* data) override {
    outline += "<?" + utf8(target) + " " + utf8(data) + "?>";
  }
  void fatalError(const xercesc::SAXParseException& error) override { throw error; }

  std::string outline;
};

/// What the declaration gives as the value of `name`, whatever the encoding.
std::string declared(const std::string& bytes, const std::string& name) {
  std::string ascii = bytes.substr(0, 200);
  ascii.erase(std::remove(ascii.begin(), ascii.end(), '\0'), ascii.end());
  const std::size_t at = ascii.find_first_of("'\"", ascii.find(name));
  return at != std::string::npos ? ascii.substr(at + 1, ascii.find(ascii[at], at + 1) - at - 1) : "";
}

struct KnownDifference {
  const char* reason;
  bool refuses;         // we do, and Xerces-C does not; or the other way round
  const char* because;  // how our reason begins
  bool (*applies)(const std::string& bytes, const std::string& refusal);
};

bool isMisspelt(const std::string& bytes, const std::string&) {
  const std::string encoding = declared(bytes, "encoding");
  return !encoding.empty() && encoding != "utf-8" && encoding != "UTF-16" && encoding != "ISO-8859-1";
}

const KnownDifference kKnownDifferences[] = {
    {"a document type declaration is not allowed here", true, "a document type declaration",
     [](const std::string&, const std::string&) { return true; }},
    {"Xerces-C ends the input at U+0000", true, "U+0000", [](const std::string&, const std::string&) { return true; }},
    {"Xerces-C knows XML 1.1, and overlooks what else is wrong with an XML declaration", true, "",
     [](const std::string& bytes, const std::string& refusal) {
       const std::string version = declared(bytes, "version");
       return refusal == "malformed XML declaration" || (!version.empty() && version != "1.0");
     }},
    {"Xerces-C takes a lone surrogate of UTF-16 in an attribute, and drops what begins a character at the end, "
     "where it takes some for the first of up to six bytes",
     true, "malformed bytes",
     [](const std::string& bytes, const std::string&) {
       return bytes.find('\0') != std::string::npos ||
              std::any_of(bytes.end() - std::min<std::ptrdiff_t>(5, bytes.end() - bytes.begin()), bytes.end(),
                          [](char byte) { return (byte & 0x80) != 0; });
     }},
    {"Xerces-C takes some values above U+10FFFF for characters", true, "malformed bytes",
     [](const std::string& bytes, const std::string&) {
       return std::any_of(bytes.begin(), bytes.end(),
                          [](char byte) { return static_cast<unsigned char>(byte) >= 0xF4; });
     }},
    {"Xerces-C allows in names what the fifth edition of XML 1.0 does", true, "unexpected \"",
     [](const std::string&, const std::string& refusal) {
       const std::string character = refusal.substr(refusal.find('"') + 1);
       return (character[0] & 0x80) != 0 || character.rfind("\\u{", 0) == 0;
     }},
    {"ICU finds an encoding also by a name with other punctuation", false, "", isMisspelt},
    {"Xerces-C has ICU read such an encoding, which puts U+FFFD for what is malformed", true, "malformed bytes",
     isMisspelt},
    {"Xerces-C takes no XML declaration for one that has a line break behind <?xml", false, "",
     [](const std::string& bytes, const std::string&) {
       std::string first = bytes.substr(0, 24);
       first.erase(std::remove(first.begin(), first.end(), '\0'), first.end());
       return first.substr(0, 5) == "<?xml" && first.substr(5, 1).find_first_of("\t\r\n") == 0;
     }},
};

}  // namespace

std::string outlineOf(const TRNIDOM_Node& node) {
  const std::string value = node.getNodeValue().toUtf8();
  std::map<std::string, std::string> attributes;
  std::string below;
  switch (node.getNodeType()) {
    case TRNIDOM_Node::TEXT_NODE:
      return value;
    case TRNIDOM_Node::CDATA_SECTION_NODE:
      return "[CDATA " + value + " CDATA]";
    case TRNIDOM_Node::COMMENT_NODE:
      return "<!" + value + "!>";
    case TRNIDOM_Node::PROCESSING_INSTRUCTION_NODE:
      return "<?" + node.getNodeName().toUtf8() + " " + value + "?>";
    default:
      for (const TRNIDOM_Node& child : node.getChildNodes()) below += outlineOf(child);
      if (node.getNodeType() == TRNIDOM_Node::DOCUMENT_NODE) return below;
      for (const TRNIDOM_Node& attribute : node.getAttributes())
        attributes[attribute.getNodeName().toUtf8()] = attribute.getNodeValue().toUtf8();
      return startTag(node.getNodeName().toUtf8(), attributes) + below + "</>";
  }
}

Opinion opinion(const std::string& bytes) {
  try {
    return {true, outlineOf(TRNIDOM_Parser::parseString(bytes))};
  } catch (const TRNIDOM_ParseError& error) {
    return {false, error.getReason()};
  }
}

// A new reader for each document: it keeps what a declaration of XML 1.1 changed.
Opinion opinionOfXerces(const std::string& bytes) {
  XercesHandler handler;
  const std::unique_ptr<xercesc::SAX2XMLReader> reader(xercesc::XMLReaderFactory::createXMLReader());
  reader->setFeature(xercesc::XMLUni::fgSAX2CoreNameSpaces, false);
  reader->setFeature(xercesc::XMLUni::fgSAX2CoreValidation, false);
  reader->setFeature(xercesc::XMLUni::fgXercesLoadExternalDTD, false);
  reader->setContentHandler(&handler);
  reader->setLexicalHandler(&handler);
  reader->setErrorHandler(&handler);
  const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(bytes.data()), bytes.size(), "memory");
  try {
    reader->parse(source);
    return {true, handler.outline};
  } catch (const xercesc::SAXException& error) {
    return {false, utf8(error.getMessage())};
  } catch (const xercesc::XMLException& error) {
    return {false, utf8(error.getMessage())};
  } catch (...) {
    return {false, "an exception of another kind"};
  }
}

bool isKnownDifference(const std::string& bytes, const Opinion& ours, const Opinion& xerces) {
  return std::any_of(std::begin(kKnownDifferences), std::end(kKnownDifferences), [&](const KnownDifference& known) {
    return ours.accepts != known.refuses && xerces.accepts == known.refuses && ours.text.rfind(known.because, 0) == 0 &&
           known.applies(bytes, ours.text);
  });
}

std::string shownBytes(const std::string& bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F && c != '\\')
      text += c;
    else
      text += std::string("\\x") + kDigits[byte >> 4] + kDigits[byte & 0xF];
  }
  return text;
}

XercesPlatform::XercesPlatform() {
  xercesc::XMLPlatformUtils::Initialize();
}

XercesPlatform::~XercesPlatform() {
  xercesc::XMLPlatformUtils::Terminate();
}

}  // namespace dxmd_test
