#include <gtest/gtest.h>

#include <dxmd/queryservice/QsDataSourceFaultHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(DataSourceFaultKind, EveryPartIsReadAndPasswordsAreHidden) {
  const std::string xml =
      R"(<detail><faultcode>c</faultcode><faultSubcode>sc</faultSubcode><faultstring>s</faultstring>)"
      R"(<faultSubstring>ss</faultSubstring><faultDataSource value="a"/>)"
      R"(<faultConnection><name value="fc"/><searchPath value="p"/><signon><name value="s1"/><searchPath value="p1"/></signon></faultConnection>)"
      R"(<faultSignon><name value="fs"/></faultSignon><dataSource><name value="a"/><type value="t"/>)"
      R"(<connection><name value="c1"/><connectionString value="Pwd=hush"/></connection></dataSource>)"
      R"(<dataSource><name value="a"/></dataSource><dataSource><type value="without name"/></dataSource></detail>)";
  EXPECT_EQ(
      R"({"faultcode":"c","faultSubcode":"sc","faultstring":"s","faultSubstring":"ss","faultDataSource":"a",)"
      R"("faultConnection":{"name":"fc","searchPath":"p","signons":[{"name":"s1","searchPath":"p1"}]},"faultSignon":{"name":"fs"},)"
      R"("dataSources":[{"name":"a","type":"t","connections":[{"name":"c1","searchPath":"Pwd=***"}]},)"
      R"({"name":"a"}]})"
      "\n",
      run({"decode", "dataSourceFault", "--indent", "0"}, xml).out);
  EXPECT_EQ("{}\n", run({"decode", "dataSourceFault"}, "<fault/>").out);
}

TEST(DataSourceFaultKind, FaultIsMadeAsTheLibraryReadsIt) {
  const std::string xml = encoded("dataSourceFault", R"({"faultcode": "c", "faultDataSource": "a",
    "faultConnection": {"name": "fc", "signons": [{"name": "s1", "searchPath": "p1"}]}, "faultSignon": {"name": "fs"},
    "dataSources": [{"name": "a", "type": "t", "connections": [{"name": "c1", "searchPath": "Pwd=hush"}]},
                    {"name": "a"}]})");
  expectXml(R"(<fault><faultcode>c</faultcode><faultDataSource value="a"/>)"
            R"(<faultConnection><name value="fc"/><searchPath value=""/>)"
            R"(<signon><name value="s1"/><searchPath value="p1"/></signon></faultConnection>)"
            R"(<faultSignon><name value="fs"/></faultSignon>)"
            R"(<dataSource><name value="a"/><type value="t"/>)"
            R"(<connection><name value="c1"/><searchPath value="Pwd=hush"/></connection></dataSource>)"
            R"(<dataSource><name value="a"/></dataSource></fault>)",
            xml);
  const auto fault = taken<QsDataSourceFaultHelper>(xml);
  EXPECT_EQ("c", fault->GetFaultCode());
  EXPECT_EQ("a", fault->GetFaultDataSourceName());
  ASSERT_NE(nullptr, fault->GetFaultConnection());
  EXPECT_EQ("", fault->GetFaultConnection()->searchPath);
  ASSERT_NE(nullptr, fault->GetFaultSignon());
  EXPECT_EQ("fs", fault->GetFaultSignon()->name);
  QsDataSourceFaultHelper::DataSourceInfo info;
  EXPECT_TRUE(fault->GetDataSourceInfo("a", info));
  EXPECT_EQ("t", info.type);
  ASSERT_EQ(1u, info.connections.size());
  EXPECT_EQ("Pwd=hush", info.connections[0]->searchPath);
}

// Each data source, connection and sign-on takes the first of what it looks for at any depth below it, and lists all.
TEST(DataSourceFaultKind, NestedDataSourcesAreEachReadAsTheLibraryReadsThem) {
  const std::string xml =
      R"(<fault><dataSource><x/><dataSource><name value="inner"/><name value="late"/>)"
      R"(<connection><signon><name value="s"/></signon><connection><name value="c2"/><searchPath value="p2"/>)"
      R"(<connectionString/></connection><signon><connection><signon><name value="deep"/><searchPath value="dp"/>)"
      R"(</signon></connection></signon></connection></dataSource><type value="outer's"/></dataSource>)"
      R"(<dataSource><connection><name value="of the connection"/></connection></dataSource></fault>)";
  const std::string connections =
      R"("connections":[{"name":"s","signons":[{"name":"s"},{"name":"deep","searchPath":"dp"},)"
      R"({"name":"deep","searchPath":"dp"}]},{"name":"c2"},)"
      R"({"name":"deep","searchPath":"dp","signons":[{"name":"deep","searchPath":"dp"}]}]})";
  EXPECT_EQ(R"({"dataSources":[{"name":"inner","type":"outer's",)" + connections + R"(,{"name":"inner",)" +
                connections + R"(,{"name":"of the connection","connections":[{"name":"of the connection"}]}]})" + "\n",
            decoded("dataSourceFault", xml));

  // The library describes the outer one and the inner one, which are of one name, as one.
  QsDataSourceFaultHelper::DataSourceInfo info;
  taken<QsDataSourceFaultHelper>(xml)->GetDataSourceInfo("inner", info);
  ASSERT_EQ(6u, info.connections.size());
  for (const std::size_t first : {0u, 3u}) {
    EXPECT_EQ("s", info.connections[first]->name);
    EXPECT_EQ("", info.connections[first]->searchPath);
    EXPECT_EQ(3u, info.connections[first]->signons.size());
    EXPECT_EQ("c2", info.connections[first + 1]->name);
    EXPECT_EQ("", info.connections[first + 1]->searchPath);
    EXPECT_EQ("deep", info.connections[first + 2]->name);
    EXPECT_EQ("dp", info.connections[first + 2]->searchPath);
  }
}

TEST(DataSourceFaultKind, DataSourcesNestToAnyDepth) {
  constexpr std::size_t kLevels = 20000;
  std::string xml = "<fault>";
  for (std::size_t level = 0; level < kLevels; ++level) xml += "<dataSource>";
  xml += R"(<name value="a"/>)";
  for (std::size_t level = 0; level < kLevels; ++level) xml += "</dataSource>";
  std::string expected = R"({"dataSources":[{"name":"a"})";
  for (std::size_t level = 1; level < kLevels; ++level) expected += R"(,{"name":"a"})";
  // A difference is too long to print.
  EXPECT_TRUE(expected + "]}\n" == decoded("dataSourceFault", xml + "</fault>"));
}
