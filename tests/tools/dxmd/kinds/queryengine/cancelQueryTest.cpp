#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(CancelQueryKind, KeepsItsIdentifiersUnlessGiven) {
  const std::string tail = R"(<cancel><requestID value="DXRequest"/></cancel><commandID value="DXCancelCommand"/>)";
  EXPECT_TRUE(has(encoded("cancelQuery", "{}"), tail + R"(<requestID value="DXCancelRequest"/></command>)"));
  EXPECT_TRUE(has(encoded("cancelQuery", R"({"requestID": "r"})"), tail + R"(<requestID value="r"/>)"));
}

TEST(CancelQueryKind, CancellingAnotherRequestIsRefusedSinceNoJsonSaysIt) {
  expectNotDecoded("cancelQuery", R"(<command><cancel><requestID value="R"/></cancel></command>)",
                   R"(/command/cancel/requestID: "value" is "R", not "DXRequest")");
  expectNotDecoded("cancelQuery", "<command><cancel/></command>",
                   R"(/command/cancel: the element "requestID" is missing)");
}
