#include <optional>
#include <vector>

#include <dxmd/materialize/DXMaterializeRequestHelper.h>
#include <tools/dxmd/Kind.h>
#include <trnidom/TRNIDOM_Helper.h>

namespace dxmd_tool {

namespace {

using Helper = DXMaterializeRequestHelper;

// A received request names each task by a text of its own, which the name it is written by does not tell.
const EnumTable<Helper::ETasks> kTasks{
    Helper::kTaskUnknown,
    {"unknown", "genLoadDataFromFile", "loadDataFromFile", "materializeQuerySubject", "materializeResultSet"}};
const EnumTable<Helper::EParameters> kParameters{&Helper::GetParameterName};

struct TargetDataSource {
  std::optional<I18NString> type;
  std::optional<I18NString> connectionString;
  std::optional<I18NString> database;
  std::optional<I18NString> username;
  std::optional<I18NString> password;
  std::optional<I18NString> ssoTicket;
};

void shape(Shape& s, TargetDataSource& target) {
  const KeyFact emptyIsNone = emptyIsLost("An empty text is written, but not read");
  s.optional("type", target.type, "Its type, such as OR");
  s.optional("connectionString", target.connectionString, "How to connect to it", emptyIsNone);
  s.optional("database", target.database, "The database in it", emptyIsNone);
  s.optional("username", target.username, "The user who signs on to it", emptyIsNone);
  s.optional("password", target.password, "The user's password, written as plain text", emptyIsNone);
  s.optional("SSOTicket", target.ssoTicket, "The ticket of a user who has signed on, written as plain text",
             emptyIsNone);
}

/// The text and where the library has it.
struct Field {
  std::optional<I18NString> TargetDataSource::*text;
  I18NString* Helper::TargetDataSource::*held;
};
constexpr Field kFields[] = {
    {&TargetDataSource::type, &Helper::TargetDataSource::type},
    {&TargetDataSource::connectionString, &Helper::TargetDataSource::connectionString},
    {&TargetDataSource::database, &Helper::TargetDataSource::database},
    {&TargetDataSource::username, &Helper::TargetDataSource::userName},
    {&TargetDataSource::password, &Helper::TargetDataSource::password},
    {&TargetDataSource::ssoTicket, &Helper::TargetDataSource::ssoTicket},
};

struct Parameter {
  Helper::EParameters name{};
  I18NString value;
};

void shape(Shape& s, Parameter& parameter) {
  s.required("name", parameter.name, "What the value is for", kParameters);
  s.required("value", parameter.value, "The value");
}

struct MaterializeRequest {
  std::vector<Helper::ETasks> tasks;
  TargetDataSource targetDataSource;
  std::vector<Parameter> parameters;
  TRNIDOM_Element resultSet;
};

void shape(Shape& s, MaterializeRequest& request) {
  s.optional("tasks", request.tasks, "What to do", kTasks, repeatedIsLost("A task named twice is written once"),
             choiceIsLost("\"materializeQuerySubject\" decodes as \"genLoadDataFromFile\"", "materializeQuerySubject"),
             choiceIsLost("\"materializeResultSet\" decodes as \"genLoadDataFromFile\"", "materializeResultSet"));
  s.optional("targetDataSource", request.targetDataSource, "Where to load to");
  s.optional("parameters", request.parameters, "What to load, and how",
             repeatedIsLost("Of the values of one parameter the last is written", "name"),
             orderIsLost("Parameters are written in order of their names as listed here", "name"));
  s.optional("resultSet", request.resultSet, "The result set to materialise");
}

TRNIDOM_Element make(const MaterializeRequest& request) {
  Helper helper;
  for (const Helper::ETasks task : request.tasks) helper.AddTask(task);
  TargetDataSource texts = request.targetDataSource;  // the helper's fields point to texts that are not const
  Helper::TargetDataSource target;
  for (const Field& field : kFields)
    if (auto& text = texts.*field.text) target.*field.held = &*text;
  helper.SetTargetDataSource(target);
  for (const Parameter& parameter : request.parameters) helper.AddParameter(parameter.name, parameter.value);
  helper.SetResultSet(request.resultSet);
  return made(helper);
}

MaterializeRequest take(TRNIDOM_Element& root) {
  Helper helper;
  helper.Take(root);
  MaterializeRequest request;
  request.tasks = helper.GetTasks();
  const Helper::TargetDataSource target = helper.GetTargetDataSourceInfo();
  for (const Field& field : kFields)
    if (const I18NString* text = target.*field.held) request.targetDataSource.*field.text = *text;
  // The helper gives an absent type as an empty one.
  if (!TRNIDOM_Helper::findFirstElement(root, "targetDataSource").hasAttribute("type"))
    request.targetDataSource.type.reset();
  for (const Helper::EParameters name : kParameters.values())
    if (I18NString value; helper.GetParameter(name, value)) request.parameters.push_back({name, value});
  request.resultSet = helper.GetResultSet();
  return request;
}

}  // namespace

Kind kinds::materializeRequest() {
  Kind kind = kindOf(make, take);
  kind.summary = "Request to load a data file or to materialise data into a target data source";
  kind.purpose = R"(Asks the service to load a data file into a table, to generate such a load, or to materialise a
query subject or a result set in a target data source.)";
  kind.notes = R"(The materialise tasks are written as "genLoadDataFromFile", as the service expects; received under
their own names they decode as themselves. The parts of a received request are found at any depth.)";
  kind.helper = "DXMaterializeRequestHelper";
  kind.reply = "materializeResponse";
  kind.roots = {"materializeRequest"};
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

}  // namespace dxmd_tool
