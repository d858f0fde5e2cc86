#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(TestConnectionKind, CommandThatTestsNoDatabaseIsRefusedWithItsPlace) {
  const auto expectRefused = [](const std::string& connection, const std::string& message) {
    expectNotDecoded("testConnection", "<command>" + connection + "<testConnection/></command>", "/command" + message);
  };
  const std::string service = R"(<connection><dataSourceType value="QueryFrameworkService"/>)";
  expectRefused("", R"(: the element "connection" is missing)");
  expectRefused(service + "</connection>", R"(/connection: the element "connection" is missing)");
  expectRefused("<connection><dataSourceType/></connection>",
                R"(/connection/dataSourceType: "value" is "", not "QueryFrameworkService")");
  expectRefused(service + R"(<connection><dataSourceType value="Model"/></connection></connection>)",
                R"(/connection/connection/dataSourceType: "value" is "Model", not "Database")");
}
