#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

std::string commandOf(const std::string& definition, const std::string& name = "aBmtQuerySubject") {
  return inDXEnvelope(R"(<querySubject type="querySubject"><name>)" + name + "</name><definition>" + definition +
                      "</definition></querySubject>");
}

}  // namespace

TEST(QuerySubjectKind, FirstSqlTypeIsWrittenAnotherWayAndReadBack) {
  const auto expectDefinition = [](const std::string& json, const std::string& xml) {
    expectBothWays(
        "querySubject",
        R"({"modelPath":"m","definition":")" + json + R"(","commandID":"DXCommand","requestID":"DXRequest"})",
        commandOf(xml));
  };
  expectDefinition(R"(<sql type=\"veltra\">x</sql>)", R"(<sql type="Veltra">x</sql>)");
  expectDefinition(R"(<q><sql type=\"native\"/><a><sql type=\"veltra\"/></a><sql type=\"veltra\"/></q>)",
                   R"(<q><sql type="native"/><a><sql type="Veltra"/></a><sql type="veltra"/></q>)");
  expectDefinition("<q><sql/></q>", "<q><sql/></q>");
}

TEST(QuerySubjectKind, CommandThatNoJsonMakesIsRefusedWithItsPlace) {
  const std::string in = "/command/dxCommand/querySubject";
  expectNotDecoded("querySubject", commandOf("x"), in + "/definition: a definition is one element");
  expectNotDecoded("querySubject", commandOf("<a/><b/>"), in + "/definition: a definition is one element");
  expectNotDecoded("querySubject", commandOf(R"(<q><sql type="veltra"/><sql type="Veltra"/></q>)"),
                   in + R"(/definition/q/sql[1]: the first "type" that is "veltra" is written as "Veltra")");
  expectNotDecoded("querySubject", commandOf("<q/>", "other"), in + R"(: its name is not "aBmtQuerySubject")");
  expectNotDecoded(
      "querySubject", inDXEnvelope("<expand/>"),
      R"(no querySubject: its command is not "querySubject"; it is expandParameter; try dxmd decode expandParameter)");
}
