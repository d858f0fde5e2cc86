#include <string>
#include <vector>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/materialize/DXMaterializeRequestHelper.h>
#include <dxmd/materialize/DXMaterializeResponseHelper.h>

#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

namespace {

using Request = DXMaterializeRequestHelper;
using TargetDataSource = DXMaterializeRequestHelper::TargetDataSource;

// A received request names each task by a text of its own, which the name it is written by does not tell.
const EnumTable<Request::ETasks> kTasks{
    Request::kTaskUnknown,
    {"unknown", "genLoadDataFromFile", "loadDataFromFile", "materializeQuerySubject", "materializeResultSet"}};
const EnumTable<Request::EParameters> kParameters{Request::kParamDataFilePath, Request::kParamObjectID,
                                                  &Request::GetParameterName};

struct Field {
  const char* key;
  I18NString* TargetDataSource::*text;
};

constexpr Field kFields[] = {
    {"type", &TargetDataSource::type},         {"connectionString", &TargetDataSource::connectionString},
    {"database", &TargetDataSource::database}, {"username", &TargetDataSource::userName},
    {"password", &TargetDataSource::password}, {"SSOTicket", &TargetDataSource::ssoTicket},
};

void readTargetDataSource(JsonObject& json, Request& request) {
  for (const Field& field : kFields) {
    const JsonValue value = json.optional(field.key);
    if (!value) continue;
    I18NString text = value.text();
    TargetDataSource source;
    source.*field.text = &text;
    request.SetTargetDataSource(source);
  }
}

TRNIDOM_Element encodeRequest(JsonObject& json, const KindOptions&) {
  Request request;
  json.optional("tasks").each([&](const JsonValue& task) { request.AddTask(task.enumerator(kTasks)); });
  json.optional("targetDataSource").object([&](JsonObject& source) { readTargetDataSource(source, request); });
  json.optional("parameters").objects([&](JsonObject& parameter) {
    const Request::EParameters name = parameter.required("name").enumerator(kParameters);
    request.AddParameter(name, parameter.required("value").text());
  });
  request.SetResultSet(json.optional("resultSet").xml());
  return made(request);
}

Decoded decodeRequest(TRNIDOM_Element& root, const KindOptions&) {
  Request request;
  request.Take(root);
  Json json = Json::object();
  Json tasks = Json::array();
  for (const Request::ETasks task : request.GetTasks()) tasks.push_back(kTasks.text(task));
  putUnlessEmpty(json, "tasks", std::move(tasks));

  Json source = Json::object();
  const TargetDataSource received = request.GetTargetDataSourceInfo();
  for (const Field& field : kFields)
    if (const I18NString* text = received.*field.text) putUnlessEmpty(source, field.key, *text);
  // The helper tells an absent type as an empty one.
  if (TRNIDOM_Helper::findFirstElement(root, "targetDataSource").hasAttribute("type")) source["type"] = *received.type;
  putUnlessEmpty(json, "targetDataSource", std::move(source));

  Json parameters = Json::array();
  for (const Request::EParameters name : kParameters.values()) {
    I18NString value;
    if (request.GetParameter(name, value))
      parameters.push_back(Json{{"name", kParameters.text(name)}, {"value", value}});
  }
  putUnlessEmpty(json, "parameters", std::move(parameters));

  if (const TRNIDOM_Element resultSet = request.GetResultSet(); !resultSet.isNull())
    json["resultSet"] = xmlText(resultSet);
  return json;
}

Kind materializeRequest() {
  Kind kind;
  kind.name = "materializeRequest";
  kind.summary = "Request to load a data file or to materialise data into a target data source";
  kind.notes = R"("resultSet" is a text of XML. Each parameter has one value, the last one given.

The materialise tasks are written as "genLoadDataFromFile", as the service expects, and so decode as
that; received under their own names they decode as themselves.)";
  kind.roots = {"materializeRequest"};
  kind.encode = encodeRequest;
  kind.decode = decodeRequest;
  kind.roundTrips = true;
  kind.example = R"({
  "tasks": ["genLoadDataFromFile", "loadDataFromFile"],
  "targetDataSource": {
    "type": "OR",
    "connectionString": "Data Source=ora1;Pooling=true",
    "database": "sales",
    "username": "loader",
    "password": "secret",
    "SSOTicket": "5f3c"
  },
  "parameters": [
    {"name": "dataFilePath", "value": "/data/sales.csv"},
    {"name": "tableName", "value": "SALES"},
    {"name": "columnDelimiter", "value": ";"},
    {"name": "rowDelimiter", "value": "\n"},
    {"name": "dataEncoding", "value": "UTF-8"},
    {"name": "objectID", "value": "[m].[sales]"}
  ],
  "resultSet": "<query name=\"Q1\"/>"
})";
  return kind;
}

TRNIDOM_Element encodeResponse(JsonObject&, const KindOptions&) {
  return made(DXMaterializeResponseHelper());
}

Decoded decodeResponse(TRNIDOM_Element& root, const KindOptions&) {
  DXMaterializeResponseHelper response;
  response.Take(root);
  Json json = Json::object();
  for (const Request::ETasks task : {Request::kTaskGenLoadDataFromFile, Request::kTaskLoadDataFromFile}) {
    I18NString answer;
    if (response.GetResponse(task, answer)) json[Request::GetTaskName(task).toUtf8()] = answer;
  }
  return json;
}

Kind materializeResponse() {
  Kind kind;
  kind.name = "materializeResponse";
  kind.summary = "Answers to the tasks of a materializeRequest";
  kind.notes = R"(Decoded: the answer to each task under its name, the materialise tasks' under "genLoadDataFromFile".
Encoded it is always empty, from {}.)";
  kind.roots = {"materializeResponse"};
  kind.encode = encodeResponse;
  kind.decode = decodeResponse;
  kind.roundTrips = true;
  kind.example = "{}";
  return kind;
}

}  // namespace

std::vector<Kind> materializeKinds() {
  return {materializeRequest(), materializeResponse()};
}

}  // namespace dxmd_tool
