#include <map>
#include <optional>
#include <vector>

#include <dxmd/queryframework/QFExecuteCommandHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

using Command = QFExecuteCommandHelper;

const EnumTable<Command::EQueryOptimization> kOptimizations{&Command::ToString};
const EnumTable<Command::EQOSSeverity> kSeverities{&Command::ToString};
const EnumTable<QFQueryHelper::EQueryHint> kQueryHints{&QFQueryHelper::ToString};
const EnumTable<QFQueryDataItem::ESort> kSorts{&QFQueryDataItem::ToString};
const EnumTable<QFQueryDataItem::EAggregate> kAggregates{&QFQueryDataItem::ToString};
const EnumTable<QFQueryDetailFilter::EUse> kUses{&QFQueryDetailFilter::ToString};

}  // namespace

static void shape(Shape& s, QFQueryDataItem& item) {
  s.required("name", item.name, "The item's name");
  s.required("expression", item.expression, "What it is computed from");
  s.optional("tag", item.tag, "A text that goes with it");
  s.optional("sort", item.sort, "How rows are sorted by it", kSorts);
  s.optional("aggregate", item.aggregate, "How its values are aggregated", kAggregates);
  s.optional("rollupAggregate", item.rollupAggregate, "How its aggregated values are aggregated further", kAggregates);
}

static void shape(Shape& s, QFQueryDetailFilter& filter) {
  s.required("expression", filter.expression, "The condition");
  s.required("use", filter.use, "Whether the filter applies", kUses);
}

