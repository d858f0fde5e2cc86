#include <dxmd/queryframework/QFExecuteCommandHelper.h>
#include <tools/dxmd/kinds/Envelope.h>
#include <tools/dxmd/kinds/QueryFrameworkKinds.h>

namespace dxmd_tool {

namespace {

using Command = QFExecuteCommandHelper;

const EnumTable<Command::EQueryOptimization> kOptimizations{Command::kQueryOptimizationFirstRow,
                                                            Command::kQueryOptimizationIncremental, &Command::ToString};
const EnumTable<Command::EQOSSeverity> kSeverities{Command::kQOSSeverityError, Command::kQOSSeverityInformation,
                                                   &Command::ToString};
const EnumTable<QFQueryHelper::EQueryHint> kQueryHints{
    QFQueryHelper::kQueryHintAvoidZeroDiv, QFQueryHelper::kQueryHintMaxRowsRetrieved, &QFQueryHelper::ToString};
const EnumTable<QFQueryDataItem::ESort> kSorts{QFQueryDataItem::kSortNone, QFQueryDataItem::kSortDescending,
                                               &QFQueryDataItem::ToString};
const EnumTable<QFQueryDataItem::EAggregate> kAggregates{
    QFQueryDataItem::kAggregateNone, QFQueryDataItem::kAggregateCalculated, &QFQueryDataItem::ToString};
const EnumTable<QFQueryDetailFilter::EUse> kUses{QFQueryDetailFilter::kUseOptional, QFQueryDetailFilter::kUseProhibited,
                                                 &QFQueryDetailFilter::ToString};

const char* const kNotes =
    R"(Each query has a "name" and reads from the model, or from
  "queryRef":        another query, by its name;
  "joinOperation":   two queries joined: "left" and "right", each a "queryRef" and a "cardinality",
                     and "joinFilter", an expression;
  "queryOperation":  the queries named "leftQuery" and "rightQuery" combined: "setOperation",
                     "duplicates", and "projectionList", the items to keep.
Names of data items are made unique within a query: the second "total" becomes "total1".
The queries share one result definition, named after the last of them; a first query named
"SingleCount" or "querySet" alone is defined.
)";

struct Operand {
  I18NString queryRef;
  I18NString cardinality;
};

Operand readOperand(const JsonValue& json) {
  Operand operand;
  json.object([&](JsonObject& object) {
    operand.queryRef = object.required("queryRef").text();
    operand.cardinality = object.required("cardinality").text();
  });
  return operand;
}

/// Adds the query that the given source calls for.
QFQueryHelper* addQuery(Command& command, JsonObject& json) {
  const I18NString name = json.required("name").text();
  const JsonValue queryRef = json.optional("queryRef");
  const JsonValue join = json.optional("joinOperation");
  const JsonValue set = json.optional("queryOperation");
  if ((queryRef ? 1 : 0) + (join ? 1 : 0) + (set ? 1 : 0) > 1)
    json.fail("\"queryRef\", \"joinOperation\" and \"queryOperation\" exclude each other");

  QFQueryHelper* query = nullptr;
  join.object([&](JsonObject& operation) {
    const Operand left = readOperand(operation.required("left"));
    const Operand right = readOperand(operation.required("right"));
    query = command.AddJoinQuery(name, left.queryRef, left.cardinality, right.queryRef, right.cardinality,
                                 operation.required("joinFilter").text());
  });
  set.object([&](JsonObject& operation) {
    query =
        command.AddModelSetQuery(name, operation.required("projectionList").texts(),
                                 operation.required("setOperation").text(), operation.required("duplicates").text());
  });
  if (query == nullptr) query = command.AddQuery(name);
  query->SetQueryRef(queryRef.text());
  return query;
}

void readQuery(Command& command, JsonObject& json) {
  QFQueryHelper* query = addQuery(command, json);
  query->SetAutoSummary(json.optional("autoSummary").boolean() ? 1 : 0);
  json.optional("dataItems").objects([&](JsonObject& object) {
    const I18NString name = object.required("name").text();
    QFQueryDataItem* item = query->AddDataItem(name, object.required("expression").text());
    item->tag = object.optional("tag").text();
    item->sort = object.optional("sort").enumerator(kSorts);
    item->aggregate = object.optional("aggregate").enumerator(kAggregates);
    item->rollupAggregate = object.optional("rollupAggregate").enumerator(kAggregates);
  });
  json.optional("detailFilters").objects([&](JsonObject& filter) {
    const I18NString expression = filter.required("expression").text();
    query->AddDetailFilter(expression, filter.required("use").enumerator(kUses));
  });
  json.optional("queryHints").object([&](JsonObject& hints) {
    for (const auto hint : kQueryHints.values())
      if (const JsonValue value = hints.optional(kQueryHints.text(hint).toUtf8())) query->AddHint(hint, value.text());
  });
}

void readRequestHints(Command& command, JsonObject& json) {
  const auto add = [&](Command::ERequestHint hint, const JsonValue& value) {
    if (value) command.AddRequestHint(hint, value.text());
  };
  add(Command::kRequestHintNoDataMode, json.optional("noDataMode"));
  add(Command::kRequestHintDesignMode, json.optional("designMode"));
  if (const JsonValue optimization = json.optional("executionOptimization"))
    command.AddRequestHint(Command::kRequestHintExecutionOptimization,
                           Command::ToString(optimization.enumerator(kOptimizations)));
  add(Command::kRequestHintQueryProcessing, json.optional("queryProcessing"));
}

TRNIDOM_Element encodeExecute(JsonObject& json, const KindOptions&) {
  const std::optional<I18NLocale> locale = json.optional("expressionLocale").locale();
  Command command(json.required("modelPath").text(), locale ? &*locale : nullptr);
  readEnvelope(json, command);
  const JsonValue queries = json.required("queries");
  queries.objects([&](JsonObject& query) { readQuery(command, query); });
  if (queries.size() == 0) queries.fail("a command needs at least one query");
  json.optional("requestHints").object([&](JsonObject& hints) { readRequestHints(command, hints); });
  json.optional("properties").members([&](const I18NString& name, const JsonValue& value) {
    command.AddExecuteProperty(name, value.text());
  });
  json.optional("queryFeedback").each([&](const JsonValue& feedback) {
    command.AddQueryFeedback(feedback.enumerator(kQueryFeedbacks));
  });
  command.SetQOSSeverityLevel(json.optional("severityLevel").enumerator(kSeverities));
  return made(command);
}

}  // namespace

