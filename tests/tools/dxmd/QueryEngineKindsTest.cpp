#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(QueryEngineKinds, CommandsStandInTheModellingEnvelope) {
  expectXml(inDXEnvelope("<getJoinPaths><expression>b</expression><expression>a</expression></getJoinPaths>"),
            encoded("getJoinPaths", R"({"modelPath": "m", "expressions": ["b", "", "a"]})"));
  expectXml(inDXEnvelope("<refinePublishedModel><expression>b</expression><expression>a</expression>"
                         "</refinePublishedModel>"),
            encoded("refineObjects", R"({"modelPath": "m", "objectIDs": ["b", "a"]})"));
  expectXml(inDXEnvelope(R"(<querySubject type="querySubject"><name>aBmtQuerySubject</name><definition>)"
                         R"(<sql type="Veltra">x</sql></definition></querySubject>)"),
            encoded("querySubject", R"({"modelPath": "m", "definition": "<sql type='veltra'>x</sql>"})"));
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
  EXPECT_EQ(kStatusUnfit,
            run({"decode", "refinedObjects"}, "<response><expression>a</expression>\n</response>").status);
}

TEST(QueryEngineKinds, ParameterValuesUnderTheNameOfASecretAreHidden) {
  const std::string xml = R"(<parameters><parameter name="Password" value="hush"/><parameter name="a"/></parameters>)";
  EXPECT_EQ(R"({"parameters":[{"name":"Password","value":"***"},{"name":"a","value":""}]})"
            "\n",
            run({"decode", "getParameters", "--indent", "0"}, xml).out);
  EXPECT_NE(std::string::npos, decoded("getParameters", xml).find("hush"));
}
