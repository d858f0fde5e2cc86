#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(AnalyzeModelRequestKind, ChecksThatAreNotSupportedAreNamed) {
  EXPECT_TRUE(has(run({"kinds", "analyzeModelRequest"}).out, "but not supported: joinAtDifferentLevels\n"));
}

TEST(AnalyzeModelRequestKind, TaskInsideAnotherIsRefusedWithItsPlace) {
  expectNotDecoded("analyzeModelRequest",
                   R"(<analyzeModelRequest><task name="doSpecifiedChecks"><task name="doSpecifiedChecks"/></task>)"
                   "</analyzeModelRequest>",
                   R"(/analyzeModelRequest/task/task: it stands inside another "task")");
}
