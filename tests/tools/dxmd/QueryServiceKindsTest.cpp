#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// The JSON that comes back from an item encoded from it.
std::string itemAgain(const std::string& json) {
  const ToolRun item = run({"encode", "parameterValueItem"}, json);
  EXPECT_EQ("", item.err);
  const std::string again = run({"decode", "parameterValueItem", "--indent", "0"}, item.out).out;
  return again.substr(0, again.find('\n'));
}

}  // namespace

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

TEST(ParameterValueItemKind, DisplayIsReadButNotWritten) {
  EXPECT_EQ("{\n  \"type\": \"simple\",\n  \"inclusive\": true,\n  \"use\": \"a\",\n  \"display\": \"A\"\n}\n",
            run({"decode", "parameterValueItem"},
                R"(<item xsi:type="bus:simpleParmValueItem"><use>a</use><display>A</display></item>)")
                .out);
  EXPECT_EQ(R"({"type":"simple","inclusive":true,"use":"a"})",
            itemAgain(R"({"type":"simple","use":"a","display":"A"})"));
}

TEST(ParameterValueItemKind, KeysOfAnotherFormAndOtherTypesAreRefused) {
  EXPECT_EQ(kStatusUnfit, run({"encode", "parameterValueItem"}, R"({"type": "null", "use": "a"})").status);
  EXPECT_EQ(kStatusUnfit, run({"encode", "parameterValueItem"}, R"({"type": "simple", "start": {}})").status);
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

TEST(DataSourceFaultKind, EveryPartIsReadAndPasswordsAreHidden) {
  const std::string xml =
      R"(<detail><faultcode>c</faultcode><faultSubcode>sc</faultSubcode><faultstring>s</faultstring>)"
      R"(<faultSubstring>ss</faultSubstring><faultDataSource value="a"/>)"
      R"(<faultConnection><name value="fc"/><searchPath value="p"/><signon><name value="s1"/><searchPath value="p1"/></signon></faultConnection>)"
      R"(<faultSignon><name value="fs"/></faultSignon><dataSource><name value="a"/><type value="t"/>)"
      R"(<connection><name value="c1"/><connectionString value="Pwd=hush"/></connection></dataSource>)"
      R"(<dataSource><name value="a"/></dataSource><dataSource><type value="without name"/></dataSource></detail>)";
  EXPECT_EQ(
      R"({"faultcode":"c","faultSubcode":"sc","faultstring":"s","faultSubstring":"ss","faultDataSource":"a",)"
      R"("faultConnection":{"name":"fc","searchPath":"p","signons":[{"name":"s1","searchPath":"p1"}]},"faultSignon":{"name":"fs"},)"
      R"("dataSources":[{"name":"a","type":"t","connections":[{"name":"c1","searchPath":"Pwd=***"}]},)"
      R"({"name":"a"}]})"
      "\n",
      run({"decode", "dataSourceFault", "--indent", "0"}, xml).out);
  EXPECT_EQ("{}\n", run({"decode", "dataSourceFault"}, "<fault/>").out);
}
