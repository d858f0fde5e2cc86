// A reply of 100,000 rows with 5 values each: parses it, reads it, lists its values, and writes it.

#include <memory>
#include <stdexcept>
#include <vector>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>
#include <pugixml.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <dxmd/queryframework/QFResponseDomHelper.h>

#include "Bench.h"
#include "Documents.h"
#include "RawXerces.h"

namespace {

using namespace bench;

constexpr std::size_t kValues = std::size_t{kRows} * kValuesPerRow;

void expectValues(std::size_t found) {
  if (found != kValues) throw std::runtime_error("a side did not find every value");
}

// --- ours

const TRNIDOM_Document& ours() {
  static const TRNIDOM_Document document = TRNIDOM_Parser::parseString(reply());
  return document;
}

Work parseByWrapper() {
  reply();
  return [] { keep(TRNIDOM_Parser::parseString(reply()).isNull() ? nullptr : ""); };
}

Work readByHelpers() {
  auto response = std::make_shared<QFResponseDomHelper>();
  TRNIDOM_Element element = ours().getDocumentElement();
  response->Take(element);
  return [response] {
    std::size_t count = 0;
    std::vector<I18NString> values;
    for (TRNIDOM_Element row = response->GetFirstResultSetRow(); !row.isNull();
         row = response->GetNextResultSetRow(row)) {
      values.clear();
      response->GetResultSetRowValues(row, values);
      count += values.size();
    }
    expectValues(count);
  };
}

Work listByWrapper() {
  ours();
  return [] {
    std::size_t count = 0;
    for (const TRNIDOM_Node value : ours().getElementsByTagName("value")) count += value.isNull() ? 0 : 1;
    expectValues(count);
  };
}

Work writeByWrapper() {
  ours();
  return [] { keep(TRNIDOM_Writer::toString(ours()).data()); };
}

// --- Xerces-C

std::unique_ptr<xercesc::XercesDOMParser> parsedByXerces() {
  raw::initialize();
  auto parser = std::make_unique<xercesc::XercesDOMParser>();
  parser->setValidationScheme(xercesc::XercesDOMParser::Val_Never);
  parser->setLoadExternalDTD(false);
  const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(reply().data()), reply().size(), "reply");
  parser->parse(source);
  return parser;
}

xercesc::DOMDocument* theirXerces() {
  static const auto parser = parsedByXerces();
  return parser->getDocument();
}

Work parseByXerces() {
  reply();
  return [] { keep(parsedByXerces()->getDocument()); };
}

Work readByXerces() {
  theirXerces();
  return [] {
    std::size_t count = 0;
    std::vector<std::u16string> values;
    xercesc::DOMElement* rows = theirXerces()->getDocumentElement()->getFirstElementChild();
    for (xercesc::DOMElement* row = rows->getFirstElementChild(); row != nullptr; row = row->getNextElementSibling()) {
      values.clear();
      for (xercesc::DOMElement* value = row->getFirstElementChild(); value != nullptr;
           value = value->getNextElementSibling())
        if (xercesc::XMLString::equals(value->getTagName(), u"value")) values.emplace_back(value->getAttribute(u"v"));
      count += values.size();
    }
    expectValues(count);
  };
}

Work listByXerces() {
  theirXerces();
  return [] {
    std::size_t count = 0;
    const xercesc::DOMNodeList* list = theirXerces()->getElementsByTagName(u"value");
    const XMLSize_t length = list->getLength();
    for (XMLSize_t i = 0; i < length; ++i) count += list->item(i) != nullptr ? 1 : 0;
    expectValues(count);
  };
}

Work writeByXerces() {
  theirXerces();
  return [] {
    auto* implementation = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
    xercesc::DOMLSSerializer* serializer = implementation->createLSSerializer();
    xercesc::DOMLSOutput* output = implementation->createLSOutput();
    xercesc::MemBufFormatTarget target;
    output->setByteStream(&target);
    output->setEncoding(u"UTF-8");
    serializer->write(theirXerces(), output);
    keep(target.getRawBuffer());
    output->release();
    serializer->release();
  };
}

// --- libxml2

using LibxmlDocument = std::unique_ptr<xmlDoc, void (*)(xmlDoc*)>;

LibxmlDocument parsedByLibxml2() {
  return {xmlReadMemory(reply().data(), static_cast<int>(reply().size()), "reply", nullptr, XML_PARSE_NONET),
          xmlFreeDoc};
}

xmlDoc* theirLibxml2() {
  static const LibxmlDocument document = parsedByLibxml2();
  return document.get();
}