namespace {

struct Operand {
  I18NString queryRef;
  I18NString cardinality;
};

void shape(Shape& s, Operand& operand) {
  s.required("queryRef", operand.queryRef, "The name of the query");
  s.required("cardinality", operand.cardinality, "How many of its rows match, such as 1:1 or 0:N");
}

struct JoinOperation {
  Operand left;
  Operand right;
  I18NString joinFilter;
};

void shape(Shape& s, JoinOperation& join) {
  s.required("left", join.left, "One of the queries");
  s.required("right", join.right, "The other one");
  s.required("joinFilter", join.joinFilter, "The condition under which their rows match");
}

struct SetOperation {
  I18NString setOperation;
  I18NString duplicates;
  std::vector<I18NString> projectionList;
};

void shape(Shape& s, SetOperation& set) {
  s.required("setOperation", set.setOperation, "The operation, such as UNION");
  s.required("duplicates", set.duplicates, "What becomes of duplicate rows, such as remove");
  s.required("projectionList", set.projectionList, "The items to keep",
             repeatedIsLost("An item named twice is written once"));
}

struct QueryHints {
  std::map<QFQueryHelper::EQueryHint, std::optional<I18NString>> texts;
};

const char* meaningOf(QFQueryHelper::EQueryHint hint) {
  switch (hint) {
    case QFQueryHelper::kQueryHintAvoidZeroDiv:
      return "Whether division by zero gives null";
    case QFQueryHelper::kQueryHintAutoSort:
      return "How much the engine sorts by itself";
    case QFQueryHelper::kQueryHintMeasureRefiner:
      return "Whether the engine refines measures";
    case QFQueryHelper::kQueryHintMaxRowsRetrieved:
      return "How many rows to retrieve at most";
  }
  return "A hint";
}

void shape(Shape& s, QueryHints& hints) {
  for (const auto hint : kQueryHints.values()) {
    const std::string name = kQueryHints.text(hint).toUtf8();
    if (hint == QFQueryHelper::kQueryHintAvoidZeroDiv)
      s.optional(name, hints.texts[hint], meaningOf(hint), otherwise<I18NString>("true"));
    else
      s.optional(name, hints.texts[hint], meaningOf(hint));
  }
}

struct Query {
  I18NString name;
  I18NString queryRef;
  std::optional<JoinOperation> joinOperation;
  std::optional<SetOperation> queryOperation;
  bool autoSummary = false;
  std::vector<QFQueryDataItem> dataItems;
  std::vector<QFQueryDetailFilter> detailFilters;
  QueryHints queryHints;
};

void shape(Shape& s, Query& query) {
  s.exclusive({"queryRef", "joinOperation", "queryOperation"});
  s.required("name", query.name, "The query's name");
  s.optional("queryRef", query.queryRef, "The name of the query that it reads from, rather than from the model");
  s.optional("joinOperation", query.joinOperation, "Two queries that it joins");
  s.optional("queryOperation", query.queryOperation,
             "How it combines the queries named \"leftQuery\" and \"rightQuery\"");
  s.optional("autoSummary", query.autoSummary, "Whether the service summarises by itself");
  s.optional("dataItems", query.dataItems, "The items that it selects",
             repeatedIsLost("Names are made unique: the second \"total\" becomes \"total1\"", "name"));
  s.optional("detailFilters", query.detailFilters, "Which rows it takes");
  s.optional("queryHints", query.queryHints, "Advice to the query engine");
}

struct RequestHints {
  std::optional<I18NString> noDataMode;
  std::optional<I18NString> designMode;
  Command::EQueryOptimization executionOptimization{};
  std::optional<I18NString> queryProcessing;
};

void shape(Shape& s, RequestHints& hints) {
  s.optional("noDataMode", hints.noDataMode, "Whether to answer without data, as true or false");
  s.optional("designMode", hints.designMode, "Whether the queries are being designed, as true or false");
  s.optional("executionOptimization", hints.executionOptimization, "What to be fast at", kOptimizations);
  s.optional("queryProcessing", hints.queryProcessing, "Where queries are processed, such as limited");
}

struct Execute {
  I18NString modelPath;
  std::optional<I18NLocale> expressionLocale;
  Envelope envelope;
  std::vector<Query> queries;
  RequestHints requestHints;
  std::map<I18NString, I18NString> properties;
  std::vector<Command::EQueryFeedback> queryFeedback;
  Command::EQOSSeverity severityLevel{};
};

void shape(Shape& s, Execute& execute) {
  s.required("modelPath", execute.modelPath, "The model that the queries read from");
  s.optional("expressionLocale", execute.expressionLocale, "The locale that expressions are written in");
  shapeEnvelope(s, execute.envelope);
  s.required("queries", execute.queries, "The queries to run", nonEmpty("a command needs at least one query"));
  s.optional("requestHints", execute.requestHints, "Advice for the whole request");
  s.optional("properties", execute.properties, "Properties of the execution",
             orderIsLost("Properties are written in order of their names"));
  s.optional("queryFeedback", execute.queryFeedback, "What the service is to report beside the rows", kQueryFeedbacks);
  s.optional("severityLevel", execute.severityLevel, "From which severity on it is to report", kSeverities);
}

// make

QFQueryHelper* addQuery(Command& command, const Query& query) {
  if (const auto& join = query.joinOperation)
    return command.AddJoinQuery(query.name, join->left.queryRef, join->left.cardinality, join->right.queryRef,
                                join->right.cardinality, join->joinFilter);
  if (const auto& set = query.queryOperation)
    return command.AddModelSetQuery(query.name, set->projectionList, set->setOperation, set->duplicates);
  return command.AddQuery(query.name);
}

void makeQuery(Command& command, const Query& query) {
  QFQueryHelper* const made = addQuery(command, query);
  made->SetQueryRef(query.queryRef);
  made->SetAutoSummary(query.autoSummary ? 1 : 0);
  for (const QFQueryDataItem& item : query.dataItems) {
    QFQueryDataItem* const added = made->AddDataItem(item.name, item.expression);
    added->tag = item.tag;
    added->sort = item.sort;
    added->aggregate = item.aggregate;
    added->rollupAggregate = item.rollupAggregate;
  }
  for (const QFQueryDetailFilter& filter : query.detailFilters) made->AddDetailFilter(filter.expression, filter.use);
  for (const auto& [hint, text] : query.queryHints.texts)
    if (text) made->AddHint(hint, *text);
}

void makeRequestHints(Command& command, const RequestHints& hints) {
  if (hints.noDataMode) command.AddRequestHint(Command::kRequestHintNoDataMode, *hints.noDataMode);
  if (hints.designMode) command.AddRequestHint(Command::kRequestHintDesignMode, *hints.designMode);
  if (hints.executionOptimization != 0)
    command.AddRequestHint(Command::kRequestHintExecutionOptimization, Command::ToString(hints.executionOptimization));
  if (hints.queryProcessing) command.AddRequestHint(Command::kRequestHintQueryProcessing, *hints.queryProcessing);
}

TRNIDOM_Element make(const Execute& execute) {
  Command command(execute.modelPath, execute.expressionLocale ? &*execute.expressionLocale : nullptr);
  setEnvelope(command, execute.envelope);
  for (const Query& query : execute.queries) makeQuery(command, query);
  makeRequestHints(command, execute.requestHints);
  for (const auto& [name, value] : execute.properties) command.AddExecuteProperty(name, value);
  for (const auto feedback : execute.queryFeedback) command.AddQueryFeedback(feedback);
  command.SetQOSSeverityLevel(execute.severityLevel);
  return made(command);
}

// take: top to bottom as the helper writes it. The result definitions follow from the queries and are not read.

Operand takeOperand(const TRNIDOM_Element& joinOperand) {
  return {requiredChild(joinOperand, "queryRef").getAttribute("refQuery"), joinOperand.getAttribute("cardinality")};
}

void takeSource(const TRNIDOM_Element& source, Query& query) {
  query.queryRef = firstChild(source, "queryRef").getAttribute("refQuery");
  if (const TRNIDOM_Element join = firstChild(source, "joinOperation"); !join.isNull()) {
    const TRNIDOM_Element operands = requiredChild(join, "joinOperands");
    const TRNIDOM_Element left = requiredChild(operands, "joinOperand");
    const TRNIDOM_Element right = nextSibling(left, "joinOperand");
    if (right.isNull()) refuse(operands, "a join has two operands");
    query.joinOperation = {takeOperand(left), takeOperand(right),
                           childText(requiredChild(join, "joinFilter"), "filterExpression")};
  }
  if (const TRNIDOM_Element set = firstChild(source, "queryOperation"); !set.isNull()) {
    SetOperation& operation = query.queryOperation.emplace();
    operation.setOperation = set.getAttribute("setOperation");
    operation.duplicates = set.getAttribute("duplicates");
    const TRNIDOM_Element projectionList = firstChild(set, "projectionList");
    for (TRNIDOM_Element item = firstChild(projectionList, "queryItem"); !item.isNull();
         item = nextSibling(item, "queryItem"))
      operation.projectionList.push_back(item.getAttribute("name"));
  }
}

QFQueryDataItem takeDataItem(const TRNIDOM_Element& dataItem) {
  QFQueryDataItem item;
  item.name = dataItem.getAttribute("name");
  item.sort = enumerator(dataItem, "sort", kSorts);
  item.aggregate = enumerator(dataItem, "aggregate", kAggregates);
  item.rollupAggregate = enumerator(dataItem, "rollupAggregate", kAggregates);
  item.expression = childText(dataItem, "expression");
  item.tag = childText(dataItem, "tag");
  return item;
}

Query takeQuery(const TRNIDOM_Element& element) {
  Query query;
  query.name = element.getAttribute("name");
  takeSource(requiredChild(element, "source"), query);

  const TRNIDOM_Element selection = requiredChild(element, "selection");
  query.autoSummary = boolean(selection, "autoSummary");
  for (TRNIDOM_Element item = firstChild(selection, "dataItem"); !item.isNull(); item = nextSibling(item, "dataItem"))
    query.dataItems.push_back(takeDataItem(item));

  const TRNIDOM_Element detailFilter = firstChild(element, "detailFilter");
  for (TRNIDOM_Element filter = firstChild(detailFilter, "filter"); !filter.isNull();
       filter = nextSibling(filter, "filter"))
    query.detailFilters.push_back({childText(filter, "filterExpression"), requiredEnumerator(filter, "use", kUses)});

  const TRNIDOM_Element hints = firstChild(element, "queryHints");
  for (const auto hint : kQueryHints.values())
    if (const TRNIDOM_Element written = firstChild(hints, kQueryHints.text(hint)); !written.isNull())
      query.queryHints.texts[hint] = written.getAttribute("value");
  return query;
}

RequestHints takeRequestHints(const TRNIDOM_Element& element) {
  RequestHints hints;
  hints.noDataMode = attribute(firstChild(element, "noDataMode"), "enabled");
  hints.designMode = attribute(firstChild(element, "designMode"), "enabled");
  hints.executionOptimization = enumerator(firstChild(element, "executionOptimization"), "value", kOptimizations);
  hints.queryProcessing = attribute(firstChild(element, "queryProcessing"), "value");
  return hints;
}

Execute take(TRNIDOM_Element& root) {
  const TRNIDOM_Element element = requiredChild(root, "execute");
  const TRNIDOM_Element querySet = requiredChild(element, "querySet");
  Execute execute;
  execute.envelope = takeEnvelope(root);
  if (const auto locale = attribute(querySet, "expressionLocale")) execute.expressionLocale = I18NLocale(*locale);
  execute.modelPath = childText(querySet, "modelPath");

  const TRNIDOM_Element queries = requiredChild(querySet, "queries");
  for (TRNIDOM_Element query = firstChild(queries, "query"); !query.isNull(); query = nextSibling(query, "query"))
    execute.queries.push_back(takeQuery(query));
  if (execute.queries.empty()) refuse(queries, "a command needs at least one query");
  execute.requestHints = takeRequestHints(firstChild(querySet, "requestHints"));

  for (TRNIDOM_Element property = firstChild(element, "property"); !property.isNull();
       property = nextSibling(property, "property"))
    execute.properties[property.getAttribute("name")] = property.getAttribute("value");
  const TRNIDOM_Element queryFeedback = firstChild(element, "queryFeedback");
  execute.severityLevel = enumerator(queryFeedback, "severityLevel", kSeverities);
  execute.queryFeedback = takeQueryFeedbacks(queryFeedback);
  return execute;
}

}  // namespace

