#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// What encoding the JSON puts between the envelope's start and its identifiers.
std::string bodyOf(const std::string& kind, const std::string& json) {
  const ToolRun result = run({"encode", kind}, json);
  EXPECT_EQ("", result.err);
  const std::size_t start = result.out.find('>') + 1;
  const std::size_t end = result.out.find("<commandID");
  return end == std::string::npos ? result.out : result.out.substr(start, end - start);
}

const char* const kDefinitionOfNothing =
    R"(<edges><edge name="columns"><edgeGroups><edgeGroup><valueSets><valueSet name="valueSet1">)"
    R"(<groupBody name="groupBody1"/></valueSet></valueSets></edgeGroup></edgeGroups></edge></edges>)";

std::string executeOf(const std::string& attributes, const std::string& query, const std::string& name,
                      const std::string& rest = "</querySet>") {
  return "<execute><querySet" + attributes + "><modelPath>m</modelPath><reportName>DXRequest</reportName><queries>" +
         query + "</queries><queryResultDefinitions><queryResultDefinition name=\"rsd" + name + "\" refQuery=\"" +
         name + "\">" + kDefinitionOfNothing + "</queryResultDefinition></queryResultDefinitions>" + rest +
         "</execute>";
}

std::string queryOf(const std::string& name, const std::string& source) {
  return "<query name=\"" + name + "\"><source>" + source +
         R"(</source><selection autoSummary="false"/><queryHints><avoidZeroDiv value="true"/></queryHints></query>)";
}

}  // namespace

TEST(ExecuteKind, EachSourceOfAQuery) {
  expectXml(executeOf("", queryOf("A", "<model/>"), "A"),
            bodyOf("execute", R"({"modelPath": "m", "queries": [{"name": "A"}]})"));
  expectXml(executeOf("", queryOf("B", R"(<queryRef refQuery="A"/>)"), "B"),
            bodyOf("execute", R"({"modelPath": "m", "queries": [{"name": "B", "queryRef": "A"}]})"));
  expectXml(
      executeOf("",
                queryOf("J", R"(<joinOperation><joinOperands><joinOperand cardinality="1:1"><queryRef refQuery="A"/>)"
                             R"(</joinOperand><joinOperand cardinality="0:N"><queryRef refQuery="B"/></joinOperand>)"
                             R"(</joinOperands><joinFilter><filterExpression>a = b</filterExpression></joinFilter>)"
                             R"(</joinOperation>)"),
                "J"),
      bodyOf("execute", R"({"modelPath": "m", "queries": [{"name": "J", "joinOperation":
              {"left": {"queryRef": "A", "cardinality": "1:1"}, "right": {"queryRef": "B", "cardinality": "0:N"},
               "joinFilter": "a = b"}}]})"));
  expectXml(executeOf("",
                      queryOf("S", R"(<queryOperation duplicates="remove" name="set" setOperation="UNION"><queryRefs>)"
                                   R"(<queryRef refQuery="leftQuery"/><queryRef refQuery="rightQuery"/></queryRefs>)"
                                   R"(<projectionList><queryItem name="x"/></projectionList></queryOperation>)"),
                      "S"),
            bodyOf("execute", R"({"modelPath": "m", "queries": [{"name": "S", "queryOperation":
              {"setOperation": "UNION", "duplicates": "remove", "projectionList": ["x"]}}]})"));
}

TEST(ExecuteKind, LocaleHintsPropertiesAndFeedback) {
  expectXml(
      executeOf(R"( expressionLocale="fr")", queryOf("A", "<model/>"), "A",
                R"(<requestHints><noDataMode enabled="true"/><executionOptimization value="allRows"/></requestHints>)"
                R"(</querySet><property name="k" value="v"/>)"
                R"(<queryFeedback severityLevel="keyTransformation"><property name="columnList"/></queryFeedback>)"),
      bodyOf("execute", R"({"modelPath": "m", "expressionLocale": "fr", "queries": [{"name": "A"}],
              "requestHints": {"noDataMode": "true", "executionOptimization": "allRows"}, "properties": {"k": "v"},
              "queryFeedback": ["columnList"], "severityLevel": "keyTransformation"})"));
}

