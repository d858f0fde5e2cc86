#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// Encodes an item, and decodes what that gives.
void expectAgain(const std::string& json, const std::string& again) {
  expectDecoded("parameterValueItem", encoded("parameterValueItem", json), again);
}

}  // namespace

TEST(ParameterValueItemKind, TypesAreThoseOfTheBus) {
  expectBothWays("parameterValueItem", R"({"type":"null"})", R"(<item xsi:nil="true"/>)");
  expectBothWays("parameterValueItem", R"({"type":"simple","inclusive":true,"use":"a"})",
                 R"(<item xsi:type="bus:simpleParmValueItem"><inclusive>true</inclusive><use>a</use></item>)");
  expectBothWays("parameterValueItem", R"({"type":"range","end":{"inclusive":false,"use":"9"}})",
                 R"(<item xsi:type="bus:unboundedStartParmValueItem"><bus:end><inclusive>false</inclusive>)"
                 R"(<use>9</use></bus:end></item>)");
  expectBothWays("parameterValueItem", R"({"type":"hierarchy","value":{"inclusive":true}})",
                 R"(<item xsi:type="bus:hierarchicalParmValueItem"><value><inclusive>true</inclusive></value>)"
                 R"(<subNodes xsi:nil="true"/></item>)");
}

TEST(ParameterValueItemKind, ItemWithoutValueReadsAsHavingTheFirstBelow) {
  expectAgain(R"({"type": "hierarchy", "subNodes": [{"value": {"use": "a"}}]})",
              R"({"type":"hierarchy","value":{"inclusive":true,"use":"a"},)"
              R"("subNodes":[{"value":{"inclusive":true,"use":"a"}}]})");
}

TEST(ParameterValueItemKind, DisplayIsReadButNotWritten) {
  expectDecoded("parameterValueItem",
                R"(<item xsi:type="bus:simpleParmValueItem"><use>a</use><display>A</display></item>)",
                R"({"type":"simple","inclusive":true,"use":"a","display":"A"})");
  expectAgain(R"({"type":"simple","use":"a","display":"A"})", R"({"type":"simple","inclusive":true,"use":"a"})");
}

TEST(ParameterValueItemKind, KeysOfAnotherFormAndOtherTypesAreRefused) {
  expectNotEncoded("parameterValueItem", R"({"type": "null", "use": "a"})",
                   R"($: unknown key "use"; known are "type")");
  expectNotEncoded("parameterValueItem", R"({"type": "simple", "start": {}})",
                   R"($: unknown key "start"; known are "type", "inclusive", "use", "display")");
  EXPECT_EQ(kStatusUnfit, run({"decode", "parameterValueItem"}, R"(<item xsi:type="odd"/>)").status);
}

TEST(ParameterValueItemKind, ItemsTooDeepForJsonAreRefused) {
  const std::string xml = R"(<item xsi:type="bus:hierarchicalParmValueItem">)" + repeated(1000, "<subNodes><item>") +
                          repeated(1000, "</item></subNodes>") + "</item>";
  expectNotDecoded("parameterValueItem", xml, "the JSON for this document would nest deeper than 500 levels");
}
