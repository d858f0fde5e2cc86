#include <utility>

#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/queryservice/QsDataSourceFaultHelper.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/QueryServiceKinds.h>

namespace dxmd_tool {

namespace {

Json signonJson(const QsDataSourceFaultHelper::SignonInfo& signon) {
  Json json = Json::object();
  json["name"] = signon.name;
  putUnlessEmpty(json, "searchPath", signon.searchPath);
  return json;
}

Json connectionJson(const QsDataSourceFaultHelper::ConnectionInfo& connection) {
  Json json = Json::object();
  json["name"] = connection.name;
  putUnlessEmpty(json, "searchPath", connection.searchPath);
  Json signons = Json::array();
  for (const QsDataSourceFaultHelper::SignonInfo* signon : connection.signons) signons.push_back(signonJson(*signon));
  putUnlessEmpty(json, "signons", std::move(signons));
  return json;
}

Json dataSourceJson(const QsDataSourceFaultHelper::DataSourceInfo& dataSource) {
  Json json = Json::object();
  json["name"] = dataSource.name;
  putUnlessEmpty(json, "type", dataSource.type);
  Json connections = Json::array();
  for (const QsDataSourceFaultHelper::ConnectionInfo* connection : dataSource.connections)
    connections.push_back(connectionJson(*connection));
  putUnlessEmpty(json, "connections", std::move(connections));
  return json;
}

Decoded decodeDataSourceFault(TRNIDOM_Element& root, const KindOptions&) {
  QsDataSourceFaultHelper fault;
  fault.Take(root);
  Json json = Json::object();
  putUnlessEmpty(json, "faultcode", fault.GetFaultCode());
  putUnlessEmpty(json, "faultSubcode", fault.GetFaultSubCode());
  putUnlessEmpty(json, "faultstring", fault.GetFaultString());
  putUnlessEmpty(json, "faultSubstring", fault.GetFaultSubString());
  putUnlessEmpty(json, "faultDataSource", fault.GetFaultDataSourceName());
  if (const auto* connection = fault.GetFaultConnection()) json["faultConnection"] = connectionJson(*connection);
  if (const auto* signon = fault.GetFaultSignon()) json["faultSignon"] = signonJson(*signon);

  Json dataSources = Json::array();
  TRNIDOM_Document scratch =
      TRNIDOM_DOMImplementation::getInstance().createDocument("", "fault", TRNIDOM_DocumentType());
  for (const TRNIDOM_Node& dataSource : root.getElementsByTagName("dataSource")) {
    const TRNIDOM_Element name = TRNIDOM_Helper::findFirstElement(dataSource, "name");
    if (name.isNull()) continue;
    // The reader goes through all data sources for the one it is asked for, and describes those of one name as one. A
    // fault with this one alone is read at once and gives this one.
    TRNIDOM_Element alone = scratch.createElement("fault");
    alone.appendChild(scratch.importNode(dataSource, true));
    fault.Take(alone);
    QsDataSourceFaultHelper::DataSourceInfo info;
    fault.GetDataSourceInfo(name.getAttribute("value"), info);
    dataSources.push_back(dataSourceJson(info));
  }
  putUnlessEmpty(json, "dataSources", std::move(dataSources));
  return json;
}

}  // namespace

Kind dataSourceFaultKind() {
  Kind kind;
  kind.name = "dataSourceFault";
  kind.summary = "Fault that the query service reports about a data source";
  kind.notes =
      R"("searchPath" is a connection's connection string where the fault gives one. Data sources without
a name are left out.)";
  kind.roots = {"fault"};
  kind.orHolding = {"faultcode", "faultstring", "faultDataSource", "faultConnection", "faultSignon", "dataSource"};
  kind.decode = decodeDataSourceFault;
  kind.example = R"(<fault>
  <faultcode>Server</faultcode>
  <faultSubcode>DS-17</faultSubcode>
  <faultstring>The data source cannot be reached.</faultstring>
  <faultSubstring>Sign-on refused</faultSubstring>
  <faultDataSource value="Orders"/>
  <faultConnection>
    <name value="Orders test"/>
    <searchPath value="/content/dataSource[@name='Orders']"/>
    <signon><name value="reader"/></signon>
  </faultConnection>
  <faultSignon><name value="reader"/><searchPath value="signon[@name='reader']"/></faultSignon>
  <dataSource>
    <name value="Orders"/>
    <type value="OL"/>
    <connection>
      <name value="Orders test"/>
      <connectionString value="Driver=Example;Server=db.example.com;Pwd=swordfish"/>
    </connection>
  </dataSource>
</fault>)";
  return kind;
}

}  // namespace dxmd_tool
