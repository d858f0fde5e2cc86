#include "ModelActionsKinds.h"

#include <memory>

#include <dxmd/modelactions/DXActionHelperDBConnection.h>
#include <dxmd/modelactions/DXActionHelperDBConnections.h>
#include <dxmd/modelactions/DXActionHelperImportConfig.h>
#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>
#include <dxmd/modelactions/DXExternalizeReportHelper.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

namespace {

using Retarget = DXActionHelperRetargetObjectReferences;

TRNIDOM_Element encodeDBConnections(JsonObject& json, const KindOptions&) {
  DXActionHelperDBConnections connections;
  json.required("dbConnections").objects([&](JsonObject& object) {
    DXActionHelperDBConnection connection;
    connection.setDatabase(object.required("database").text());
    connection.setCatalog(object.optional("catalog").text());
    connection.setSchema(object.optional("schema").text());
    connection.setDbType(object.optional("dbType").text());
    connection.setConnectionString(object.required("connectionString").text());
    connection.setUserName(object.optional("userName").text());
    connection.setPassword(object.optional("password").text());
    TRNIDOM_Element element = made(connection);
    connections.addDom(element);
  });
  return made(connections);
}

Decoded decodeDBConnections(TRNIDOM_Element& root, const KindOptions&) {
  DXActionHelperDBConnections connections;
  connections.Take(root);
  Json list = Json::array();
  for (TRNIDOM_Element& element : connections.getDomVector()) {
    DXActionHelperDBConnection connection;
    connection.Take(element);
    Json object = Json::object();
    object["database"] = connection.getDatabase();
    putUnlessEmpty(object, "catalog", connection.getCatalog());
    putUnlessEmpty(object, "schema", connection.getSchema());
    putUnlessEmpty(object, "dbType", connection.getDbType());
    object["connectionString"] = connection.getConnectionString();
    putUnlessEmpty(object, "userName", connection.getUserName());
    putUnlessEmpty(object, "password", connection.getPassword());
    list.push_back(std::move(object));
  }
  Json json = Json::object();
  json["dbConnections"] = std::move(list);
  return json;
}

Decoded decodeImportConfig(TRNIDOM_Element& root, const KindOptions&) {
  DXActionHelperImportConfig config;
  config.Take(root);
  Json json = Json::object();
  I18NString text;
  if (config.getQueryType(text)) json["queryType"] = text;
  if (config.getPluginName(text)) json["pluginName"] = text;
  if (config.getInterfaceType(text)) json["interfaceType"] = text;

  Json connection = Json::object();
  if (config.getConnectionProvider(text)) connection["provider"] = text;
  std::vector<DXActionHelperImportConfig::ConnectionItem> items;
  config.getConnectionItems(items);
  for (const auto& item : items)
    connection["items"].push_back(Json{{"name", item.name}, {"nameInRequest", item.nameInRequest}});
  putUnlessEmpty(json, "connection", std::move(connection));

  std::vector<DXActionHelperImportConfig::ConfigItem> capabilities;
  config.getCapabilities(capabilities);
  for (const auto& item : capabilities)
    json["capabilities"].push_back(Json{{"name", item.name}, {"value", item.value}});
  return json;
}

TRNIDOM_Element encodeRetarget(JsonObject& json, const KindOptions&) {
  Retarget retarget;
  TRNIDOM_Element element = made(retarget);
  json.required("entries").objects([&](JsonObject& entry) {
    const I18NString currentRefValue = entry.required("currentRefValue").text();
    const JsonValue updateInfos = entry.required("updateInfos");
    if (updateInfos.isList() && updateInfos.size() == 0) updateInfos.fail("must not be empty");
    updateInfos.objects([&](JsonObject& object) {
      Retarget::UpdateInfo updateInfo;
      updateInfo.m_newRefValue = object.required("newRefValue").text();
      object.optional("itemsToUpdate").objects([&](JsonObject& item) {
        const I18NString itemID = item.required("itemID").text();
        updateInfo.m_itemsToUpdate.push_back({itemID, item.required("processDescendants").boolean() ? 1 : 0});
      });
      retarget.addEntry(currentRefValue, updateInfo);
    });
  });
  return element;
}

Json toJson(const Retarget::UpdateInfo& updateInfo) {
  Json items = Json::array();
  for (const Retarget::ItemToUpdate& item : updateInfo.m_itemsToUpdate)
    items.push_back(Json{{"itemID", item.m_itemID}, {"processDescendants", item.m_processDescendants == 1}});
  Json json = Json::object();
  json["newRefValue"] = updateInfo.m_newRefValue;
  putUnlessEmpty(json, "itemsToUpdate", std::move(items));
  return json;
}

Decoded decodeRetarget(TRNIDOM_Element& root, const KindOptions&) {
  Retarget retarget;
  retarget.Take(root);
  Json entries = Json::array();
  for (const Retarget::Entry& entry : retarget.getEntries()) {
    Json updateInfos = Json::array();
    for (const Retarget::UpdateInfo& updateInfo : entry.m_updateInfoList) updateInfos.push_back(toJson(updateInfo));
    entries.push_back(Json{{"currentRefValue", entry.m_currentRefValue}, {"updateInfos", std::move(updateInfos)}});
  }
  Json json = Json::object();
  json["entries"] = std::move(entries);
  return json;
}

TRNIDOM_Element encodeExternalizeReport(JsonObject& json, const KindOptions&) {
  DXExternalizeReportHelper report;
  json.required("entries").objects([&](JsonObject& object) {
    auto entry = std::make_unique<DXExternalizeReportHelper::Entry>();
    entry->objectID = object.required("objectID").text();
    entry->method = object.required("method").text();
    entry->path = object.optional("path").text();
    entry->error = object.optional("error").text();
    report.AddEntry(entry.release());
  });
  return made(report);
}

Decoded decodeExternalizeReport(TRNIDOM_Element& root, const KindOptions&) {
  DXExternalizeReportHelper report;
  report.Take(root);
  Json entries = Json::array();
  for (const DXExternalizeReportHelper::Entry* entry : report.GetEntries()) {
    Json object = Json::object();
    object["objectID"] = entry->objectID;
    object["method"] = entry->method;
    putUnlessEmpty(object, "path", entry->path);
    entries.push_back(std::move(object));
  }
  Json json = Json::object();
  json["entries"] = std::move(entries);
  return json;
}

Kind dbConnectionsKind() {
  Kind kind;
  kind.name = "dbConnections";
  kind.summary = "The database connections of a data source";
  kind.notes = R"("database" and "connectionString" must not be empty, and there must be a connection.
Reading needs a "dbType" for each connection, writing does not.)";
  kind.roots = {"dbConnections"};
  kind.encode = encodeDBConnections;
  kind.decode = decodeDBConnections;
  kind.roundTrips = true;
  kind.example = R"({
  "dbConnections": [
    {
      "database": "sales",
      "catalog": "warehouse",
      "schema": "facts",
      "dbType": "OD",
      "connectionString": "DSN=sales;UID=ada;PWD=correct horse",
      "userName": "ada",
      "password": "correct horse"
    },
    {"database": "stock", "dbType": "OD", "connectionString": "DSN=stock"}
  ]
})";
  return kind;
}

