#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(ConnectionKind, EveryKeyHasItsPlace) {
  const ToolRun result = run({"encode", "connection"}, R"({
    "providerType": "P", "namespace": "n", "username": "u", "password": "p", "passport": "pp",
    "contentManagerURI": "c", "modelPath": "m", "runLocale": "fr", "productLocale": "de", "sessionID": 4294967295,
    "properties": {"serviceID": "X", "cubePassword": "cp"}, "models": [{"name": "a", "bme": true}, {"name": "b"}],
    "retainConnection": false, "disableAuthentication": true})");
  expectXml(R"(<connection><dataSourceType value="P"/><VAMPassport value="pp"/><contentManagerURI value="c"/>)"
            R"(<cubePassword value="cp"/><dataSource value="m"/><namespace value="n"/><password value="p"/>)"
            R"(<productLocale value="de"/><runLocale value="fr"/><serviceID value="X"/><sessionID value="-1"/>)"
            R"(<username value="u"/>)"
            R"(<connection><name value="a"/><dataSourceType value="bmeModel"/></connection>)"
            R"(<connection><name value="b"/><dataSourceType value="Model"/></connection>)"
            R"(<property name="RETAINCONNECTION" value="FALSE"/><property name="disableAuthentication" value="TRUE"/>)"
            "</connection>\n",
            result.out);
}

TEST(ConnectionKind, ErrorsDoNotShowSecrets) {
  expectFailure(kStatusUnfit, "standard input: $.password: expected a text, found a number",
                run({"encode", "connection"}, R"({"password": 123456})"));
  EXPECT_EQ(std::string::npos, run({"encode", "connection"}, R"({"password": "hush" "x"})").err.find("hush"));
}
