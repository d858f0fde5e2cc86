#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(UpdateKind, SubjectsAreTextsWithNames) {
  expectXml(
      R"(<update><updateSet><modelPath>m</modelPath><updateSubject name="s">&lt;x/&gt;</updateSubject></updateSet></update>)",
      encodedBody("update", R"({"modelPath": "m", "updateSubjects": [{"name": "s", "text": "<x/>"}]})"));
}

TEST(UpdateKind, CapturedCommandDecodesToWhatMakesIt) {
  EXPECT_EQ(R"({"modelPath":"m","commandID":"C","requestID":"R","updateSubjects":[{"name":"s","text":"<x/> & y"},)"
            R"({"name":"s","text":""}]})"
            "\n",
            decoded("update", R"(<command><update><updateSet>
        <modelPath>m</modelPath><note/>
        <updateSubject name="s">&lt;x/&gt;<![CDATA[ & y]]></updateSubject><updateSubject name="s"/>
      </updateSet></update><commandID value="C"/><requestID value="R"/></command>)"));
  EXPECT_EQ(R"({"modelPath":"","commandID":"","requestID":""})"
            "\n",
            decoded("update", "<command><update><updateSet/></update></command>"));
}

TEST(UpdateKind, CommandWithoutItsPartsIsRefused) {
  expectFailure(kStatusUnfit, R"(standard input: /command/update: the element "updateSet" is missing)",
                run({"decode", "update"}, "<command><update/></command>"));
  expectFailure(kStatusUnfit,
                R"(standard input: no update: its command is not "update"; it is validate; try dxmd decode validate)",
                run({"decode", "update"}, "<command><validate/></command>"));
}