Work parseByLibxml2() {
  reply();
  return [] { keep(parsedByLibxml2().get()); };
}

Work readByLibxml2() {
  theirLibxml2();
  return [] {
    const auto* v = reinterpret_cast<const xmlChar*>("v");
    const auto* name = reinterpret_cast<const xmlChar*>("value");
    struct Free {
      void operator()(xmlChar* text) const { xmlFree(text); }
    };
    std::size_t count = 0;
    std::vector<std::unique_ptr<xmlChar, Free>> values;
    xmlNode* rows = xmlFirstElementChild(xmlDocGetRootElement(theirLibxml2()));
    for (xmlNode* row = xmlFirstElementChild(rows); row != nullptr; row = xmlNextElementSibling(row)) {
      values.clear();
      for (xmlNode* value = xmlFirstElementChild(row); value != nullptr; value = xmlNextElementSibling(value))
        if (xmlStrEqual(value->name, name)) values.emplace_back(xmlGetProp(value, v));
      count += values.size();
    }
    expectValues(count);
  };
}

Work listByLibxml2() {
  theirLibxml2();
  return [] {
    const auto* name = reinterpret_cast<const xmlChar*>("value");
    std::vector<xmlNode*> list;
    xmlNode* root = xmlDocGetRootElement(theirLibxml2());
    for (xmlNode* node = root; node != nullptr;) {
      if (node->type == XML_ELEMENT_NODE && xmlStrEqual(node->name, name)) list.push_back(node);
      if (node->children != nullptr) {
        node = node->children;
        continue;
      }
      while (node != root && node->next == nullptr) node = node->parent;
      node = node == root ? nullptr : node->next;
    }
    expectValues(list.size());
  };
}

Work writeByLibxml2() {
  theirLibxml2();
  return [] {
    xmlChar* text = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(theirLibxml2(), &text, &size, "UTF-8");
    keep(text);
    xmlFree(text);
  };
}

// --- pugixml

const pugi::xml_document& theirPugixml() {
  static const auto document = [] {
    auto loaded = std::make_unique<pugi::xml_document>();
    loaded->load_buffer(reply().data(), reply().size());
    return loaded;
  }();
  return *document;
}

Work parseByPugixml() {
  reply();
  return [] {
    pugi::xml_document document;
    document.load_buffer(reply().data(), reply().size());
    keep(&document);
  };
}

Work readByPugixml() {
  theirPugixml();
  return [] {
    std::size_t count = 0;
    std::vector<std::string> values;
    for (const pugi::xml_node row : theirPugixml().child("response").child("resultData").children("row")) {
      values.clear();
      for (const pugi::xml_node value : row.children("value")) values.emplace_back(value.attribute("v").value());
      count += values.size();
    }
    expectValues(count);
  };
}

Work listByPugixml() {
  theirPugixml();
  return [] {
    struct Walker : pugi::xml_tree_walker {
      std::vector<pugi::xml_node> list;
      bool for_each(pugi::xml_node& node) override {
        if (std::string_view(node.name()) == "value") list.push_back(node);
        return true;
      }
    } walker;
    pugi::xml_node root = theirPugixml().document_element();
    root.traverse(walker);
    expectValues(walker.list.size());
  };
}

Work writeByPugixml() {
  theirPugixml();
  return [] {
    struct Text : pugi::xml_writer {
      std::string text;
      void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
    } out;
    theirPugixml().save(out, "", pugi::format_raw, pugi::encoding_utf8);
    keep(out.text.data());
  };
}

const Case cases[] = {{"parse reply", "dxmd", parseByWrapper},
                      {"parse reply", "Xerces-C", parseByXerces},
                      {"parse reply", "libxml2", parseByLibxml2},
                      {"parse reply", "pugixml", parseByPugixml},
                      {"read reply", "dxmd", readByHelpers},
                      {"read reply", "Xerces-C", readByXerces},
                      {"read reply", "libxml2", readByLibxml2},
                      {"read reply", "pugixml", readByPugixml},
                      {"list 500,000 elements", "dxmd", listByWrapper},
                      {"list 500,000 elements", "Xerces-C", listByXerces},
                      {"list 500,000 elements", "libxml2", listByLibxml2},
                      {"list 500,000 elements", "pugixml", listByPugixml},
                      {"write reply", "dxmd", writeByWrapper},
                      {"write reply", "Xerces-C", writeByXerces},
                      {"write reply", "libxml2", writeByLibxml2},
                      {"write reply", "pugixml", writeByPugixml}};

}  // namespace
