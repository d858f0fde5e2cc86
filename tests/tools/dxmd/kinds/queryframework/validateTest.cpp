#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(ValidateKind, ContentIsCopiedInOrder) {
  expectXml("<validate><a>1</a><b/></validate>", encodedBody("validate", R"({"content": ["<a>1</a>", "<b/>"]})"));
  expectXml("<validate/>", encodedBody("validate", R"({"content": []})"));
}

TEST(ValidateKind, CapturedCommandDecodesToWhatMakesIt) {
  EXPECT_EQ(R"({"commandID":"C","requestID":"R","connection":{"username":"ada"},)"
            R"("content":["<a xsi:type=\"t\">1 <i/></a>","<b/>"]})"
            "\n",
            decoded("validate", R"(<command xmlns="urn:x" xmlns:xsi="urn:y"><connection>
                <dataSourceType value="QueryFrameworkService"/><serviceID value="DX"/><username value="ada"/></connection>
              <validate>
                <a xsi:type="t">1 <i/></a><!-- not content -->
                <b/>
              </validate><commandID value="C"/><requestID value="R"/></command>)"));
}

TEST(ValidateKind, TextAmongTheContentIsRefusedSinceNoJsonMakesIt) {
  const std::string message = "standard input: /command/validate: text stands where only elements may";
  expectFailure(kStatusUnfit, message, run({"decode", "validate"}, "<command><validate><a/> x</validate></command>"));
  expectFailure(kStatusUnfit, message,
                run({"decode", "validate"}, "<command><validate><![CDATA[x]]></validate></command>"));
}
