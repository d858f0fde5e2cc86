#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <dxmd/queryframework/QFResponseDomHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/Table.h>
#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

static void shape(Shape& s, QFResponseDomHelper::DataSource& source) {
  s.optional("connection", source.connection, "Its connection string");
  s.optional("catalog", source.catalog, "The catalog used");
  s.optional("schema", source.schema, "The schema used");
  s.optional("modelDSName", source.modelDSName, "Its name in the model");
}

namespace {

using Response = QFResponseDomHelper;
using Columns = std::vector<std::map<Response::EColumnProp, I18NString>>;

constexpr const char* kRows = "rows";

struct ColumnKey {
  Response::EColumnProp property;
  const char* key;  ///< also the attribute
  const char* meaning;
};
constexpr ColumnKey kColumnKeys[] = {
    {Response::kColumnPropName, "name", "The column's name"},
    {Response::kColumnPropSqlName, "sqlName", "Its name in the database"},
    {Response::kColumnPropType, "type", "The type of its values"},
    {Response::kColumnPropScale, "scale", "How many of their digits stand behind the point"},
    {Response::kColumnPropLength, "length", "How long they may be"},
    {Response::kColumnPropPrecision, "precision", "How many digits they have"},
    {Response::kColumnPropNullsAllowed, "nullsAllowed", "Whether there may be none, as true or false"},
    {Response::kColumnPropCollationSequenceName, "collationSequenceName", "The collation that they are sorted by"},
    {Response::kColumnPropCollationSequenceLevel, "collationSequenceLevel", "The level of that collation"},
    {Response::kColumnPropOriginalCollationSequenceName, "originalCollationSequenceName",
     "The collation in the database"},
    {Response::kColumnPropOriginalEncodingName, "originalEncodingName", "The encoding in the database"},
};

struct QueryFeedback {
  std::map<QFExecuteCommandHelper::EQueryFeedback, I18NString> texts;
};

void shape(Shape& s, QueryFeedback& feedback) {
  for (const auto kind : kQueryFeedbacks.values())
    s.optional(kQueryFeedbacks.text(kind).toUtf8(), feedback.texts[kind], "The text reported");
}

struct Column {
  std::map<Response::EColumnProp, I18NString> properties;
};

void shape(Shape& s, Column& column) {
  for (const ColumnKey& known : kColumnKeys) s.optional(known.key, column.properties[known.property], known.meaning);
}

/// All but the rows, which may be millions and are read and written one by one.
struct Reply {
  QueryFeedback queryFeedback;
  std::vector<Response::DataSource> dataSources;
  std::vector<Column> columnList;
};

void shape(Shape& s, Reply& reply) {
  s.optional("queryFeedback", reply.queryFeedback, "What was reported, for each kind of feedback");
  s.optional("dataSources", reply.dataSources, "The connections used");
  s.optional("columnList", reply.columnList, "The columns");
  s.byHand<std::vector<std::vector<I18NString>>>(kRows, "The rows, each a list of the values of its columns");
}

// Writing

void makeFeedback(TRNIDOM_Element& response, const Reply& reply) {
  TRNIDOM_Element result;
  const auto parent = [&]() -> TRNIDOM_Element& {
    if (result.isNull()) result = appendElement(response, "queryFeedbackResult");
    return result;
  };
  for (const auto& [kind, text] : reply.queryFeedback.texts)
    if (!text.empty()) appendTextElement(parent(), "property", text).setAttribute("name", kQueryFeedbacks.text(kind));
  for (const Response::DataSource& source : reply.dataSources) {
    const TRNIDOM_Element connection = appendElement(parent(), "connection");
    setUnlessEmpty(connection, "value", source.connection);
    setUnlessEmpty(connection, "catalog", source.catalog);
    setUnlessEmpty(connection, "schema", source.schema);
    setUnlessEmpty(connection, "modelDSName", source.modelDSName);
  }
}

void makeColumns(TRNIDOM_Element& response, const std::vector<Column>& columns) {
  if (columns.empty()) return;
  const TRNIDOM_Element columnList = appendElement(response, "columnList");
  for (const Column& column : columns) {
    const TRNIDOM_Element element = appendElement(columnList, "column");
    for (const ColumnKey& known : kColumnKeys) setUnlessEmpty(element, known.key, column.properties.at(known.property));
  }
}

TRNIDOM_Element encodeReply(JsonObject& json, const KindOptions&) {
  Reply reply;
  readRecord(json, reply);
  TRNIDOM_Element response = newElement("response");
  makeFeedback(response, reply);
  makeColumns(response, reply.columnList);
  const TRNIDOM_Element resultData = appendElement(response, "resultData");
  json.optional(kRows).each([&](const JsonValue& values) {
    const TRNIDOM_Element row = appendElement(resultData, "row");
    values.each([&](const JsonValue& value) { appendElement(row, "value", "v", value.text()); });
  });
  return response;
}

// Reading

template <typename Action>
void forEachRow(const Response& response, const Action& action) {
  std::vector<I18NString> values;
  for (TRNIDOM_Element row = response.GetFirstResultSetRow(); !row.isNull(); row = response.GetNextResultSetRow(row)) {
    values.clear();
    response.GetResultSetRowValues(row, values);
    action(values);
  }
}

std::string rowTable(const Response& response, const Columns& columns) {
  std::vector<std::string> header;
  for (const auto& column : columns) header.push_back(column.at(Response::kColumnPropName).toUtf8());
  Table table(std::move(header));
  forEachRow(response, [&](const std::vector<I18NString>& values) {
    std::vector<std::string> cells;
    cells.reserve(values.size());
    for (const I18NString& value : values) cells.push_back(value.toUtf8());
    table.addRow(std::move(cells));
  });
  return table.text();
}

Decoded decodeReply(TRNIDOM_Element& root, const KindOptions& options) {
  Response response;
  response.Take(root);
  Columns columns;
  response.GetColumnList(columns);
  if (options.value("--format") == "table") return rowTable(response, columns);

  Reply reply;
  for (const auto kind : kQueryFeedbacks.values()) response.GetQueryFeedback(kind, reply.queryFeedback.texts[kind]);
  response.GetResponseDataSources(reply.dataSources);
  for (auto& properties : columns) reply.columnList.push_back({std::move(properties)});
  Decoded decoded = decodedRecord(reply);
  Json& rows = (*decoded.json())[kRows] = Json::array();
  forEachRow(response, [&](const std::vector<I18NString>& values) { rows.push_back(values); });
  return decoded;
}

}  // namespace

