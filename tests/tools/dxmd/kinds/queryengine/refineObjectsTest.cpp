#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(RefineObjectsKind, ObjectsStandInTheRequestInOrder) {
  expectXml(inDXEnvelope("<refinePublishedModel><expression>b</expression><expression>a</expression>"
                         "</refinePublishedModel>"),
            encoded("refineObjects", R"({"modelPath": "m", "objectIDs": ["b", "a"]})"));
}

TEST(RefineObjectsKind, CapturedCommandDecodesToWhatMakesIt) {
  EXPECT_EQ(R"({"modelPath":"m","objectIDs":["b","a"],"commandID":"C","requestID":"R","queryLocale":"de",)"
            R"("queryFeedback":["tableType"]})"
            "\n",
            decoded("refineObjects", R"(<command><dxCommand queryLocale="de"><source><model>m</model></source>
                <refinePublishedModel><expression>b</expression> <expression>a</expression></refinePublishedModel>
                <queryFeedback><property name="tableType"/></queryFeedback></dxCommand>
              <commandID value="C"/><requestID value="R"/></command>)"));
}

TEST(RefineObjectsKind, EmptyObjectIsRefusedWithItsPlace) {
  expectFailure(kStatusUnfit, "standard input: $.objectIDs[1]: must not be empty",
                run({"encode", "refineObjects"}, R"({"modelPath": "m", "objectIDs": ["a", ""]})"));
  expectFailure(
      kStatusUnfit, "standard input: /command/dxCommand/refinePublishedModel/expression: must not be empty",
      run({"decode", "refineObjects"}, inDXEnvelope("<refinePublishedModel><expression/></refinePublishedModel>")));
}
