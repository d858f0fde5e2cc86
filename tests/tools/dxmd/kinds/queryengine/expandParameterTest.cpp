#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(ExpandParameterKind, StandsInTheModellingEnvelope) {
  const std::string xml = inDXEnvelope("<expand><expression>?p?</expression></expand>");
  expectEncoded("expandParameter", R"({"modelPath": "m", "expression": "?p?"})", xml);
  expectDecoded("expandParameter", xml,
                R"({"modelPath":"m","expression":"?p?","commandID":"DXCommand","requestID":"DXRequest"})");
}

TEST(ExpandParameterKind, CommandWithoutItsPartsIsRefused) {
  expectNotDecoded("expandParameter", "<command><dxCommand><expand/></dxCommand></command>",
                   R"(/command/dxCommand: the element "source" is missing)");
  expectNotDecoded(
      "expandParameter", "<command><dxCommand><getJoinPaths/></dxCommand></command>",
      R"(no expandParameter: its command is not "expand"; it is getJoinPaths; try dxmd decode getJoinPaths)");
}
