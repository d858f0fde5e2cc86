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

TEST(ValidateKind, ContentIsCopiedInOrder) {
  expectXml("<validate><a>1</a><b/></validate>", encodedBody("validate", R"({"content": ["<a>1</a>", "<b/>"]})"));
}

TEST(ValidateReplyKind, SeverityAndTexts) {
  EXPECT_EQ("{\n  \"severity\": \"warning\",\n  \"messages\": \"x\\ny\\n\"\n}\n",
            run({"decode", "validateReply"},
                R"(<r><message severity="fatal">x</message><message severity="warning">y</message></r>)")
                .out);
  EXPECT_EQ("{\n  \"severity\": \"none\",\n  \"messages\": \"\"\n}\n",
            run({"decode", "validateReply"}, "<response/>").out);
}
