#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(TestConnectionKind, EachValueHasItsPlace) {
  const std::string json =
      R"({"dataSource":"ds","name":"cn","signon":"sn","username":"un","password":"pw","connectionString":"cs",)"
      R"("cubePassword":"cp","namespace":"ns"})";
  const std::string xml = R"(<command><connection><dataSourceType value="QueryFrameworkService"/><connection>)"
                          R"(<dataSource value="ds"/><dataSourceType value="Database"/><connectionString value="cs"/>)"
                          R"(<name value="cn"/><username value="un"/><password value="pw"/><cubePassword value="cp"/>)"
                          R"(<namespace value="ns"/><signon><name value="sn"/></signon>)"
                          R"(</connection></connection><testConnection/></command>)";
  expectXml(xml, encoded("testConnection", json));
  EXPECT_EQ(json + "\n", decoded("testConnection", xml));
  EXPECT_EQ(R"({"dataSource":"","connectionString":""})"
            "\n",
            decoded("testConnection", encoded("testConnection", R"({"dataSource": "", "connectionString": ""})")));
}

TEST(TestConnectionKind, PasswordsAreHidden) {
  const std::string xml = encoded("testConnection", R"({"dataSource": "ds", "password": "hush1",
    "connectionString": "UID=u;PWD=hush2", "cubePassword": "hush3"})");
  EXPECT_EQ(R"({"dataSource":"ds","password":"***","connectionString":"UID=u;PWD=***","cubePassword":"***"})"
            "\n",
            run({"decode", "testConnection", "--indent", "0"}, xml).out);
}

TEST(TestConnectionKind, CommandThatTestsNoDatabaseIsRefusedWithItsPlace) {
  const auto expectRefused = [](const std::string& message, const std::string& connection) {
    expectFailure(kStatusUnfit, "standard input: /command" + message,
                  run({"decode", "testConnection"}, "<command>" + connection + "<testConnection/></command>"));
  };
  const std::string service = R"(<connection><dataSourceType value="QueryFrameworkService"/>)";
  expectRefused(R"(: the element "connection" is missing)", "");
  expectRefused(R"(/connection: the element "connection" is missing)", service + "</connection>");
  expectRefused(R"(/connection/dataSourceType: "value" is "", not "QueryFrameworkService")",
                "<connection><dataSourceType/></connection>");
  expectRefused(R"(/connection/connection/dataSourceType: "value" is "Model", not "Database")",
                service + R"(<connection><dataSourceType value="Model"/></connection></connection>)");
}