Kind importConfigKind() {
  Kind kind;
  kind.name = "importConfig";
  kind.summary = "The configuration of a metadata import source";
  kind.notes = R"(Of several "connection" or "capabilities" elements the first counts.)";
  kind.roots = {"source"};
  kind.decode = decodeImportConfig;
  kind.example = R"(<source queryType="relational" pluginName="dbimport" interfaceType="native">)"
                 R"(<connection provider="odbc"><item name="server" nameInRequest="DSN"/></connection>)"
                 R"(<capabilities><item name="sort" value="true"/></capabilities></source>)";
  return kind;
}

Kind retargetKind() {
  Kind kind;
  kind.name = "retargetObjectReferences";
  kind.summary = "Object references to be pointed at new targets";
  kind.notes = R"(Entries of one "currentRefValue" are written as one, so are their "updateInfos" of one "newRefValue"
and the items of one "itemID", whose "processDescendants" is then that of the last.
Reading needs an entry, and a "newRefValue" that is not empty; writing does not.)";
  kind.roots = {"retargetObjectReferences"};
  kind.encode = encodeRetarget;
  kind.decode = decodeRetarget;
  kind.roundTrips = true;
  kind.example = R"({
  "entries": [
    {
      "currentRefValue": "[Sales].[Region]",
      "updateInfos": [
        {
          "newRefValue": "[Geography].[Region]",
          "itemsToUpdate": [
            {"itemID": "[Reports].[By region]", "processDescendants": true},
            {"itemID": "[Reports].[Totals]", "processDescendants": false}
          ]
        }
      ]
    }
  ]
})";
  return kind;
}

Kind externalizeReportKind() {
  Kind kind;
  kind.name = "externalizeReport";
  kind.summary = "How each model object was externalised, and to which file";
  kind.notes = R"(Reading takes the path from the last "file" element of an entry, while it is written as an
attribute, and reads no error: what was encoded decodes without "path" and "error".)";
  kind.roots = {"externalizeReport"};
  kind.encode = encodeExternalizeReport;
  kind.decode = decodeExternalizeReport;
  kind.example = R"({
  "entries": [
    {"objectID": "[Sales].[Region]", "method": "tab", "path": "/data/region.txt", "error": ""},
    {"objectID": "[Sales].[Fact]", "method": "csv", "path": "", "error": "disk full"}
  ]
})";
  return kind;
}

}  // namespace

std::vector<Kind> modelActionsKinds() {
  return {dbConnectionsKind(), definitionFileKind(), objectAccessKind(),
          importConfigKind(),  retargetKind(),       externalizeReportKind()};
}

}  // namespace dxmd_tool
