#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <dxmd/queryengine/VqeCancelQueryHelper.h>
#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>
#include <dxmd/queryengine/VqeGetParametersHelper.h>
#include <dxmd/queryengine/VqeQuerySubjectHelper.h>
#include <dxmd/queryengine/VqeRefineObjectsHelper.h>
#include <dxmd/queryengine/VqeTestConnectionHelper.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/Envelope.h>
#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

namespace {

/// What the kinds of this family that are commands have in common.
Kind command(const char* name, const char* summary, const std::string& notes) {
  Kind kind;
  kind.name = name;
  kind.summary = summary;
  kind.notes = notes;
  kind.roots = {"command"};
  return kind;
}

/// What the kinds of this family that are replies have in common.
Kind reply(const char* name, const char* summary, const char* holding) {
  Kind kind;
  kind.name = name;
  kind.summary = summary;
  kind.roots = {"response"};
  kind.orHolding = {holding};
  return kind;
}

TRNIDOM_Element encodeCancelQuery(JsonObject& json, const KindOptions&) {
  VqeCancelQueryHelper cancel;
  readEnvelope(json, cancel);
  return made(cancel);
}

Kind cancelQueryKind() {
  Kind kind =
      command("cancelQuery", "Command to cancel the running request",
              R"("commandID" and "requestID", the command's own, are "DXCancelCommand" and "DXCancelRequest" unless
given; the request cancelled is always "DXRequest". "connection" is what the kind connection takes.)");
  kind.encode = encodeCancelQuery;
  kind.example = R"({
  "commandID": "Cancel7",
  "requestID": "CancelRequest7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"}
})";
  return kind;
}

TRNIDOM_Element encodeGetParameters(JsonObject& json, const KindOptions&) {
  std::vector<std::pair<I18NString, I18NString>> parameters;
  json.required("parameters").objects([&](JsonObject& parameter) {
    const I18NString name = parameter.required("name").text();
    parameters.emplace_back(name, parameter.required("value").text());
  });
  VqeGetParametersHelper helper;
  helper.SetParameters(parameters);
  return made(helper);
}

Decoded decodeGetParameters(TRNIDOM_Element& root, const KindOptions&) {
  VqeGetParametersHelper helper;
  helper.Take(root);
  Json json = Json::object();
  json["parameters"] = Json::array();
  for (const auto& [name, value] : helper.GetParameters()) {
    Json parameter = Json::object();
    parameter["name"] = name;
    parameter["value"] = value;
    json["parameters"].push_back(std::move(parameter));
  }
  return json;
}

Kind getParametersKind() {
  Kind kind;
  kind.name = "getParameters";
  kind.summary = "List of parameters and their values";
  kind.roots = {"parameters"};
  kind.encode = encodeGetParameters;
  kind.decode = decodeGetParameters;
  kind.roundTrips = true;
  kind.example = R"({
  "parameters": [
    {"name": "Year", "value": "2024"},
    {"name": "Region", "value": ""}
  ]
})";
  return kind;
}

TRNIDOM_Element encodeQuerySubject(JsonObject& json, const KindOptions&) {
  const I18NString modelPath = json.required("modelPath").text();
  TRNIDOM_Element definition = json.required("definition").xml();
  VqeQuerySubjectHelper querySubject(modelPath, definition);
  std::optional<I18NLocale> locale;
  readDXEnvelope(json, querySubject, locale);
  return made(querySubject);
}

Kind querySubjectKind() {
  Kind kind = command("querySubject", "Command to define an ad hoc query subject from SQL",
                      R"("definition" is a text of XML. The type of its first "sql" of type "veltra" becomes "Veltra".

)" + std::string(kDXEnvelopeNotes));
  kind.encode = encodeQuerySubject;
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='2024']",
  "definition": "<dbQuery><sql type=\"veltra\">select * from [Sales].ORDERS</sql></dbQuery>",
  "queryLocale": "en-gb",
  "queryFeedback": ["columnList"],
  "commandID": "QuerySubject7",
  "requestID": "Request7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"}
})";
  return kind;
}

TRNIDOM_Element encodeGetJoinPaths(JsonObject& json, const KindOptions&) {
  VqeGetJoinPathsHelper getJoinPaths(json.required("modelPath").text());
  std::optional<I18NLocale> locale;
  readDXEnvelope(json, getJoinPaths, locale);
  for (const I18NString& expression : json.required("expressions").texts()) getJoinPaths.AddItem(expression);
  return made(getJoinPaths);
}

