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

namespace {

std::string decodedContent(const std::string& content) {
  return decoded("connection", "<connection>" + content + "</connection>");
}

}  // namespace

TEST(ConnectionKind, SessionIDsAreReadAsTheNumbersThatWriteThem) {
  const std::string service = R"(<dataSourceType value="QueryFrameworkService"/><serviceID value="DX"/>)";
  EXPECT_EQ("{\"sessionID\":4294967295}\n", decodedContent(service + R"(<sessionID value="-1"/>)"));
  EXPECT_EQ("{\"sessionID\":17}\n", decodedContent(service + R"(<sessionID value="17"/>)"));
  for (const std::string odd : {"017", "4294967295", "x", "1 "})
    EXPECT_EQ("{\"properties\":{\"sessionID\":\"" + odd + "\"}}\n",
              decodedContent(service + "<sessionID value=\"" + odd + "\"/>"));
}

TEST(ConnectionKind, ServiceThatIsNotTheUsualOneIsAProperty) {
  EXPECT_EQ("{\"properties\":{\"serviceID\":\"X\"}}\n",
            decodedContent(R"(<dataSourceType value="QueryFrameworkService"/><serviceID value="X"/>)"));
  EXPECT_EQ("{\"providerType\":\"\",\"properties\":{\"serviceID\":\"\"}}\n", decodedContent(""));
}

TEST(ConnectionKind, FlagsAndModelsOfOtherTextsAreRefused) {
  expectFailure(
      kStatusUnfit, "standard input: /connection/property: the value is neither TRUE nor FALSE",
      run({"decode", "connection"}, R"(<connection><property name="RETAINCONNECTION" value="true"/></connection>)"));
  expectFailure(
      kStatusUnfit,
      "standard input: /connection/connection[2]/dataSourceType: a model is of type \"bmeModel\" or \"Model\"",
      run({"decode", "connection"}, R"(<connection><connection><dataSourceType value="Model"/></connection>)"
                                    R"(<connection><dataSourceType value="model"/></connection></connection>)"));
}