Kind kinds::response() {
  Kind kind;
  kind.describe = [] { return describe<Reply>(); };
  kind.encode = encodeReply;
  kind.decode = decodeReply;
  kind.summary = "Reply to an execute command: feedback, data sources, columns and rows";
  kind.notes = R"(With --format table the rows alone print, under the names of the columns.
The parts are found at any depth. Between the columns no white space may stand.)";
  kind.helper = "QFResponseDomHelper";
  kind.writes = Does::kTool;
  kind.roots = {"response"};
  kind.orHolding = {"queryFeedbackResult", "columnList", "resultData"};
  kind.options = {
      {KindOption::kDecode, "--format", "json|table", "Print JSON, or the rows as a table", {"json", "table"}}};
  kind.example = R"({
  "queryFeedback": {
    "nativeCommandText": "select NAME, REVENUE from SALES",
    "VeltraCommandText": "select [Sales].[Name], [Sales].[Revenue]",
    "connections": "warehouse",
    "columnList": "NAME, REVENUE",
    "executionPlan": "scan SALES",
    "tableType": "relational"
  },
  "dataSources": [
    {
      "connection": "UID=sales;PWD=secret;DB=warehouse",
      "catalog": "warehouse",
      "schema": "dbo",
      "modelDSName": "Sales"
    }
  ],
  "columnList": [
    {
      "name": "Region",
      "sqlName": "NAME",
      "type": "nVarChar",
      "length": "40",
      "nullsAllowed": "false",
      "collationSequenceName": "en",
      "collationSequenceLevel": "1",
      "originalCollationSequenceName": "en_US",
      "originalEncodingName": "utf-8"
    },
    {"name": "Revenue", "sqlName": "REVENUE", "type": "decimal", "scale": "2", "precision": "18", "nullsAllowed": "true"}
  ],
  "rows": [
    ["North", "1200.50"],
    ["South", ""]
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
