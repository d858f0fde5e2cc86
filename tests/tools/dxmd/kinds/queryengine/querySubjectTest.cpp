#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

std::string commandOf(const std::string& definition, const std::string& name = "aBmtQuerySubject") {
  return inDXEnvelope(R"(<querySubject type="querySubject"><name>)" + name + "</name><definition>" + definition +
                      "</definition></querySubject>");
}

std::string jsonOf(const std::string& definition) {
  return R"({"modelPath":"m","definition":")" + definition + R"(","commandID":"DXCommand","requestID":"DXRequest"})";
}

}  // namespace

TEST(QuerySubjectKind, FirstSqlTypeIsWrittenAnotherWayAndReadBack) {
  const std::pair<const char*, const char*> all[] = {
      {R"(<sql type=\"veltra\">x</sql>)", R"(<sql type="Veltra">x</sql>)"},
      {R"(<q><sql type=\"native\"/><a><sql type=\"veltra\"/></a><sql type=\"veltra\"/></q>)",
       R"(<q><sql type="native"/><a><sql type="Veltra"/></a><sql type="veltra"/></q>)"},
      {R"(<q><sql/></q>)", R"(<q><sql/></q>)"},
  };
  for (const auto& [json, xml] : all) {
    expectXml(commandOf(xml), encoded("querySubject", jsonOf(json)));
    EXPECT_EQ(jsonOf(json) + "\n", decoded("querySubject", commandOf(xml)));
  }
}

TEST(QuerySubjectKind, CommandThatNoJsonMakesIsRefusedWithItsPlace) {
  const std::string in = "standard input: /command/dxCommand/querySubject";
  const auto expectRefused = [](const std::string& message, const std::string& xml) {
    expectFailure(kStatusUnfit, message, run({"decode", "querySubject"}, xml));
  };
  expectRefused(in + "/definition: a definition is one element", commandOf("x"));
  expectRefused(in + "/definition: a definition is one element", commandOf("<a/><b/>"));
  expectRefused(in + R"(/definition/q/sql[1]: the first "type" that is "veltra" is written as "Veltra")",
                commandOf(R"(<q><sql type="veltra"/><sql type="Veltra"/></q>)"));
  expectRefused(in + R"(: its name is not "aBmtQuerySubject")", commandOf("<q/>", "other"));
  expectRefused(
      R"(standard input: no querySubject: its command is not "querySubject"; it is expandParameter; try dxmd decode expandParameter)",
      inDXEnvelope("<expand/>"));
}
