#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(CancelQueryKind, KeepsItsIdentifiersUnlessGiven) {
  const std::string tail = R"(<cancel><requestID value="DXRequest"/></cancel><commandID value="DXCancelCommand"/>)";
  EXPECT_NE(std::string::npos,
            encoded("cancelQuery", "{}").find(tail + R"(<requestID value="DXCancelRequest"/></command>)"));
  EXPECT_NE(std::string::npos,
            encoded("cancelQuery", R"({"requestID": "r"})").find(tail + R"(<requestID value="r"/>)"));
}

TEST(CancelQueryKind, CapturedCommandDecodesToWhatMakesIt) {
  EXPECT_EQ(R"({"commandID":"C","requestID":"DXCancelRequest","connection":{"username":"ada"}})"
            "\n",
            decoded("cancelQuery", R"(<command><connection><dataSourceType value="QueryFrameworkService"/>
                <serviceID value="DX"/><username value="ada"/></connection>
              <cancel><requestID value="DXRequest"/></cancel>
              <commandID value="C"/><requestID value="DXCancelRequest"/></command>)"));
}

TEST(CancelQueryKind, CancellingAnotherRequestIsRefusedSinceNoJsonSaysIt) {
  expectFailure(kStatusUnfit, R"(standard input: /command/cancel/requestID: "value" is "R", not "DXRequest")",
                run({"decode", "cancelQuery"}, R"(<command><cancel><requestID value="R"/></cancel></command>)"));
  expectFailure(kStatusUnfit, R"(standard input: /command/cancel: the element "requestID" is missing)",
                run({"decode", "cancelQuery"}, "<command><cancel/></command>"));
}
