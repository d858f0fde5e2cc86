#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

namespace {

const std::string kService = R"(<dataSourceType value="QueryFrameworkService"/>)";

std::string connectionOf(const std::string& content) {
  return "<connection>" + content + "</connection>";
}

}  // namespace

TEST(ConnectionKind, SessionIDsAreReadAsTheNumbersThatWriteThem) {
  const auto sessionOf = [](const std::string& text) {
    return connectionOf(kService + R"(<serviceID value="DX"/><sessionID value=")" + text + "\"/>");
  };
  expectBothWays("connection", R"({"sessionID":4294967295})", sessionOf("-1"));
  expectBothWays("connection", R"({"sessionID":17})", sessionOf("17"));
  for (const std::string odd : {"017", "4294967295", "x", "1 "})
    expectDecoded("connection", sessionOf(odd), R"({"properties":{"sessionID":")" + odd + "\"}}");
}

TEST(ConnectionKind, ServiceThatIsNotTheUsualOneIsAProperty) {
  expectBothWays("connection", R"({"properties":{"serviceID":"X"}})",
                 connectionOf(kService + R"(<serviceID value="X"/>)"));
  expectDecoded("connection", "<connection/>", R"({"providerType":"","properties":{"serviceID":""}})");
}

TEST(ConnectionKind, FlagsAndModelsOfOtherTextsAreRefused) {
  expectNotDecoded("connection", connectionOf(R"(<property name="RETAINCONNECTION" value="true"/>)"),
                   "/connection/property: the value is neither TRUE nor FALSE");
  expectNotDecoded("connection",
                   connectionOf(connectionOf(R"(<dataSourceType value="Model"/>)") +
                                connectionOf(R"(<dataSourceType value="model"/>)")),
                   R"(/connection/connection[2]/dataSourceType: a model is of type "bmeModel" or "Model")");
}
