#include <dxmd/queryframework/QFResponseDomHelper.h>
#include <tools/dxmd/Table.h>
#include <tools/dxmd/kinds/Envelope.h>
#include <tools/dxmd/kinds/QueryFrameworkKinds.h>

namespace dxmd_tool {

namespace {

using Response = QFResponseDomHelper;
using Columns = std::vector<std::map<Response::EColumnProp, I18NString>>;

struct ColumnKey {
  Response::EColumnProp property;
  const char* key;
};
constexpr ColumnKey kColumnKeys[] = {
    {Response::kColumnPropName, "name"},
    {Response::kColumnPropSqlName, "sqlName"},
    {Response::kColumnPropType, "type"},
    {Response::kColumnPropScale, "scale"},
    {Response::kColumnPropLength, "length"},
    {Response::kColumnPropPrecision, "precision"},
    {Response::kColumnPropNullsAllowed, "nullsAllowed"},
    {Response::kColumnPropCollationSequenceName, "collationSequenceName"},
    {Response::kColumnPropCollationSequenceLevel, "collationSequenceLevel"},
    {Response::kColumnPropOriginalCollationSequenceName, "originalCollationSequenceName"},
    {Response::kColumnPropOriginalEncodingName, "originalEncodingName"},
};

const char* const kNotes =
    R"(The JSON holds "queryFeedback" (the text reported for each kind of feedback), "dataSources" (the
connections used), "columnList" and "rows", each row a list of values. What is empty is left out.
With --format table the rows alone print, under the names of the columns.
The parts are found at any depth. Between the columns of "columnList" no white space may stand.
)";

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
  for (auto column : columns) header.push_back(column[Response::kColumnPropName].toUtf8());
  Table table(std::move(header));
  forEachRow(response, [&](const std::vector<I18NString>& values) {
    std::vector<std::string> cells;
    cells.reserve(values.size());
    for (const I18NString& value : values) cells.push_back(value.toUtf8());
    table.addRow(std::move(cells));
  });
  return table.text();
}

Json feedbackJson(const Response& response) {
  Json feedbacks = Json::object();
  for (const auto kind : kQueryFeedbacks.values()) {
    I18NString text;
    if (response.GetQueryFeedback(kind, text)) feedbacks[kQueryFeedbacks.text(kind).toUtf8()] = text;
  }
  return feedbacks;
}

Json dataSourceJson(const Response& response) {
  std::vector<Response::DataSource> sources;
  response.GetResponseDataSources(sources);
  Json list = Json::array();
  for (const Response::DataSource& source : sources) {
    Json json = Json::object();
    putUnlessEmpty(json, "connection", source.connection);
    putUnlessEmpty(json, "catalog", source.catalog);
    putUnlessEmpty(json, "schema", source.schema);
    putUnlessEmpty(json, "modelDSName", source.modelDSName);
    list.push_back(std::move(json));
  }
  return list;
}

Json columnJson(const Columns& columns) {
  Json list = Json::array();
  for (auto column : columns) {
    Json json = Json::object();
    for (const ColumnKey& known : kColumnKeys) putUnlessEmpty(json, known.key, column[known.property]);
    list.push_back(std::move(json));
  }
  return list;
}

Decoded decodeResponse(TRNIDOM_Element& root, const KindOptions& options) {
  Response response;
  response.Take(root);
  Columns columns;
  response.GetColumnList(columns);
  if (options.value("--format") == "table") return rowTable(response, columns);

  Json json = Json::object();
  putUnlessEmpty(json, "queryFeedback", feedbackJson(response));
  putUnlessEmpty(json, "dataSources", dataSourceJson(response));
  putUnlessEmpty(json, "columnList", columnJson(columns));
  Json rows = Json::array();
  forEachRow(response, [&](const std::vector<I18NString>& values) { rows.push_back(values); });
  json["rows"] = std::move(rows);
  return json;
}

}  // namespace

Kind responseKind() {
  Kind kind;
  kind.name = "response";
  kind.summary = "Reply to an execute command: feedback, data sources, columns and rows";
  kind.notes = kNotes;
  kind.roots = {"response"};
  kind.orHolding = {"queryFeedbackResult", "columnList", "resultData"};
  kind.decode = decodeResponse;
  kind.options = {
      {KindOption::kDecode, "--format", "json|table", "Print JSON, or the rows as a table", {"json", "table"}}};
  kind.example =
      R"(<response><queryFeedbackResult><property name="nativeCommandText">select NAME, REVENUE from SALES</property>)"
      R"(<property name="tableType">relational</property>)"
      R"(<connection value="UID=sales;PWD=secret;DB=warehouse" catalog="warehouse" schema="dbo" modelDSName="Sales"/>)"
      R"(</queryFeedbackResult><columnList>)"
      R"(<column name="Region" sqlName="NAME" type="nVarChar" length="40" nullsAllowed="false" )"
      R"(collationSequenceName="en" collationSequenceLevel="1" originalCollationSequenceName="en_US" )"
      R"(originalEncodingName="utf-8"/>)"
      R"(<column name="Revenue" sqlName="REVENUE" type="decimal" scale="2" precision="18" nullsAllowed="true"/>)"
      R"(</columnList><resultData><row><value v="North"/><value v="1200.50"/></row>)"
      R"(<row><value v="South"/><value/></row></resultData></response>)";
  return kind;
}

}  // namespace dxmd_tool