Kind getJoinPathsKind() {
  Kind kind = command("getJoinPaths", "Command to ask for the join paths between expressions",
                      "Empty texts among \"expressions\" are left out.\n\n" + std::string(kDXEnvelopeNotes));
  kind.encode = encodeGetJoinPaths;
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='2024']",
  "expressions": ["[Sales].[Orders].[Order number]", "[Sales].[Products].[Product name]"],
  "queryLocale": "en-gb",
  "queryFeedback": ["executionPlan"],
  "commandID": "JoinPaths7",
  "requestID": "Request7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"}
})";
  return kind;
}

Decoded decodeJoinPaths(TRNIDOM_Element& root, const KindOptions&) {
  VqeGetJoinPathsHelper getJoinPaths("");
  getJoinPaths.Take(root);
  std::set<I18NString> joins;
  getJoinPaths.GetJoins(joins);
  Json json = Json::object();
  json["pathExists"] = getJoinPaths.PathExists();
  json["joins"] = Json::array();
  for (const I18NString& join : joins) json["joins"].push_back(join);
  return json;
}

Kind joinPathsKind() {
  Kind kind = reply("joinPaths", "Reply to getJoinPaths", "joinPath");
  kind.notes = R"("joins" are those of all join paths, sorted, each once.)";
  kind.decode = decodeJoinPaths;
  kind.example =
      "<response><joinPath><join>[Sales].[Orders_Details]</join><join>[Sales].[Details_Products]</join></joinPath>"
      "</response>";
  return kind;
}

TRNIDOM_Element encodeRefineObjects(JsonObject& json, const KindOptions&) {
  VqeRefineObjectsHelper refine(json.required("modelPath").text());
  std::optional<I18NLocale> locale;
  readDXEnvelope(json, refine, locale);
  const std::vector<I18NString> objectIDs = json.required("objectIDs").texts();
  TRNIDOM_Element element = made(refine);
  for (const I18NString& objectID : objectIDs) refine.addRequestObject(objectID);
  return element;
}

Kind refineObjectsKind() {
  Kind kind = command("refineObjects", "Command to refine a published model for a list of objects", kDXEnvelopeNotes);
  kind.encode = encodeRefineObjects;
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='2024']",
  "objectIDs": ["[Sales].[Orders]", "[Sales].[Products].[Product name]"],
  "queryLocale": "en-gb",
  "queryFeedback": ["tableType"],
  "commandID": "Refine7",
  "requestID": "Request7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"}
})";
  return kind;
}

Decoded decodeRefinedObjects(TRNIDOM_Element& root, const KindOptions&) {
  VqeRefineObjectsHelper refine("");
  refine.Take(root);
  Json json = Json::object();
  json["objectIDs"] = Json::array();
  for (I18NString objectID; refine.getResponseObject(objectID);) json["objectIDs"].push_back(objectID);
  return json;
}

Kind refinedObjectsKind() {
  Kind kind = reply("refinedObjects", "Reply to refineObjects", "response");
  kind.notes = R"(Nothing, not even white space, may stand between the "expression" elements.)";
  kind.decode = decodeRefinedObjects;
  kind.example =
      "<response><expression>[Sales].[Orders]</expression><expression>[Sales].[Products].[Product name]</expression>"
      "</response>";
  return kind;
}

TRNIDOM_Element encodeTestConnection(JsonObject& json, const KindOptions&) {
  const I18NString dataSource = json.required("dataSource").text();
  const I18NString name = json.optional("name").text();
  const I18NString signon = json.optional("signon").text();
  const I18NString username = json.optional("username").text();
  const I18NString password = json.optional("password").text();
  const I18NString connectionString = json.required("connectionString").text();
  const I18NString cubePassword = json.optional("cubePassword").text();
  const I18NString nameSpace = json.optional("namespace").text();
  return made(
      VqeTestConnectionHelper(dataSource, name, signon, username, password, connectionString, cubePassword, nameSpace));
}

Kind testConnectionKind() {
  Kind kind =
      command("testConnection", "Command to test a database connection",
              R"("name" is the connection's, "signon" the sign-on's. What is empty or not given is left out, but for
"dataSource" and "connectionString".)");
  kind.encode = encodeTestConnection;
  kind.example = R"({
  "dataSource": "Orders",
  "name": "Orders test",
  "signon": "Orders sign-on",
  "username": "reader",
  "password": "swordfish",
  "connectionString": "Driver=Example;Server=db.example.com;Pwd=swordfish",
  "cubePassword": "opensesame",
  "namespace": "Staff"
})";
  return kind;
}

}  // namespace

std::vector<Kind> queryEngineKinds() {
  return {cancelQueryKind(), getParametersKind(), querySubjectKind(),   getJoinPathsKind(),
          joinPathsKind(),   refineObjectsKind(), refinedObjectsKind(), testConnectionKind()};
}

}  // namespace dxmd_tool
