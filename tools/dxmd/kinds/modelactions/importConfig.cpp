#include <vector>

#include <dxmd/modelactions/DXActionHelperImportConfig.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

using ImportConfigHelper = DXActionHelperImportConfig;

static void shape(Shape& s, ImportConfigHelper::ConnectionItem& item) {
  s.required("name", item.name, "The parameter's name");
  s.shown("nameInRequest", item.nameInRequest, "Its name in requests");
}

static void shape(Shape& s, ImportConfigHelper::ConfigItem& item) {
  s.required("name", item.name, "The capability's name");
  s.shown("value", item.value, "What it is for this source");
}

namespace {

struct Connection {
  I18NString provider;
  std::vector<ImportConfigHelper::ConnectionItem> items;
};

void shape(Shape& s, Connection& connection) {
  s.optional("provider", connection.provider, "The provider of the connection");
  s.optional("items", connection.items, "The parameters that a connection takes");
}

struct ImportConfig {
  I18NString queryType;
  I18NString pluginName;
  I18NString interfaceType;
  Connection connection;
  std::vector<ImportConfigHelper::ConfigItem> capabilities;
};

void shape(Shape& s, ImportConfig& config) {
  s.optional("queryType", config.queryType, "The type of queries");
  s.optional("pluginName", config.pluginName, "The plug-in that imports");
  s.optional("interfaceType", config.interfaceType, "The type of its interface");
  s.optional("connection", config.connection, "How the source is connected to; of several the first is read");
  s.optional("capabilities", config.capabilities, "What the source can do; of several lists the first is read");
}

void makeConnection(const TRNIDOM_Element& source, const Connection& connection) {
  if (connection.provider.empty() && connection.items.empty()) return;
  const TRNIDOM_Element element = appendElement(source, "connection");
  setUnlessEmpty(element, "provider", connection.provider);
  for (const ImportConfigHelper::ConnectionItem& each : connection.items)
    appendElement(element, "item", "name", each.name).setAttribute("nameInRequest", each.nameInRequest);
}

void makeCapabilities(const TRNIDOM_Element& source, const std::vector<ImportConfigHelper::ConfigItem>& capabilities) {
  if (capabilities.empty()) return;
  const TRNIDOM_Element element = appendElement(source, "capabilities");
  for (const ImportConfigHelper::ConfigItem& each : capabilities)
    appendElement(element, "item", "name", each.name).setAttribute("value", each.value);
}

TRNIDOM_Element make(const ImportConfig& config) {
  TRNIDOM_Element source = newElement("source");
  setUnlessEmpty(source, "queryType", config.queryType);
  setUnlessEmpty(source, "pluginName", config.pluginName);
  setUnlessEmpty(source, "interfaceType", config.interfaceType);
  makeConnection(source, config.connection);
  makeCapabilities(source, config.capabilities);
  return source;
}

ImportConfig take(TRNIDOM_Element& root) {
  ImportConfigHelper helper;
  helper.Take(root);
  ImportConfig config;
  helper.getQueryType(config.queryType);
  helper.getPluginName(config.pluginName);
  helper.getInterfaceType(config.interfaceType);
  helper.getConnectionProvider(config.connection.provider);
  helper.getConnectionItems(config.connection.items);
  helper.getCapabilities(config.capabilities);
  return config;
}

}  // namespace

Kind kinds::importConfig() {
  Kind kind = kindOf(make, take);
  kind.summary = "The configuration of a metadata import source";
  kind.purpose = R"(Describes a source that metadata is imported from: its plug-in, the parameters of its connection
and what it can do.)";
  kind.helper = "DXActionHelperImportConfig";
  kind.writes = Does::kTool;
  kind.roots = {"source"};
  kind.example = R"({
  "queryType": "relational",
  "pluginName": "dbimport",
  "interfaceType": "native",
  "connection": {
    "provider": "odbc",
    "items": [{"name": "server", "nameInRequest": "DSN"}]
  },
  "capabilities": [{"name": "sort", "value": "true"}]
})";
  return kind;
}

}  // namespace dxmd_tool
