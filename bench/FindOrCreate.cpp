// Finds or creates distinct children under one parent. The peers have no such operation and search the children, as
// one writes it by hand; 100,000 children are too many for that.

#include <memory>
#include <string_view>

#include <libxml/tree.h>
#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <pugixml.hpp>

#include "Bench.h"
#include "Documents.h"
#include "RawXerces.h"

namespace {

using namespace bench;

template <std::size_t Count>
Work byWrapper() {
  auto keys = std::make_shared<std::vector<I18NString>>();
  for (std::size_t i = 0; i < Count; ++i) keys->emplace_back(keysUtf8()[i].c_str());
  return [keys] {
    const TRNIDOM_Document document =
        TRNIDOM_DOMImplementation::getInstance().createDocument("", "list", TRNIDOM_DocumentType());
    const TRNIDOM_Element list = document.getDocumentElement();
    const I18NString line("line");
    for (const I18NString& key : *keys) TRNIDOM_Helper::findOrCreateElementWithText(list, line, key);
    keep(&list);
  };
}

template <std::size_t Count>
Work byXerces() {
  auto keys = std::make_shared<std::vector<std::u16string>>();
  for (std::size_t i = 0; i < Count; ++i) keys->emplace_back(keysUtf8()[i].begin(), keysUtf8()[i].end());
  return [keys] {
    const raw::Document document = raw::newDocument(u"list");
    xercesc::DOMElement* list = document->getDocumentElement();
    for (const std::u16string& key : *keys) {
      xercesc::DOMElement* found = list->getFirstElementChild();
      while (found != nullptr && !(xercesc::XMLString::equals(found->getTagName(), u"line") &&
                                   xercesc::XMLString::equals(found->getFirstChild()->getNodeValue(), key.c_str())))
        found = found->getNextElementSibling();
      if (found == nullptr) raw::appendText(list, u"line", key.c_str());
    }
    keep(list);
  };
}

template <std::size_t Count>
Work byLibxml2() {
  keysUtf8();
  return [] {
    const auto text = [](const char* utf8) { return reinterpret_cast<const xmlChar*>(utf8); };
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(xmlNewDoc(text("1.0")), xmlFreeDoc);
    xmlNode* list = xmlNewDocNode(document.get(), nullptr, text("list"), nullptr);
    xmlDocSetRootElement(document.get(), list);
    for (std::size_t i = 0; i < Count; ++i) {
      const xmlChar* key = text(keysUtf8()[i].c_str());
      xmlNode* found = list->children;
      while (found != nullptr &&
             !(xmlStrEqual(found->name, text("line")) && xmlStrEqual(found->children->content, key)))
        found = found->next;
      if (found == nullptr) xmlNewTextChild(list, nullptr, text("line"), key);
    }
    keep(list);
  };
}

template <std::size_t Count>
Work byPugixml() {
  keysUtf8();
  return [] {
    pugi::xml_document document;
    pugi::xml_node list = document.append_child("list");
    for (std::size_t i = 0; i < Count; ++i) {
      const std::string& key = keysUtf8()[i];
      const pugi::xml_node found = list.find_child(
          [&](pugi::xml_node child) { return std::string_view(child.name()) == "line" && key == child.child_value(); });
      if (!found) list.append_child("line").append_child(pugi::node_pcdata).set_value(key.c_str());
    }
    keep(&document);
  };
}

const Case cases[] = {{"find or create 1,000 children", "dxmd", byWrapper<1000>},
                      {"find or create 1,000 children", "Xerces-C", byXerces<1000>},
                      {"find or create 1,000 children", "libxml2", byLibxml2<1000>},
                      {"find or create 1,000 children", "pugixml", byPugixml<1000>},
                      {"find or create 10,000 children", "dxmd", byWrapper<10000>},
                      {"find or create 10,000 children", "Xerces-C", byXerces<10000>},
                      {"find or create 10,000 children", "libxml2", byLibxml2<10000>},
                      {"find or create 10,000 children", "pugixml", byPugixml<10000>},
                      {"find or create 100,000 children", "dxmd", byWrapper<100000>}};

}  // namespace
