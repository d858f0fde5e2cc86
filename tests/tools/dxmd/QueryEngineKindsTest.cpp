#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

std::string encoded(const std::string& kind, const std::string& json) {
  const ToolRun result = run({"encode", kind}, json);
  EXPECT_EQ("", result.err);
  return result.out.substr(0, result.out.find('\n'));
}

std::string decoded(const std::string& kind, const std::string& xml) {
  const ToolRun result = run({"decode", kind, "--indent", "0"}, xml);
  EXPECT_EQ("", result.err);
  return result.out;
}

}  // namespace

TEST(QueryEngineKinds, CommandsStandInTheModellingEnvelope) {
  expectXml(inDXEnvelope("<expand><expression>?p?</expression></expand>"),
            encoded("expandParameter", R"({"modelPath": "m", "expression": "?p?"})"));
  expectXml(inDXEnvelope("<getJoinPaths><expression>b</expression><expression>a</expression></getJoinPaths>"),
            encoded("getJoinPaths", R"({"modelPath": "m", "expressions": ["b", "", "a"]})"));
  expectXml(inDXEnvelope("<refinePublishedModel><expression>b</expression><expression>a</expression>"
                         "</refinePublishedModel>"),
            encoded("refineObjects", R"({"modelPath": "m", "objectIDs": ["b", "a"]})"));
  expectXml(inDXEnvelope(R"(<querySubject type="querySubject"><name>aBmtQuerySubject</name><definition>)"
                         R"(<sql type="Veltra">x</sql></definition></querySubject>)"),
            encoded("querySubject", R"({"modelPath": "m", "definition": "<sql type='veltra'>x</sql>"})"));
}

TEST(QueryEngineKinds, LocaleFeedbackConnectionAndIdentifiersHaveTheirPlaces) {
  const std::string xml = encoded("expandParameter", R"({"modelPath": "m", "expression": "", "queryLocale": "de",
    "queryFeedback": ["tableType", "connections"], "commandID": "c", "requestID": "r",
    "connection": {"passport": "p"}})");
  EXPECT_NE(std::string::npos, xml.find(R"(<VAMPassport value="p"/><serviceID value="DX"/></connection><dxCommand)"));
  EXPECT_NE(std::string::npos, xml.find(R"(<dxCommand queryLocale="de"><source><model>m</model></source><expand>)"));
  EXPECT_NE(std::string::npos,
            xml.find(R"(<queryFeedback><property name="tableType"/><property name="connections"/></queryFeedback>)"
                     R"(</dxCommand><commandID value="c"/><requestID value="r"/></command>)"));
}

TEST(QueryEngineKinds, CancelKeepsItsIdentifiersUnlessGiven) {
  const std::string tail = R"(<cancel><requestID value="DXRequest"/></cancel><commandID value="DXCancelCommand"/>)";
  EXPECT_NE(std::string::npos,
            encoded("cancelQuery", "{}").find(tail + R"(<requestID value="DXCancelRequest"/></command>)"));
  EXPECT_NE(std::string::npos,
            encoded("cancelQuery", R"({"requestID": "r"})").find(tail + R"(<requestID value="r"/>)"));
}

TEST(QueryEngineKinds, TestConnectionGivesEachValueItsPlace) {
  expectXml(R"(<command><connection><dataSourceType value="QueryFrameworkService"/><connection>)"
            R"(<dataSource value="ds"/><dataSourceType value="Database"/><connectionString value="cs"/>)"
            R"(<name value="cn"/><username value="un"/><password value="pw"/><cubePassword value="cp"/>)"
            R"(<namespace value="ns"/><signon><name value="sn"/></signon>)"
            R"(</connection></connection><testConnection/></command>)",
            encoded("testConnection", R"({"dataSource": "ds", "name": "cn", "signon": "sn", "username": "un",
                    "password": "pw", "connectionString": "cs", "cubePassword": "cp", "namespace": "ns"})"));
}

TEST(QueryEngineKinds, RepliesAreRead) {
  EXPECT_EQ("{\"expansionResult\":\"a\"}\n",
            decoded("expansionResult", "<response>\n<expansionResult>a</expansionResult></response>"));
  EXPECT_EQ("{\"pathExists\":true,\"joins\":[\"a\",\"b\"]}\n",
            decoded("joinPaths", "<r><joinPath><join>b</join><join>a</join><join>b</join></joinPath></r>"));
  EXPECT_EQ("{\"pathExists\":false,\"joins\":[]}\n", decoded("joinPaths", "<response/>"));
  EXPECT_EQ(
      "{\"objectIDs\":[\"b\",\"a\"]}\n",
      decoded("refinedObjects", "<r><response><expression>b</expression><expression>a</expression></response></r>"));
  EXPECT_EQ("{\"objectIDs\":[]}\n", decoded("refinedObjects", "<response/>"));
}

TEST(QueryEngineKinds, WhatAHelperRefusesIsUnfit) {
  expectFailure(kStatusUnfit, "standard input: VqeRefineObjectsHelper refuses it: TRN_ASSERT(!objectID.empty());",
                run({"encode", "refineObjects"}, R"({"modelPath": "m", "objectIDs": ["a", ""]})"));
  EXPECT_EQ(kStatusUnfit, run({"decode", "expansionResult"}, "<response/>").status);
  EXPECT_EQ(kStatusUnfit,
            run({"decode", "refinedObjects"}, "<response><expression>a</expression>\n</response>").status);
}

TEST(QueryEngineKinds, ParameterValuesUnderTheNameOfASecretAreHidden) {
  const std::string xml = R"(<parameters><parameter name="Password" value="hush"/><parameter name="a"/></parameters>)";
  EXPECT_EQ(R"({"parameters":[{"name":"Password","value":"***"},{"name":"a","value":""}]})"
            "\n",
            decoded("getParameters", xml));
  const ToolRun shown = run({"decode", "getParameters", "--show-secrets"}, xml);
  EXPECT_NE(std::string::npos, shown.out.find("hush"));
}
