#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(GetParametersKind, ParametersAreReadAtAnyDepthAndWrittenInOrder) {
  EXPECT_EQ(R"({"parameters":[{"name":"b","value":"1"},{"name":"a","value":""},{"name":"b","value":"2"}]})"
            "\n",
            decoded("getParameters", R"(<parameters><parameter name="b" value="1"/><more><parameter name="a"/></more>
                                        <parameter value="2" name="b"/></parameters>)"));
  expectXml(R"(<parameters><parameter name="b" value="1"/><parameter name="a" value=""/></parameters>)",
            encoded("getParameters", R"({"parameters": [{"name": "b", "value": "1"}, {"name": "a", "value": ""}]})"));
}

TEST(GetParametersKind, ValuesUnderTheNameOfASecretAreHidden) {
  const std::string xml = R"(<parameters><parameter name="Password" value="hush"/><parameter name="a"/></parameters>)";
  EXPECT_EQ(R"({"parameters":[{"name":"Password","value":"***"},{"name":"a","value":""}]})"
            "\n",
            run({"decode", "getParameters", "--indent", "0"}, xml).out);
  EXPECT_NE(std::string::npos, decoded("getParameters", xml).find("hush"));
}
