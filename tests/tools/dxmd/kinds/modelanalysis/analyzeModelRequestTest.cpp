#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(AnalyzeModelRequestKind, ObjectsAndChecksAreWrittenAndRead) {
  const std::string json = R"({"tasks":[{"name":"doSpecifiedChecks","objects":["a","b","a"],)"
                           R"("checks":["joinAtDifferentLevels","cachingConflict"]},{"name":"doSpecifiedChecks"}]})";
  const std::string xml = encoded("analyzeModelRequest", json);
  expectXml(
      R"(<analyzeModelRequest><tasks><task name="doSpecifiedChecks"><objects><object id="a"/><object id="b"/>)"
      R"(<object id="a"/></objects><checks><check name="joinAtDifferentLevels"/><check name="cachingConflict"/>)"
      R"(</checks></task><task name="doSpecifiedChecks"><objects/><checks/></task></tasks></analyzeModelRequest>)",
      xml);
  EXPECT_EQ(json + "\n", decoded("analyzeModelRequest", xml));
}

TEST(AnalyzeModelRequestKind, ChecksThatAreNotSupportedAreNamed) {
  EXPECT_NE(std::string::npos,
            run({"kinds", "analyzeModelRequest"}).out.find("but not supported: joinAtDifferentLevels\n"));
}

TEST(AnalyzeModelRequestKind, RequestThatNoReaderTakesIsRefusedWithItsPlace) {
  expectFailure(
      kStatusUnfit, "standard input: $.tasks[0].objects[1]: must not be empty",
      run({"encode", "analyzeModelRequest"}, R"({"tasks": [{"name": "doSpecifiedChecks", "objects": ["a", ""]}]})"));
  expectFailure(kStatusUnfit, R"(standard input: /analyzeModelRequest/task/task: it stands inside another "task")",
                run({"decode", "analyzeModelRequest"},
                    R"(<analyzeModelRequest><task name="doSpecifiedChecks"><task name="doSpecifiedChecks"/></task>)"
                    "</analyzeModelRequest>"));
}
