#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(ExpandParameterKind, StandsInTheModellingEnvelope) {
  expectXml(inDXEnvelope("<expand><expression>?p?</expression></expand>"),
            encoded("expandParameter", R"({"modelPath": "m", "expression": "?p?"})"));
  const std::string json = R"({"modelPath":"m","expression":"?p?","commandID":"DXCommand","requestID":"DXRequest"})";
  EXPECT_EQ(json + "\n", decoded("expandParameter", inDXEnvelope("<expand><expression>?p?</expression></expand>")));
}

TEST(ExpandParameterKind, LocaleFeedbackConnectionAndIdentifiersHaveTheirPlaces) {
  const std::string xml = encoded("expandParameter", R"({"modelPath": "m", "expression": "", "queryLocale": "de",
    "queryFeedback": ["tableType", "connections"], "commandID": "c", "requestID": "r",
    "connection": {"passport": "p"}})");
  EXPECT_NE(std::string::npos, xml.find(R"(<VAMPassport value="p"/><serviceID value="DX"/></connection><dxCommand)"));
  EXPECT_NE(std::string::npos, xml.find(R"(<dxCommand queryLocale="de"><source><model>m</model></source><expand>)"));
  EXPECT_NE(std::string::npos,
            xml.find(R"(<queryFeedback><property name="tableType"/><property name="connections"/></queryFeedback>)"
                     R"(</dxCommand><commandID value="c"/><requestID value="r"/></command>)"));
}

TEST(ExpandParameterKind, CommandWithoutItsPartsIsRefused) {
  expectFailure(kStatusUnfit, R"(standard input: /command/dxCommand: the element "source" is missing)",
                run({"decode", "expandParameter"}, "<command><dxCommand><expand/></dxCommand></command>"));
  expectFailure(
      kStatusUnfit,
      R"(standard input: no expandParameter: its command is not "expand"; it is getJoinPaths; try dxmd decode getJoinPaths)",
      run({"decode", "expandParameter"}, "<command><dxCommand><getJoinPaths/></dxCommand></command>"));
}