TEST(ExecuteKind, RefusesWhatNoCommandCanBe) {
  expectFailure(kStatusUnfit, "standard input: $.queries: a command needs at least one query",
                run({"encode", "execute"}, R"({"modelPath": "m", "queries": []})"));
  expectFailure(kStatusUnfit,
                R"(standard input: $.queries[0]: "queryRef", "joinOperation" and "queryOperation" exclude each other)",
                run({"encode", "execute"}, R"({"modelPath": "m", "queries": [{"name": "A", "queryRef": "B",
                  "queryOperation": {}}]})"));
  expectFailure(kStatusUnfit,
                R"(standard input: $.queries[0].dataItems[0].sort: "up" is none of "none", "ascending", "descending")",
                run({"encode", "execute"}, R"({"modelPath": "m", "queries": [{"name": "A", "dataItems":
                  [{"name": "x", "expression": "y", "sort": "up"}]}]})"));
}

TEST(CloseConnectionsKind, IdentifiersAndConnectionJoinTheEnvelope) {
  const ToolRun result =
      run({"encode", "closeConnections"}, R"({"commandID": "C", "connection": {"username": "ada"}})");
  EXPECT_NE(std::string::npos,
            result.out.find(R"(<connection><dataSourceType value="QueryFrameworkService"/><serviceID value="DX"/>)"
                            R"(<username value="ada"/></connection><closeConnections/>)"
                            R"(<commandID value="C"/><requestID value="DXRequest"/></command>)"))
      << result.out;
}

TEST(UpdateKind, SubjectsAreTextsWithNames) {
  expectXml(
      R"(<update><updateSet><modelPath>m</modelPath><updateSubject name="s">&lt;x/&gt;</updateSubject></updateSet></update>)",
      bodyOf("update", R"({"modelPath": "m", "updateSubjects": [{"name": "s", "text": "<x/>"}]})"));
}

TEST(ValidateKind, ContentIsCopiedInOrder) {
  expectXml("<validate><a>1</a><b/></validate>", bodyOf("validate", R"({"content": ["<a>1</a>", "<b/>"]})"));
}

TEST(ValidateReplyKind, SeverityAndTexts) {
  EXPECT_EQ("{\n  \"severity\": \"warning\",\n  \"messages\": \"x\\ny\\n\"\n}\n",
            run({"decode", "validateReply"},
                R"(<r><message severity="fatal">x</message><message severity="warning">y</message></r>)")
                .out);
  EXPECT_EQ("{\n  \"severity\": \"none\",\n  \"messages\": \"\"\n}\n",
            run({"decode", "validateReply"}, "<response/>").out);
}

TEST(ResponseKind, PartsThatAreThere) {
  EXPECT_EQ(R"({
  "queryFeedback": {
    "nativeCommandText": "select 1"
  },
  "dataSources": [
    {
      "connection": "UID=u;PWD=***",
      "schema": "s"
    }
  ],
  "columnList": [
    {
      "name": "A",
      "scale": "2"
    },
    {}
  ],
  "rows": [
    ["1", ""],
    []
  ]
}
)",
            run({"decode", "response"},
                R"(<response><queryFeedbackResult><property name="nativeCommandText">select 1</property>)"
                R"(<connection value="UID=u;PWD=p" schema="s"/></queryFeedbackResult>)"
                R"(<columnList><column name="A" scale="2"/><column/></columnList>)"
                R"(<resultData><row><value v="1"/><value/></row><!-- --><row/></resultData></response>)")
                .out);
  EXPECT_EQ("{\n  \"rows\": []\n}\n", run({"decode", "response"}, "<response/>").out);
}

TEST(ResponseKind, RowsAsATable) {
  EXPECT_EQ(
      "Region  Revenue\n"
      "------  -------  -\n"
      "North   1200\n"
      "東京             x\n",
      run({"decode", "response", "--format", "table"},
          R"(<response><columnList><c name="Region"/><c name="Revenue"/></columnList><resultData>)"
          R"(<row><value v="North"/><value v="1200"/></row><row><value v="東京"/><value/><value v="x"/></row>)"
          R"(</resultData></response>)")
          .out);
  EXPECT_EQ("", run({"decode", "response", "--format", "table"}, "<response/>").out);
}
