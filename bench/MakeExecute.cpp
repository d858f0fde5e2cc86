// Makes an execute command of 50 queries with 400 data items each, and lets it go.

#include <memory>
#include <stdexcept>

#include <libxml/tree.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <pugixml.hpp>

#include <dxmd/queryframework/QFExecuteCommandHelper.h>

#include "Bench.h"
#include "Documents.h"
#include "RawXerces.h"

namespace {

using namespace bench;

std::unique_ptr<QFExecuteCommandHelper> filledCommand() {
  auto command = std::make_unique<QFExecuteCommandHelper>("/model", nullptr);
  for (int i = 0; i < kQueries; ++i) {
    QFQueryHelper* query = command->AddQuery(("Query " + std::to_string(i)).c_str());
    for (const auto& item : itemsUtf8()) query->AddDataItem(item.name.c_str(), item.expression.c_str());
  }
  return command;
}

Work byHelpers() {
  std::shared_ptr<QFExecuteCommandHelper> command = filledCommand();
  return [command] {
    TRNIDOM_Element element;
    command->Make(element);
    keep(&element);
  };
}

// The helper's own work beside its document: filling it, each data item's name made unique.
Work byFilling() {
  return [] { keep(filledCommand().get()); };
}

// The same tree through the wrapper's calls alone.
Work byWrapper() {
  struct Names {
    I18NString command{"command"}, xmlns{"xmlns"}, xmlnsXsi{"xmlns:xsi"}, execute{"execute"}, querySet{"querySet"},
        modelPath{"modelPath"}, reportName{"reportName"}, queries{"queries"}, query{"query"}, name{"name"},
        source{"source"}, model{"model"}, selection{"selection"}, autoSummary{"autoSummary"}, dataItem{"dataItem"},
        expression{"expression"}, queryHints{"queryHints"}, avoidZeroDiv{"avoidZeroDiv"}, value{"value"},
        definitions{"queryResultDefinitions"}, definition{"queryResultDefinition"}, refQuery{"refQuery"},
        edges{"edges"}, edge{"edge"}, edgeGroups{"edgeGroups"}, edgeGroup{"edgeGroup"}, valueSets{"valueSets"},
        valueSet{"valueSet"}, groupBody{"groupBody"}, dataItemRef{"dataItemRef"}, refDataItem{"refDataItem"},
        commandID{"commandID"}, requestID{"requestID"};
    I18NString uri{"urn:dxmd:query-service:api:1"}, xsi{"http://www.w3.org/2001/XMLSchema-instance"}, path{"/model"},
        request{"DXRequest"}, dxCommand{"DXCommand"}, no{"false"}, yes{"true"}, columns{"columns"},
        valueSet1{"valueSet1"}, groupBody1{"groupBody1"};
    std::vector<Item<I18NString>> items;
    std::vector<I18NString> queryNames;
  };
  auto names = std::make_shared<Names>();
  for (const auto& item : itemsUtf8()) names->items.push_back({item.name.c_str(), item.expression.c_str()});
  for (int i = 0; i < kQueries; ++i) names->queryNames.emplace_back(("Query " + std::to_string(i)).c_str());
  return [names] {
    const Names& n = *names;
    TRNIDOM_Document doc =
        TRNIDOM_DOMImplementation::getInstance().createDocument("", "requestDoc", TRNIDOM_DocumentType());
    const auto append = [&](TRNIDOM_Element& parent, const I18NString& name) -> TRNIDOM_Element {
      return parent.appendChild(doc.createElement(name));
    };
    const auto appendText = [&](TRNIDOM_Element& parent, const I18NString& name, const I18NString& text) {
      append(parent, name).appendChild(doc.createTextNode(text));
    };
    TRNIDOM_Element command = doc.createElement(n.command);
    command.setAttribute(n.xmlns, n.uri);
    command.setAttribute(n.xmlnsXsi, n.xsi);
    TRNIDOM_Element execute = append(command, n.execute);
    TRNIDOM_Element querySet = append(execute, n.querySet);
    appendText(querySet, n.modelPath, n.path);
    appendText(querySet, n.reportName, n.request);
    TRNIDOM_Element queries = append(querySet, n.queries);
    for (const I18NString& queryName : n.queryNames) {
      TRNIDOM_Element query = append(queries, n.query);
      query.setAttribute(n.name, queryName);
      TRNIDOM_Element source = append(query, n.source);
      append(source, n.model);
      TRNIDOM_Element selection = append(query, n.selection);
      selection.setAttribute(n.autoSummary, n.no);
      for (const auto& item : n.items) {
        TRNIDOM_Element dataItem = append(selection, n.dataItem);
        dataItem.setAttribute(n.name, item.name);
        appendText(dataItem, n.expression, item.expression);
      }
      TRNIDOM_Element queryHints = append(query, n.queryHints);
      append(queryHints, n.avoidZeroDiv).setAttribute(n.value, n.yes);
    }
    TRNIDOM_Element definitions = append(querySet, n.definitions);
    TRNIDOM_Element definition = append(definitions, n.definition);
    definition.setAttribute(n.name, I18NString("rsd") + n.queryNames.back());
    definition.setAttribute(n.refQuery, n.queryNames.back());
    TRNIDOM_Element edges = append(definition, n.edges);
    TRNIDOM_Element edge = append(edges, n.edge);
    edge.setAttribute(n.name, n.columns);
    TRNIDOM_Element edgeGroups = append(edge, n.edgeGroups);
    TRNIDOM_Element edgeGroup = append(edgeGroups, n.edgeGroup);
    TRNIDOM_Element valueSets = append(edgeGroup, n.valueSets);
    TRNIDOM_Element valueSet = append(valueSets, n.valueSet);
    valueSet.setAttribute(n.name, n.valueSet1);
    TRNIDOM_Element groupBody = append(valueSet, n.groupBody);
    groupBody.setAttribute(n.name, n.groupBody1);
    for (int i = 0; i < kQueries; ++i)
      for (const auto& item : n.items) append(groupBody, n.dataItemRef).setAttribute(n.refDataItem, item.name);
    append(command, n.commandID).setAttribute(n.value, n.dxCommand);
    append(command, n.requestID).setAttribute(n.value, n.request);
    keep(&command);
  };
}

Work byXerces() {
  auto queryNames = std::make_shared<std::vector<std::u16string>>();
  for (int i = 0; i < kQueries; ++i) {
    const std::string name = "Query " + std::to_string(i);
    queryNames->emplace_back(name.begin(), name.end());
  }
  return [queryNames] {
    using namespace bench::raw;
    const Document document = newDocument(u"command");
    xercesc::DOMElement* command = document->getDocumentElement();
    command->setAttribute(u"xmlns", u"urn:dxmd:query-service:api:1");
    command->setAttribute(u"xmlns:xsi", u"http://www.w3.org/2001/XMLSchema-instance");
    xercesc::DOMElement* querySet = append(append(command, u"execute"), u"querySet");
    appendText(querySet, u"modelPath", u"/model");
    appendText(querySet, u"reportName", u"DXRequest");
    xercesc::DOMElement* queries = append(querySet, u"queries");
    for (const std::u16string& queryName : *queryNames) {
      xercesc::DOMElement* query = append(queries, u"query", u"name", queryName.c_str());
      append(append(query, u"source"), u"model");
      xercesc::DOMElement* selection = append(query, u"selection", u"autoSummary", u"false");
      for (const auto& item : itemsUtf16())
        appendText(append(selection, u"dataItem", u"name", item.name.c_str()), u"expression", item.expression.c_str());
      append(append(query, u"queryHints"), u"avoidZeroDiv", u"value", u"true");
    }
    xercesc::DOMElement* definition = append(append(querySet, u"queryResultDefinitions"), u"queryResultDefinition",
                                             u"name", (u"rsd" + queryNames->back()).c_str());
    definition->setAttribute(u"refQuery", queryNames->back().c_str());
    xercesc::DOMElement* edge = append(append(definition, u"edges"), u"edge", u"name", u"columns");
    xercesc::DOMElement* valueSets = append(append(append(edge, u"edgeGroups"), u"edgeGroup"), u"valueSets");
    xercesc::DOMElement* groupBody =
        append(append(valueSets, u"valueSet", u"name", u"valueSet1"), u"groupBody", u"name", u"groupBody1");
    for (int i = 0; i < kQueries; ++i)
      for (const auto& item : itemsUtf16()) append(groupBody, u"dataItemRef", u"refDataItem", item.name.c_str());
    append(command, u"commandID", u"value", u"DXCommand");
    append(command, u"requestID", u"value", u"DXRequest");
    keep(command);
  };
}

Work byLibxml2() {
  return [] {
    const auto text = [](const char* utf8) { return reinterpret_cast<const xmlChar*>(utf8); };
    const auto append = [&](xmlNode* parent, const char* name) {
      return xmlAddChild(parent, xmlNewDocNode(parent->doc, nullptr, text(name), nullptr));
    };
    const auto set = [&](xmlNode* element, const char* name, const char* value) {
      xmlNewProp(element, text(name), text(value));
      return element;
    };
    const auto appendText = [&](xmlNode* parent, const char* name, const char* value) {
      xmlAddChild(append(parent, name), xmlNewDocText(parent->doc, text(value)));
    };
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(xmlNewDoc(text("1.0")), xmlFreeDoc);
    xmlNode* command = xmlNewDocNode(document.get(), nullptr, text("command"), nullptr);
    xmlDocSetRootElement(document.get(), command);
    xmlNewNs(command, text("urn:dxmd:query-service:api:1"), nullptr);
    xmlNewNs(command, text("http://www.w3.org/2001/XMLSchema-instance"), text("xsi"));
    xmlNode* querySet = append(append(command, "execute"), "querySet");
    appendText(querySet, "modelPath", "/model");
    appendText(querySet, "reportName", "DXRequest");
    xmlNode* queries = append(querySet, "queries");
    std::string queryName;
    for (int i = 0; i < kQueries; ++i) {
      queryName = "Query " + std::to_string(i);
      xmlNode* query = set(append(queries, "query"), "name", queryName.c_str());
      append(append(query, "source"), "model");
      xmlNode* selection = set(append(query, "selection"), "autoSummary", "false");
      for (const auto& item : itemsUtf8())
        appendText(set(append(selection, "dataItem"), "name", item.name.c_str()), "expression",
                   item.expression.c_str());
      set(append(append(query, "queryHints"), "avoidZeroDiv"), "value", "true");
    }
    xmlNode* definition = append(append(querySet, "queryResultDefinitions"), "queryResultDefinition");
    set(definition, "name", ("rsd" + queryName).c_str());
    set(definition, "refQuery", queryName.c_str());
    xmlNode* edge = set(append(append(definition, "edges"), "edge"), "name", "columns");
    xmlNode* valueSets = append(append(append(edge, "edgeGroups"), "edgeGroup"), "valueSets");
    xmlNode* groupBody =
        set(append(set(append(valueSets, "valueSet"), "name", "valueSet1"), "groupBody"), "name", "groupBody1");
    for (int i = 0; i < kQueries; ++i)
      for (const auto& item : itemsUtf8()) set(append(groupBody, "dataItemRef"), "refDataItem", item.name.c_str());
    set(append(command, "commandID"), "value", "DXCommand");
    set(append(command, "requestID"), "value", "DXRequest");
    keep(command);
  };
}

Work byPugixml() {
  return [] {
    const auto set = [](pugi::xml_node element, const char* name, const char* value) {
      element.append_attribute(name).set_value(value);
      return element;
    };
    const auto appendText = [](pugi::xml_node parent, const char* name, const char* value) {
      parent.append_child(name).append_child(pugi::node_pcdata).set_value(value);
    };
    pugi::xml_document document;
    pugi::xml_node command = document.append_child("command");
    set(command, "xmlns", "urn:dxmd:query-service:api:1");
    set(command, "xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance");
    pugi::xml_node querySet = command.append_child("execute").append_child("querySet");
    appendText(querySet, "modelPath", "/model");
    appendText(querySet, "reportName", "DXRequest");
    pugi::xml_node queries = querySet.append_child("queries");
    std::string queryName;
    for (int i = 0; i < kQueries; ++i) {
      queryName = "Query " + std::to_string(i);
      pugi::xml_node query = set(queries.append_child("query"), "name", queryName.c_str());
      query.append_child("source").append_child("model");
      pugi::xml_node selection = set(query.append_child("selection"), "autoSummary", "false");
      for (const auto& item : itemsUtf8())
        appendText(set(selection.append_child("dataItem"), "name", item.name.c_str()), "expression",
                   item.expression.c_str());
      set(query.append_child("queryHints").append_child("avoidZeroDiv"), "value", "true");
    }
    pugi::xml_node definition = querySet.append_child("queryResultDefinitions").append_child("queryResultDefinition");
    set(definition, "name", ("rsd" + queryName).c_str());
    set(definition, "refQuery", queryName.c_str());
    pugi::xml_node edge = set(definition.append_child("edges").append_child("edge"), "name", "columns");
    pugi::xml_node valueSets = edge.append_child("edgeGroups").append_child("edgeGroup").append_child("valueSets");
    pugi::xml_node groupBody = set(
        set(valueSets.append_child("valueSet"), "name", "valueSet1").append_child("groupBody"), "name", "groupBody1");
    for (int i = 0; i < kQueries; ++i)
      for (const auto& item : itemsUtf8()) set(groupBody.append_child("dataItemRef"), "refDataItem", item.name.c_str());
    set(command.append_child("commandID"), "value", "DXCommand");
    set(command.append_child("requestID"), "value", "DXRequest");
    keep(&document);
  };
}

const Case cases[] = {
    {"make execute command", "dxmd", byHelpers},    {"make execute command", "wrapper calls", byWrapper},
    {"make execute command", "Xerces-C", byXerces}, {"make execute command", "libxml2", byLibxml2},
    {"make execute command", "pugixml", byPugixml}, {"fill execute command", "dxmd", byFilling}};

}  // namespace
