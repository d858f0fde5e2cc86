#include <gtest/gtest.h>

#include <dxmd/queryservice/QsDataSourceFaultHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(DataSourceFaultKind, ConnectionStringStandsForTheSearchPathAndSourcesWithoutANameAreNotRead) {
  expectDecoded("dataSourceFault",
                R"(<detail><dataSource><name value="a"/><connection><name value="c"/><connectionString value="cs"/>)"
                R"(</connection></dataSource><dataSource><type value="t"/></dataSource>)"
                R"(<dataSource><name value="a"/></dataSource></detail>)",
                R"({"dataSources":[{"name":"a","connections":[{"name":"c","searchPath":"cs"}]},{"name":"a"}]})");
  expectDecoded("dataSourceFault", "<fault/>", "{}");
}

// Each data source, connection and sign-on takes the first of what it looks for at any depth below it, and lists all.
TEST(DataSourceFaultKind, NestedDataSourcesAreEachReadAsTheLibraryReadsThem) {
  const std::string xml =
      R"(<fault><dataSource><x/><dataSource><name value="inner"/><name value="late"/>)"
      R"(<connection><signon><name value="s"/></signon><connection><name value="c2"/><searchPath value="p2"/>)"
      R"(<connectionString/></connection><signon><connection><signon><name value="deep"/><searchPath value="dp"/></signon>)"
      R"(</connection></signon></connection></dataSource><type value="outer's"/></dataSource>)"
      R"(<dataSource><connection><name value="of the connection"/></connection></dataSource></fault>)";
  const std::string connections =
      R"("connections":[{"name":"s","signons":[{"name":"s"},{"name":"deep","searchPath":"dp"},)"
      R"({"name":"deep","searchPath":"dp"}]},{"name":"c2"},)"
      R"({"name":"deep","searchPath":"dp","signons":[{"name":"deep","searchPath":"dp"}]}]})";
  expectDecoded("dataSourceFault", xml,
                R"({"dataSources":[{"name":"inner","type":"outer's",)" + connections + R"(,{"name":"inner",)" +
                    connections + R"(,{"name":"of the connection","connections":[{"name":"of the connection"}]}]})");

  // The library describes the outer one and the inner one, which are of one name, as one.
  QsDataSourceFaultHelper::DataSourceInfo info;
  taken<QsDataSourceFaultHelper>(xml)->GetDataSourceInfo("inner", info);
  std::string described;
  for (const auto* connection : info.connections)
    described += connection->name.toUtf8() + "(" + connection->searchPath.toUtf8() + ") " +
                 std::to_string(connection->signons.size()) + "; ";
  EXPECT_EQ("s() 3; c2() 0; deep(dp) 1; s() 3; c2() 0; deep(dp) 1; ", described);
}

TEST(DataSourceFaultKind, DataSourcesNestToAnyDepth) {
  constexpr std::size_t kLevels = 20000;
  const std::string xml = "<fault>" + repeated(kLevels, "<dataSource>") + R"(<name value="a"/>)" +
                          repeated(kLevels, "</dataSource>") + "</fault>";
  // A difference is too long to print.
  EXPECT_TRUE(R"({"dataSources":[)" + repeated(kLevels - 1, R"({"name":"a"},)") + R"({"name":"a"}]})" ==
              decoded("dataSourceFault", xml));
}
