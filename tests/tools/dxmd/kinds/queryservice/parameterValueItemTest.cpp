#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// The JSON that comes back from an item encoded from it.
std::string itemAgain(const std::string& json) {
  const std::string again = decoded("parameterValueItem", encoded("parameterValueItem", json));
  return again.substr(0, again.find('\n'));
}

}  // namespace

TEST(ParameterValueItemKind, TypesAreThoseOfTheBus) {
  const auto expectItem = [](const std::string& xml, const std::string& json) {
    expectXml(xml, encoded("parameterValueItem", json));
  };
  expectItem(R"(<item xsi:nil="true"/>)", R"({"type": "null"})");
  expectItem(R"(<item xsi:type="bus:simpleParmValueItem"><inclusive>true</inclusive><use>a</use></item>)",
             R"({"type": "simple", "use": "a"})");
  expectItem(R"(<item xsi:type="bus:unboundedStartParmValueItem"><bus:end><inclusive>false</inclusive><use>9</use>)"
             R"(</bus:end></item>)",
             R"({"type": "range", "end": {"inclusive": false, "use": "9"}})");
  expectItem(R"(<item xsi:type="bus:hierarchicalParmValueItem"><value><inclusive>true</inclusive></value>)"
             R"(<subNodes xsi:nil="true"/></item>)",
             R"({"type": "hierarchy", "value": {}})");
}

TEST(ParameterValueItemKind, EveryFormComesBack) {
  for (
      const char* json :
      {R"({"type":"null"})", R"({"type":"simple","inclusive":false,"use":"a"})",
       R"({"type":"simple","inclusive":true})", R"({"type":"range"})",
       R"({"type":"range","end":{"inclusive":false,"use":"9"}})",
       R"({"type":"range","start":{"inclusive":true},"end":{"inclusive":true,"use":"9"}})", R"({"type":"hierarchy"})",
       R"({"type":"hierarchy","value":{"inclusive":true,"use":"a"},"subNodes":[{"value":{"inclusive":false,"use":"b"},)"
       R"("subNodes":[{"value":{"inclusive":true,"use":"c"}}]},{"value":{"inclusive":true,"use":"d"}}]})"})
    EXPECT_EQ(json, itemAgain(json));
}

TEST(ParameterValueItemKind, ItemWithoutValueReadsAsHavingTheFirstBelow) {
  EXPECT_EQ(R"({"type":"hierarchy","value":{"inclusive":true,"use":"a"},"subNodes":[{"value":{"inclusive":true,)"
            R"("use":"a"}}]})",
            itemAgain(R"({"type": "hierarchy", "subNodes": [{"value": {"use": "a"}}]})"));
}

TEST(ParameterValueItemKind, DisplayIsReadButNotWritten) {
  EXPECT_EQ("{\n  \"type\": \"simple\",\n  \"inclusive\": true,\n  \"use\": \"a\",\n  \"display\": \"A\"\n}\n",
            run({"decode", "parameterValueItem"},
                R"(<item xsi:type="bus:simpleParmValueItem"><use>a</use><display>A</display></item>)")
                .out);
  EXPECT_EQ(R"({"type":"simple","inclusive":true,"use":"a"})",
            itemAgain(R"({"type":"simple","use":"a","display":"A"})"));
}

TEST(ParameterValueItemKind, KeysOfAnotherFormAndOtherTypesAreRefused) {
  expectFailure(kStatusUnfit, R"(standard input: $: unknown key "use"; known are "type")",
                run({"encode", "parameterValueItem"}, R"({"type": "null", "use": "a"})"));
  expectFailure(kStatusUnfit,
                R"(standard input: $: unknown key "start"; known are "type", "inclusive", "use", "display")",
                run({"encode", "parameterValueItem"}, R"({"type": "simple", "start": {}})"));
  expectFailure(kStatusUnfit, R"(standard input: $.type: "odd" is none of "simple", "range", "hierarchy", "null")",
                run({"encode", "parameterValueItem"}, R"({"type": "odd"})"));
  EXPECT_EQ(kStatusUnfit, run({"decode", "parameterValueItem"}, R"(<item xsi:type="odd"/>)").status);
}

TEST(ParameterValueItemKind, ItemsTooDeepForJsonAreRefused) {
  std::string xml = "<item/>";
  for (int depth = 0; depth < 1000; ++depth) xml = "<item><subNodes>" + xml + "</subNodes></item>";
  xml.replace(0, 5, R"(<item xsi:type="bus:hierarchicalParmValueItem")");
  EXPECT_EQ(kStatusUnfit, run({"decode", "parameterValueItem"}, xml).status);
}
