#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(GetJoinPathsKind, EmptyExpressionIsNotWrittenAndRefusedSinceNoJsonMakesIt) {
  expectEncoded("getJoinPaths", R"({"modelPath": "m", "expressions": ["b", "", "a"]})",
                inDXEnvelope("<getJoinPaths><expression>b</expression><expression>a</expression></getJoinPaths>"));
  expectNotDecoded("getJoinPaths", inDXEnvelope("<getJoinPaths><expression>a</expression><expression/></getJoinPaths>"),
                   "/command/dxCommand/getJoinPaths/expression[2]: must not be empty");
}
