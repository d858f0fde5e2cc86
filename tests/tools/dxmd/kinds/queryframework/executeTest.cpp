#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

namespace {

std::string queryOf(const std::string& name, const std::string& source) {
  return "<query name=\"" + name + "\"><source>" + source +
         R"(</source><selection autoSummary="false"/><queryHints><avoidZeroDiv value="true"/></queryHints></query>)";
}

/// A command with this in its "querySet", as a client wrote it: without result definitions, which follow from the
/// queries, and with what no JSON has.
std::string captured(const std::string& querySet) {
  return R"(<command xmlns="urn:x"><connection><dataSourceType value="QueryFrameworkService"/>)"
         R"(<serviceID value="DX"/><username value="ada"/></connection><execute><querySet expressionLocale="de">)"
         "<modelPath>m</modelPath><reportName>DXRequest</reportName>" +
         querySet + R"(</querySet></execute><commandID value="C"/><requestID value="R"/><unheardOf/></command>)";
}

}  // namespace

TEST(ExecuteKind, CapturedCommandDecodesToWhatMakesIt) {
  expectDecoded("execute",
                captured("<queries>" + queryOf("A", "<model/>") + queryOf("B", R"(<queryRef refQuery="A"/>)") +
                         R"(</queries><requestHints><noDataMode enabled="true"/></requestHints>)"),
                R"({"modelPath":"m","expressionLocale":"de","commandID":"C","requestID":"R",)"
                R"("connection":{"username":"ada"},"queries":[{"name":"A"},{"name":"B","queryRef":"A"}],)"
                R"("requestHints":{"noDataMode":"true"}})");
}

TEST(ExecuteKind, RefusesWhatNoCommandCanBe) {
  expectNotEncoded("execute", R"({"modelPath": "m", "queries": []})", "$.queries: a command needs at least one query");
  expectNotEncoded("execute",
                   R"({"modelPath": "m", "queries": [{"name": "A", "queryRef": "B", "queryOperation": {}}]})",
                   R"($.queries[0]: "queryRef", "joinOperation" and "queryOperation" exclude each other)");
}

TEST(ExecuteKind, CommandThatNoJsonMakesIsRefusedWithItsPlace) {
  const auto expectRefused = [](const std::string& querySet, const std::string& message) {
    expectNotDecoded("execute", captured(querySet), "/command/execute/querySet" + message);
  };
  expectRefused("", R"(: the element "queries" is missing)");
  expectRefused("<queries/>", "/queries: a command needs at least one query");
  expectRefused(
      "<queries>" + queryOf("A", "<model/>") +
          R"(<query name="B"><source/><selection><dataItem name="x" sort="up"/></selection></query></queries>)",
      R"(/queries/query[2]/selection/dataItem: "sort" is "up", none of "none", "ascending", "descending")");
  expectRefused("<queries>" +
                    queryOf("J", R"(<joinOperation><joinOperands><joinOperand/></joinOperands></joinOperation>)") +
                    "</queries>",
                "/queries/query/source/joinOperation/joinOperands: a join has two operands");
  expectNotDecoded(
      "execute", "<command><closeConnections/></command>",
      R"(no execute: its command is not "execute"; it is closeConnections; try dxmd decode closeConnections)");
}
