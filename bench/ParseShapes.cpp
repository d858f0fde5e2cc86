// Parses documents that are large in one respect. A peer whose time grows with the square of it is left out.

#include <memory>
#include <stdexcept>
#include <string>

#include <libxml/parser.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <pugixml.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include "Bench.h"
#include "RawXerces.h"

namespace {

using namespace bench;

constexpr std::size_t kLong = 12000000;

std::string manyAttributes() {
  std::string xml = "<a";
  for (int i = 0; i < 20000; ++i) xml += " name" + std::to_string(i) + "='value'";
  return xml + "/>";
}

std::string manyNames() {
  std::string xml = "<a>";
  for (int i = 0; i < 200000; ++i) xml += "<name" + std::to_string(i) + "/>";
  return xml + "</a>";
}

std::string longText() {
  return "<a>" + std::string(kLong, 'x') + "</a>";
}

std::string longAttribute() {
  return "<a b='" + std::string(kLong, 'x') + "'/>";
}

using Make = std::string (*)();

template <Make Xml>
Work byWrapper() {
  return [xml = Xml()] { keep(TRNIDOM_Parser::parseString(xml).isNull() ? nullptr : ""); };
}

template <Make Xml>
Work byXerces() {
  raw::initialize();
  return [xml = Xml()] {
    xercesc::XercesDOMParser parser;
    parser.setValidationScheme(xercesc::XercesDOMParser::Val_Never);
    parser.setLoadExternalDTD(false);
    parser.parse(xercesc::MemBufInputSource(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "shape"));
    keep(parser.getDocument());
  };
}

template <Make Xml>
Work byLibxml2() {
  return [xml = Xml()] {
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(
        xmlReadMemory(xml.data(), static_cast<int>(xml.size()), "shape", nullptr, XML_PARSE_NONET | XML_PARSE_HUGE),
        xmlFreeDoc);
    if (document == nullptr) throw std::runtime_error("libxml2 refuses the document");
  };
}

template <Make Xml>
Work byPugixml() {
  return [xml = Xml()] {
    pugi::xml_document document;
    if (!document.load_buffer(xml.data(), xml.size())) throw std::runtime_error("pugixml refuses the document");
  };
}

const Case cases[] = {
    {"parse 20,000 attributes of one element", "dxmd", byWrapper<manyAttributes>},
    {"parse 20,000 attributes of one element", "pugixml", byPugixml<manyAttributes>},
    {"parse 200,000 distinct names", "dxmd", byWrapper<manyNames>},
    {"parse 200,000 distinct names", "libxml2", byLibxml2<manyNames>},
    {"parse 200,000 distinct names", "pugixml", byPugixml<manyNames>},
    {"parse a text of 12 MB", "dxmd", byWrapper<longText>},
    {"parse a text of 12 MB", "Xerces-C", byXerces<longText>},
    {"parse a text of 12 MB", "libxml2", byLibxml2<longText>},
    {"parse a text of 12 MB", "pugixml", byPugixml<longText>},
    {"parse an attribute of 12 MB", "dxmd", byWrapper<longAttribute>},
    {"parse an attribute of 12 MB", "Xerces-C", byXerces<longAttribute>},
    {"parse an attribute of 12 MB", "libxml2", byLibxml2<longAttribute>},
    {"parse an attribute of 12 MB", "pugixml", byPugixml<longAttribute>},
};

}  // namespace
