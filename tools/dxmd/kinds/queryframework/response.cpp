#include <cstddef>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <dxmd/queryframework/QFResponseDomHelper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <tools/dxmd/Kind.h>
#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/rows/RowStore.h>
#include <tools/dxmd/rows/RowWriter.h>
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
constexpr const char* kFormat = "--format";
constexpr const char* kLimit = "--limit";
const I18NString kValue("value");
const I18NString kV("v");

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
  s.byHand<std::vector<std::vector<I18NString>>>(kRows, "The rows, each a list of the values of its columns",
                                                 nullableItems());
}

bool isSecret(const Column& column) {
  return isSecretName(column.properties.at(Response::kColumnPropName).toUtf8()) ||
         isSecretName(column.properties.at(Response::kColumnPropSqlName).toUtf8());
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
    std::size_t index = 0;
    values.each([&](const JsonValue& value) {
      const bool mayBeSecret = index < reply.columnList.size() && isSecret(reply.columnList[index]);
      ++index;
      if (value.isNull()) {
        appendElement(row, kValue);
        return;
      }
      const I18NString text = value.text();
      if (mayBeSecret && text == kMask) value.fail(kMaskRefusal);
      appendElement(row, kValue, kV, text);
    });
  });
  return response;
}

// Reading

/// Reads a reply: first its rows, one by one, then all the rest.
class ReplyReader {
 public:
  explicit ReplyReader(const KindOptions& options)
      : m_format(options.value(kFormat).value_or("json")), m_rows(limitOf(options)) {}

  void addRow(const TRNIDOM_Element& row) {
    m_hasRows = true;
    if (m_rows.isFull()) return;
    m_values.clear();
    m_response.GetResultSetRowValues(row, m_values);
    m_rows.begin();
    // Few values are empty; of those the library does not tell which are NULL.
    TRNIDOM_Element element;
    std::size_t reached = 0;
    for (std::size_t i = 0; i < m_values.size(); ++i) {
      if (!m_values[i].empty()) {
        m_rows.add(m_values[i].toUtf8());
        continue;
      }
      if (element.isNull()) element = firstChild(row, kValue);
      for (; reached < i; ++reached) element = nextSibling(element, kValue);
      if (element.hasAttribute(kV))
        m_rows.add("");
      else
        m_rows.addNull();
    }
  }

  /// Reads the rest of the reply.
  void finish(const Response& response) {
    for (const auto kind : kQueryFeedbacks.values()) response.GetQueryFeedback(kind, m_reply.queryFeedback.texts[kind]);
    response.GetResponseDataSources(m_reply.dataSources);
    Columns columns;
    response.GetColumnList(columns);
    for (auto& properties : columns) m_reply.columnList.push_back({std::move(properties)});
  }

  bool hasRows() const { return m_hasRows; }

  void print(const Printing& printing) {
    std::vector<RowColumn> columns;
    for (const Column& column : m_reply.columnList)
      columns.push_back({column.properties.at(Response::kColumnPropName).toUtf8(), isSecret(column)});
    std::unique_ptr<RowWriter> writer = writerFor(columns, printing);
    if (!printing.showSecrets) writer = maskingWriter(columns, std::move(writer));
    m_rows.forEach([&](const Row& row) { writer->write(row); });
    writer->finish();
  }

 private:
  static std::size_t limitOf(const KindOptions& options) {
    const std::optional<std::string> limit = options.value(kLimit);
    constexpr std::size_t kMostDigits = 18;
    if (!limit) return std::numeric_limits<std::size_t>::max();
    if (limit->empty() || limit->size() > kMostDigits || limit->find_first_not_of("0123456789") != std::string::npos)
      throw ToolError(kStatusUsage, std::string(kLimit) + ": " + inQuotes(*limit) + " is no number of rows");
    return static_cast<std::size_t>(std::stoull(*limit));
  }

  std::unique_ptr<RowWriter> writerFor(const std::vector<RowColumn>& columns, const Printing& printing) const {
    if (m_format == "csv") return csvWriter(columns, printing.out);
    if (m_format == "table") return tableWriter(columns, printing.out);
    printing.out.isJson();
    if (m_format == "ndjson") return ndjsonWriter(columns, printing.out);
    Json head = Json::object();
    writeRecord(head, m_reply);
    if (!printing.showSecrets) {
      const Description description = describe<Reply>();
      maskSecrets(head, &description.whole());
    }
    return jsonWriter(toText(head, printing.indent), kRows, printing.indent, printing.out);
  }

  std::string m_format;
  Response m_response;  ///< reads rows, which takes no document
  std::vector<I18NString> m_values;
  bool m_hasRows = false;
  RowStore m_rows;
  Reply m_reply;
};

Decoded decodedBy(const std::shared_ptr<ReplyReader>& reader, TRNIDOM_Element& root) {
  Response response;
  response.Take(root);
  reader->finish(response);
  return Decoded::Print([reader](const Printing& printing) { reader->print(printing); });
}

Decoded decodeReply(TRNIDOM_Element& root, const KindOptions& options) {
  const auto reader = std::make_shared<ReplyReader>(options);
  Response response;
  response.Take(root);
  for (TRNIDOM_Element row = response.GetFirstResultSetRow(); !row.isNull(); row = response.GetNextResultSetRow(row))
    reader->addRow(row);
  return decodedBy(reader, root);
}

PieceDecoder decodeLargeReply(const KindOptions& options) {
  const auto reader = std::make_shared<ReplyReader>(options);
  PieceDecoder pieces;
  pieces.element = "row";
  pieces.visit = [reader](const TRNIDOM_Element& row) { reader->addRow(row); };
  pieces.fits = [reader](const TRNIDOM_Element& root) {
    if (!reader->hasRows()) return true;
    const TRNIDOM_NodeList data = root.getElementsByTagName("resultData");
    return data.getLength() == 1 && firstChild(data.item(0)).isNull();
  };
  pieces.finish = [reader](TRNIDOM_Element& root) { return decodedBy(reader, root); };
  return pieces;
}

}  // namespace

Kind kinds::response() {
  Kind kind;
  kind.describe = [] { return describe<Reply>(); };
  kind.encode = encodeReply;
  kind.decode = decodeReply;
  kind.summary = "Reply to an execute command: feedback, data sources, columns and rows";
  kind.purpose = R"(What the query framework service sends back for an execute command: the feedback asked for, the
data sources that the queries used, the columns of the result, and its rows.)";
  kind.notes = R"(With --format csv, ndjson or table the rows alone print. A value of a row that is NULL, which has
no attribute "v", is null in JSON and an empty field in CSV and a table; an empty text is "" in all.
The parts are found at any depth. With --exact no white space may stand between the columns.)";
  kind.helper = "QFResponseDomHelper";
  kind.writes = Does::kTool;
  kind.roots = {"response"};
  kind.orHolding = {"queryFeedbackResult", "columnList", "resultData"};
  kind.decodePieces = decodeLargeReply;
  kind.options = {{KindOption::kDecode,
                   kFormat,
                   "json|ndjson|csv|table",
                   "Print all as JSON, or the rows: a line of JSON each, as CSV, or as a table",
                   {"json", "ndjson", "csv", "table"}},
                  {KindOption::kDecode, kLimit, "N", "Print no more rows than these"}};
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
