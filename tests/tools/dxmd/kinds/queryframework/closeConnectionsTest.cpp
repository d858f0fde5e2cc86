#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(CloseConnectionsKind, IdentifiersAndConnectionJoinTheEnvelope) {
  const ToolRun result =
      run({"encode", "closeConnections"}, R"({"commandID": "C", "connection": {"username": "ada"}})");
  EXPECT_NE(std::string::npos,
            result.out.find(R"(<connection><dataSourceType value="QueryFrameworkService"/><serviceID value="DX"/>)"
                            R"(<username value="ada"/></connection><closeConnections/>)"
                            R"(<commandID value="C"/><requestID value="DXRequest"/></command>)"))
      << result.out;
}

TEST(CloseConnectionsKind, ReadsTheEnvelope) {
  EXPECT_EQ(R"({"commandID":"C","requestID":"R","connection":{"providerType":"P","properties":{"serviceID":""}}})"
            "\n",
            run({"decode", "closeConnections", "--indent", "0"},
                R"(<command><connection><dataSourceType value="P"/></connection><closeConnections/>)"
                R"(<commandID value="C"/><requestID value="R"/></command>)")
                .out);
}
