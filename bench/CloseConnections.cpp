// Makes the smallest message, and lets it go.

#include <memory>

#include <libxml/tree.h>
#include <pugixml.hpp>

#include <dxmd/queryframework/QFCloseConnectionsCommandHelper.h>

#include "Bench.h"
#include "RawXerces.h"

namespace {

using namespace bench;

Work byHelpers() {
  return [] {
    const QFCloseConnectionsCommandHelper command;
    TRNIDOM_Element element;
    command.Make(element);
    keep(&element);
  };
}

Work byXerces() {
  return [] {
    using namespace bench::raw;
    const Document document = newDocument(u"command");
    xercesc::DOMElement* command = document->getDocumentElement();
    command->setAttribute(u"xmlns", u"urn:dxmd:query-service:api:1");
    command->setAttribute(u"xmlns:xsi", u"http://www.w3.org/2001/XMLSchema-instance");
    append(command, u"closeConnections");
    append(command, u"commandID", u"value", u"DXCommand");
    append(command, u"requestID", u"value", u"DXRequest");
    keep(command);
  };
}

Work byLibxml2() {
  return [] {
    const auto text = [](const char* utf8) { return reinterpret_cast<const xmlChar*>(utf8); };
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(xmlNewDoc(text("1.0")), xmlFreeDoc);
    xmlNode* command = xmlNewDocNode(document.get(), nullptr, text("command"), nullptr);
    xmlDocSetRootElement(document.get(), command);
    xmlNewNs(command, text("urn:dxmd:query-service:api:1"), nullptr);
    xmlNewNs(command, text("http://www.w3.org/2001/XMLSchema-instance"), text("xsi"));
    xmlNewChild(command, nullptr, text("closeConnections"), nullptr);
    xmlNewProp(xmlNewChild(command, nullptr, text("commandID"), nullptr), text("value"), text("DXCommand"));
    xmlNewProp(xmlNewChild(command, nullptr, text("requestID"), nullptr), text("value"), text("DXRequest"));
    keep(command);
  };
}

Work byPugixml() {
  return [] {
    pugi::xml_document document;
    pugi::xml_node command = document.append_child("command");
    command.append_attribute("xmlns").set_value("urn:dxmd:query-service:api:1");
    command.append_attribute("xmlns:xsi").set_value("http://www.w3.org/2001/XMLSchema-instance");
    command.append_child("closeConnections");
    command.append_child("commandID").append_attribute("value").set_value("DXCommand");
    command.append_child("requestID").append_attribute("value").set_value("DXRequest");
    keep(&document);
  };
}

const Case cases[] = {{"make close connections", "dxmd", byHelpers},
                      {"make close connections", "Xerces-C", byXerces},
                      {"make close connections", "libxml2", byLibxml2},
                      {"make close connections", "pugixml", byPugixml}};

}  // namespace
