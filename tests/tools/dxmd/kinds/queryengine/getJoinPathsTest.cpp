#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(GetJoinPathsKind, ExpressionsThatAreNotEmptyAreWrittenInOrder) {
  expectXml(inDXEnvelope("<getJoinPaths><expression>b</expression><expression>a</expression></getJoinPaths>"),
            encoded("getJoinPaths", R"({"modelPath": "m", "expressions": ["b", "", "a"]})"));
}

TEST(GetJoinPathsKind, CapturedCommandDecodesToWhatMakesIt) {
  EXPECT_EQ(R"({"modelPath":"m","expressions":["[b] < 1","a"],"commandID":"C","requestID":"R",)"
            R"("queryLocale":"de","queryFeedback":["executionPlan"]})"
            "\n",
            decoded("getJoinPaths", R"(<command><dxCommand queryLocale="de"><source><model>m</model></source>
                <getJoinPaths><expression>[b] &lt; 1</expression> <expression>a</expression></getJoinPaths>
                <queryFeedback><property name="executionPlan"/></queryFeedback></dxCommand>
              <commandID value="C"/><requestID value="R"/></command>)"));
  EXPECT_EQ(R"({"modelPath":"m","expressions":[],"commandID":"DXCommand","requestID":"DXRequest"})"
            "\n",
            decoded("getJoinPaths", inDXEnvelope("<getJoinPaths/>")));
}

TEST(GetJoinPathsKind, EmptyExpressionIsRefusedSinceNoJsonMakesIt) {
  expectFailure(kStatusUnfit, "standard input: /command/dxCommand/getJoinPaths/expression[2]: must not be empty",
                run({"decode", "getJoinPaths"},
                    inDXEnvelope("<getJoinPaths><expression>a</expression><expression/></getJoinPaths>")));
}