Kind kinds::execute() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to run queries and return their rows";
  kind.purpose = R"(Has the query framework service run queries against a model and send back their rows. It says
what to select, filter and combine, how to process it, and what to report beside the rows.)";
  kind.notes = R"(The queries share one result definition, named after the last of them; a first query named
"SingleCount" or "querySet" alone is defined. Result definitions follow from the queries and are not
decoded.)";
  kind.helper = "QFExecuteCommandHelper";
  kind.reads = Does::kTool;
  kind.reply = "response";
  kind.roots = {"command"};
  kind.wrapped = "execute";
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='model']",
  "expressionLocale": "en",
  "commandID": "DXCommand",
  "requestID": "DXRequest",
  "connection": {"passport": "101:5f3c", "modelPath": "/content/package[@name='Sales']", "runLocale": "en"},
  "queries": [
    {
      "name": "leftQuery",
      "autoSummary": true,
      "dataItems": [
        {"name": "Region", "expression": "[Sales].[Region].[Name]", "sort": "ascending"},
        {"name": "Revenue", "expression": "[Sales].[Fact].[Revenue]", "tag": "measure", "aggregate": "total", "rollupAggregate": "average"}
      ],
      "detailFilters": [{"expression": "[Sales].[Fact].[Revenue] > 0", "use": "required"}],
      "queryHints": {"avoidZeroDiv": "false", "autoSort": "minimal", "measureRefiner": "on", "maxRowsRetrieved": "500"}
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
