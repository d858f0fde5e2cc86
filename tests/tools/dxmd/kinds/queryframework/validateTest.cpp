#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(ValidateKind, ContentIsCopiedInOrder) {
  expectEncoded("validate", R"({"content": ["<a>1</a>", "<b/>"]})", inEnvelope("<validate><a>1</a><b/></validate>"));
}

TEST(ValidateKind, CapturedCommandDecodesToWhatMakesIt) {
  expectDecoded("validate", R"(<command xmlns="urn:x" xmlns:xsi="urn:y"><connection>
                <dataSourceType value="QueryFrameworkService"/><serviceID value="DX"/><username value="ada"/></connection>
              <validate>
                <a xsi:type="t">1 <i/></a><!-- not content -->
                <b/>
              </validate><commandID value="C"/><requestID value="R"/></command>)",
                R"({"commandID":"C","requestID":"R","connection":{"username":"ada"},)"
                R"("content":["<a xsi:type=\"t\">1 <i/></a>","<b/>"]})");
}

TEST(ValidateKind, TextAmongTheContentIsRefusedSinceNoJsonMakesIt) {
  for (const char* content : {"<a/> x", "<![CDATA[x]]>"})
    expectNotDecoded("validate", "<command><validate>" + std::string(content) + "</validate></command>",
                     "/command/validate: text stands where only elements may");
}
