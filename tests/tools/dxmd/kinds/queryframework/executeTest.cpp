#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

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
            encodedBody("execute", R"({"modelPath": "m", "queries": [{"name": "A"}]})"));
  expectXml(executeOf("", queryOf("B", R"(<queryRef refQuery="A"/>)"), "B"),
            encodedBody("execute", R"({"modelPath": "m", "queries": [{"name": "B", "queryRef": "A"}]})"));
  expectXml(
      executeOf("",
                queryOf("J", R"(<joinOperation><joinOperands><joinOperand cardinality="1:1"><queryRef refQuery="A"/>)"
                             R"(</joinOperand><joinOperand cardinality="0:N"><queryRef refQuery="B"/></joinOperand>)"
                             R"(</joinOperands><joinFilter><filterExpression>a = b</filterExpression></joinFilter>)"
                             R"(</joinOperation>)"),
                "J"),
      encodedBody("execute", R"({"modelPath": "m", "queries": [{"name": "J", "joinOperation":
              {"left": {"queryRef": "A", "cardinality": "1:1"}, "right": {"queryRef": "B", "cardinality": "0:N"},
               "joinFilter": "a = b"}}]})"));
  expectXml(executeOf("",
                      queryOf("S", R"(<queryOperation duplicates="remove" name="set" setOperation="UNION"><queryRefs>)"
                                   R"(<queryRef refQuery="leftQuery"/><queryRef refQuery="rightQuery"/></queryRefs>)"
                                   R"(<projectionList><queryItem name="x"/></projectionList></queryOperation>)"),
                      "S"),
            encodedBody("execute", R"({"modelPath": "m", "queries": [{"name": "S", "queryOperation":
              {"setOperation": "UNION", "duplicates": "remove", "projectionList": ["x"]}}]})"));
}

TEST(ExecuteKind, LocaleHintsPropertiesAndFeedback) {
  expectXml(
      executeOf(R"( expressionLocale="fr")", queryOf("A", "<model/>"), "A",
                R"(<requestHints><noDataMode enabled="true"/><executionOptimization value="allRows"/></requestHints>)"
                R"(</querySet><property name="k" value="v"/>)"
                R"(<queryFeedback severityLevel="keyTransformation"><property name="columnList"/></queryFeedback>)"),
      encodedBody("execute", R"({"modelPath": "m", "expressionLocale": "fr", "queries": [{"name": "A"}],
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

namespace {

/// A command with this in its "querySet" and in its "execute", as a client wrote it: without result definitions, which
/// follow from the queries, and with what no JSON has.
std::string captured(const std::string& querySet, const std::string& execute = "") {
  return R"(<command xmlns="urn:x"><connection><dataSourceType value="QueryFrameworkService"/>)"
         R"(<serviceID value="DX"/><username value="ada"/></connection><execute><querySet expressionLocale="de">)"
         "<modelPath>m</modelPath><reportName>DXRequest</reportName>" +
         querySet + "</querySet>" + execute +
         R"(</execute><commandID value="C"/><requestID value="R"/><unheardOf/></command>)";
}

}  // namespace

TEST(ExecuteKind, CapturedCommandDecodesToWhatMakesIt) {
  EXPECT_EQ(
      R"({"modelPath":"m","expressionLocale":"de","commandID":"C","requestID":"R","connection":{"username":"ada"},)"
      R"("queries":[{"name":"A","autoSummary":true,)"
      R"("dataItems":[{"name":"x","expression":"[x] + 1","tag":"t","sort":"descending","rollupAggregate":"total"}],)"
      R"("detailFilters":[{"expression":"[x] > 0","use":"required"}],"queryHints":{"autoSort":"minimal"}},)"
      R"({"name":"B","queryRef":"A"},)"
      R"({"name":"J","joinOperation":{"left":{"queryRef":"A","cardinality":"1:1"},)"
      R"("right":{"queryRef":"B","cardinality":"0:N"},"joinFilter":"a = b"}},)"
      R"({"name":"S","queryOperation":{"setOperation":"UNION","duplicates":"remove","projectionList":["x"]}}],)"
      R"("requestHints":{"executionOptimization":"allRows"},"properties":{"k":"v"},"queryFeedback":["columnList"],)"
      R"("severityLevel":"warning"})"
      "\n",
      decoded(
          "execute",
          captured(
              R"(<queries><query name="A"><source><model/></source><selection autoSummary="true">)"
              R"(<dataItem name="x" sort="descending" rollupAggregate="total"><expression>[x] + 1</expression>)"
              R"(<tag>t</tag></dataItem></selection><detailFilter><filter use="required">)"
              R"(<filterExpression>[x] &gt; 0</filterExpression></filter></detailFilter>)"
              R"(<queryHints><avoidZeroDiv value="true"/><autoSort value="minimal"/></queryHints></query>)" +
                  queryOf("B", R"(<queryRef refQuery="A"/>)") +
                  queryOf("J", R"(<joinOperation><joinOperands><joinOperand cardinality="1:1"><queryRef refQuery="A"/>)"
                               R"(</joinOperand><joinOperand cardinality="0:N"><queryRef refQuery="B"/></joinOperand>)"
                               R"(</joinOperands><joinFilter><filterExpression>a = b</filterExpression></joinFilter>)"
                               R"(</joinOperation>)") +
                  queryOf("S", R"(<queryOperation duplicates="remove" name="set" setOperation="UNION"><queryRefs>)"
                               R"(<queryRef refQuery="leftQuery"/><queryRef refQuery="rightQuery"/></queryRefs>)"
                               R"(<projectionList><queryItem name="x"/></projectionList></queryOperation>)") +
                  R"(</queries><requestHints><executionOptimization value="allRows"/></requestHints>)",
              R"(<property name="k" value="v"/><queryFeedback severityLevel="warning"><property name="columnList"/>)"
              R"(</queryFeedback>)")));
}

TEST(ExecuteKind, CommandThatNoJsonMakesIsRefusedWithItsPlace) {
  const std::string in = "standard input: /command/execute/querySet";
  const auto expectRefused = [](const std::string& message, const std::string& querySet) {
    expectFailure(kStatusUnfit, message, run({"decode", "execute"}, captured(querySet)));
  };
  expectRefused(in + R"(: the element "queries" is missing)", "");
  expectRefused(in + "/queries: a command needs at least one query", "<queries/>");
  expectRefused(
      in + R"(/queries/query[2]/selection/dataItem: "sort" is "up", none of "none", "ascending", "descending")",
      "<queries>" + queryOf("A", "<model/>") +
          R"(<query name="B"><source/><selection><dataItem name="x" sort="up"/></selection></query></queries>)");
  expectRefused(in + "/queries/query/source/joinOperation/joinOperands: a join has two operands",
                "<queries>" +
                    queryOf("J", R"(<joinOperation><joinOperands><joinOperand/></joinOperands></joinOperation>)") +
                    "</queries>");
  expectFailure(
      kStatusUnfit,
      R"(standard input: no execute: its command is not "execute"; it is closeConnections; try dxmd decode closeConnections)",
      run({"decode", "execute"}, "<command><closeConnections/></command>"));
}
