#include <string>

#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/queryengine/VqeQuerySubjectHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

/// The name that every query subject is written with.
constexpr const char* kName = "aBmtQuerySubject";

struct QuerySubject {
  I18NString modelPath;
  TRNIDOM_Element definition;
  DXEnvelope envelope;
};

void shape(Shape& s, QuerySubject& command) {
  s.required("modelPath", command.modelPath, "The model that the query subject is for");
  s.required("definition", command.definition, "The definition, which holds the SQL");
  shapeEnvelope(s, command.envelope);
}

TRNIDOM_Element make(const QuerySubject& command) {
  TRNIDOM_Element definition = command.definition;
  VqeQuerySubjectHelper helper(command.modelPath, definition);
  setEnvelope(helper, command.envelope);
  return made(helper);
}

/// Undoes what the helper does when it writes: the first SQL of type "veltra" becomes one of type "Veltra".
void restoreSqlType(const TRNIDOM_Element& definition) {
  for (TRNIDOM_Element sql : definition.getElementsByTagName("sql")) {
    const I18NString type = sql.getAttribute("type");
    if (type == "veltra") refuse(sql, R"(the first "type" that is "veltra" is written as "Veltra")");
    if (type != "Veltra") continue;
    sql.setAttribute("type", "veltra");
    return;
  }
}

TRNIDOM_Element takeDefinition(const TRNIDOM_Element& querySubject) {
  const TRNIDOM_Element definition = requiredChild(querySubject, "definition");
  TRNIDOM_Element content = firstChild(definition);
  if (content.isNull() || !nextSibling(content).isNull()) refuse(definition, "a definition is one element");
  restoreSqlType(definition);
  return content;
}

QuerySubject take(TRNIDOM_Element& root) {
  const TRNIDOM_Element querySubject = requiredChild(requiredChild(root, "dxCommand"), "querySubject");
  if (childText(querySubject, "name") != kName) refuse(querySubject, "its name is not " + inQuotes(kName));
  return {takeDXModelPath(root), takeDefinition(querySubject), takeDXEnvelope(root)};
}

}  // namespace

Kind kinds::querySubject() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to define an ad hoc query subject from SQL";
  kind.purpose = "Has the query engine define an ad hoc query subject, from a definition that holds SQL.";
  kind.notes =
      R"(The type of the definition's first "sql" of type "veltra" is written as "Veltra", and read back as
"veltra".)";
  kind.helper = "VqeQuerySubjectHelper";
  kind.reads = Does::kTool;
  kind.roots = {"command"};
  kind.wrapped = "querySubject";
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='2024']",
  "definition": "<dbQuery><sql type=\"veltra\">select * from [Sales].ORDERS</sql></dbQuery>",
  "commandID": "QuerySubject7",
  "requestID": "Request7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"},
  "queryLocale": "en-gb",
  "queryFeedback": ["columnList"]
})";
  return kind;
}

}  // namespace dxmd_tool