Kind executeKind() {
  Kind kind;
  kind.name = "execute";
  kind.summary = "Command to run queries and return their rows";
  kind.notes = std::string(kNotes) + kEnvelopeNotes;
  kind.roots = {"command"};
  kind.encode = encodeExecute;
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='model']",
  "expressionLocale": "en",
  "commandID": "DXCommand",
  "requestID": "DXRequest",
  "connection": {"modelPath": "/content/package[@name='Sales']", "passport": "101:5f3c", "runLocale": "en"},
  "queries": [
    {
      "name": "leftQuery",
      "autoSummary": true,
      "dataItems": [
        {"name": "Region", "expression": "[Sales].[Region].[Name]", "sort": "ascending"},
        {"name": "Revenue", "expression": "[Sales].[Fact].[Revenue]", "tag": "measure", "aggregate": "total", "rollupAggregate": "average"}
      ],
      "detailFilters": [{"expression": "[Sales].[Fact].[Revenue] > 0", "use": "required"}],
      "queryHints": {"avoidZeroDiv": "true", "autoSort": "minimal", "measureRefiner": "on", "maxRowsRetrieved": "500"}
    },
    {"name": "rightQuery", "queryRef": "leftQuery"},
    {
      "name": "Joined",
      "joinOperation": {
        "left": {"queryRef": "leftQuery", "cardinality": "1:1"},
        "right": {"queryRef": "rightQuery", "cardinality": "0:N"},
        "joinFilter": "[leftQuery].[Region] = [rightQuery].[Region]"
      }
    },
    {
      "name": "Combined",
      "queryOperation": {"setOperation": "UNION", "duplicates": "remove", "projectionList": ["Region"]}
    }
  ],
  "requestHints": {"noDataMode": "false", "designMode": "false", "executionOptimization": "firstRow", "queryProcessing": "limited"},
  "properties": {"refreshCache": "true"},
  "queryFeedback": ["nativeCommandText", "connections", "columnList"],
  "severityLevel": "warning"
})";
  return kind;
}

}  // namespace dxmd_tool
