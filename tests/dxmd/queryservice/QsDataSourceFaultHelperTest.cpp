#include <dxmd/queryservice/QsDataSourceFaultHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using ConnectionInfo = QsDataSourceFaultHelper::ConnectionInfo;
using DataSourceInfo = QsDataSourceFaultHelper::DataSourceInfo;

const char* const kFault =
    R"(<fault><x><faultcode>c</faultcode></x><faultSubcode>sc</faultSubcode><faultstring>s<b/>t</faultstring>)"
    R"(<faultSubstring>ss</faultSubstring><faultDataSource value="ds">text</faultDataSource>)"
    R"(<faultConnection><name value="cn"/><searchPath value="sp"/>)"
    R"(<signon><x><name value="s1"/></x><searchPath value="p1"/></signon><signon/></faultConnection>)"
    R"(<faultSignon><name value="sn"/><searchPath value="ssp"/></faultSignon></fault>)";

std::string faultCodeOf(const std::string& fault) {
  return taken<QsDataSourceFaultHelper>(fault)->GetFaultCode().toUtf8();
}

// The names of the record's connections.
std::string connectionsOf(const DataSourceInfo& info) {
  std::string names;
  for (const ConnectionInfo* connection : info.connections) names += connection->name.toUtf8() + ";";
  return names;
}

}  // namespace

TEST(QsDataSourceFaultHelper, ReadsTextsAtAnyDepthAndKeepsThoseThatTheNextFaultLacks) {
  const auto fault = taken<QsDataSourceFaultHelper>(kFault);
  EXPECT_EQ("c", fault->GetFaultCode());
  EXPECT_EQ("sc", fault->GetFaultSubCode());
  EXPECT_EQ("s", fault->GetFaultString());
  EXPECT_EQ("ss", fault->GetFaultSubString());
  EXPECT_EQ("ds", fault->GetFaultDataSourceName());

  take(*fault, "<fault><faultcode/><faultstring>new</faultstring><faultDataSource/></fault>");
  EXPECT_EQ("c", fault->GetFaultCode());
  EXPECT_EQ("new", fault->GetFaultString());
  EXPECT_EQ("", fault->GetFaultDataSourceName()) << "the element is there, its value is not";
}

TEST(QsDataSourceFaultHelper, FirstChildGivesTheTextWhateverItIs) {
  EXPECT_EQ("comment", faultCodeOf("<f><faultcode><!--comment-->text</faultcode></f>"));
  EXPECT_EQ("", faultCodeOf("<f><faultcode><x>in</x>text</faultcode></f>"));
  EXPECT_EQ("", faultCodeOf("<f><faultcode/><faultcode>second</faultcode></f>"));
  EXPECT_EQ("", faultCodeOf("<faultcode>the fault itself</faultcode>"));
}

TEST(QsDataSourceFaultHelper, ConnectionAndSignonAtFaultAreReadOnceAfterTheDocumentWasDropped) {
  const auto helper = taken<QsDataSourceFaultHelper>(kFault);
  ConnectionInfo* connection = helper->GetFaultConnection();
  ASSERT_NE(nullptr, connection);
  EXPECT_EQ("cn", connection->name);
  EXPECT_EQ("sp", connection->searchPath);
  ASSERT_EQ(2U, connection->signons.size());
  EXPECT_EQ("s1", connection->signons[0]->name);
  EXPECT_EQ("p1", connection->signons[0]->searchPath);
  EXPECT_EQ("", connection->signons[1]->name);
  ASSERT_NE(nullptr, helper->GetFaultSignon());
  EXPECT_EQ("sn", helper->GetFaultSignon()->name);
  EXPECT_EQ("ssp", helper->GetFaultSignon()->searchPath);

  connection->name = "marked";
  EXPECT_EQ(connection, helper->GetFaultConnection());
  helper->Cleanup();
  EXPECT_EQ("cn", helper->GetFaultConnection()->name);
}

TEST(QsDataSourceFaultHelper, AnotherFaultForgetsTheConnectionAndSignonOfTheLast) {
  const auto helper = taken<QsDataSourceFaultHelper>(kFault);
  EXPECT_NE(nullptr, helper->GetFaultConnection());
  EXPECT_NE(nullptr, helper->GetFaultSignon());
  take(*helper, TRNIDOM_Element());
  EXPECT_EQ(nullptr, helper->GetFaultConnection());
  EXPECT_EQ(nullptr, helper->GetFaultSignon());
  EXPECT_EQ("c", helper->GetFaultCode());
  DataSourceInfo info;
  EXPECT_FALSE(helper->GetDataSourceInfo("", info));
}

TEST(QsDataSourceFaultHelper, ConnectionStringLandsInTheSearchPathAlsoWhenItHasNone) {
  const auto searchPath = [](const std::string& connectionString) {
    const auto fault = taken<QsDataSourceFaultHelper>("<f><faultConnection>" + connectionString +
                                                      "<searchPath value='sp'/></faultConnection></f>");
    EXPECT_EQ("", fault->GetFaultConnection()->connectionString);
    return fault->GetFaultConnection()->searchPath;
  };
  EXPECT_EQ("cs", searchPath("<connectionString value='cs'/>"));
  EXPECT_EQ("", searchPath("<connectionString/>"));
}

TEST(QsDataSourceFaultHelper, WhatARecordLacksIsTakenFromTheRecordsInIt) {
  const auto helper = taken<QsDataSourceFaultHelper>(
      R"(<f><dataSource><connection><signon><name value="s"/><searchPath value="p"/></signon></connection></dataSource></f>)");
  DataSourceInfo info;
  EXPECT_TRUE(helper->GetDataSourceInfo("s", info));
  EXPECT_EQ("s;", connectionsOf(info));
  EXPECT_EQ("p", info.connections[0]->searchPath);
}

TEST(QsDataSourceFaultHelper, DescribesTheDataSourceOfThatNameInVectorsThatTheRecordOwns) {
  const auto helper = taken<QsDataSourceFaultHelper>(
      R"(<f><dataSource><name value="other"/><type value="t0"/><connection/></dataSource>)"
      R"(<x><dataSource><name value="ds"/><type value="t1"/><connection><name value="c1"/><signon/></connection>)"
      R"(<connection><name value="c2"/></connection></dataSource></x></f>)");
  DataSourceInfo info;
  EXPECT_TRUE(helper->GetDataSourceInfo("ds", info));
  EXPECT_EQ("ds", info.name);
  EXPECT_EQ("t1", info.type);
  EXPECT_EQ("c1;c2;", connectionsOf(info));
  EXPECT_EQ(1U, info.connections[0]->signons.size());

  info.connections[0]->signons.push_back(new QsDataSourceFaultHelper::SignonInfo{"own", ""});
  DataSourceInfo other;
  EXPECT_TRUE(helper->GetDataSourceInfo("ds", other));
  other = std::move(info);
  const DataSourceInfo last(std::move(other));
  ConnectionInfo connection;
  connection = std::move(*last.connections[0]);
  EXPECT_EQ("c1", connection.name);
  EXPECT_EQ("own", connection.signons.back()->name);
}

TEST(QsDataSourceFaultHelper, LastDataSourceDecidesTheResult) {
  const auto helper = taken<QsDataSourceFaultHelper>(
      R"(<f><dataSource><name value="a"/><connection><name value="1"/></connection></dataSource>)"
      R"(<dataSource><name value="a"/><connection><name value="2"/></connection></dataSource>)"
      R"(<dataSource><name value="b"/></dataSource></f>)");
  DataSourceInfo a;
  EXPECT_FALSE(helper->GetDataSourceInfo("a", a));
  EXPECT_EQ("a", a.name);
  EXPECT_EQ("1;2;", connectionsOf(a));
  EXPECT_FALSE(helper->GetDataSourceInfo("a", a));
  EXPECT_EQ("1;2;1;2;", connectionsOf(a)) << "connections accumulate";
  DataSourceInfo b;
  EXPECT_TRUE(helper->GetDataSourceInfo("b", b));
  DataSourceInfo c;
  EXPECT_FALSE(helper->GetDataSourceInfo("c", c));
  EXPECT_EQ("", c.name);
}

TEST(QsDataSourceFaultHelper, DataSourceWithoutNameMatchesNoneNotEvenTheEmpty) {
  DataSourceInfo info;
  EXPECT_FALSE(taken<QsDataSourceFaultHelper>("<f><dataSource/></f>")->GetDataSourceInfo("", info));
  EXPECT_TRUE(taken<QsDataSourceFaultHelper>("<f><dataSource><name/></dataSource></f>")->GetDataSourceInfo("", info));
}

TEST(QsDataSourceFaultHelper, UnknownConnectionNameGivesTheLast) {
  DataSourceInfo info;
  EXPECT_EQ(nullptr, info.GetConnectionInfo("c"));
  for (const char* name : {"a", "b", "b", "c"}) {
    info.connections.push_back(new QsDataSourceFaultHelper::ConnectionInfo);
    info.connections.back()->name = name;
  }
  EXPECT_EQ(info.connections[1], info.GetConnectionInfo("b"));
  EXPECT_EQ(info.connections[3], info.GetConnectionInfo("unknown"));
}

TEST(QsDataSourceFaultHelper, DataSourcesNestedAHundredThousandDeepAreReadInOneWalk) {
  QsDataSourceFaultHelper helper;
  take(helper, nestedDeep("dataSource").first);
  DataSourceInfo info;
  EXPECT_FALSE(helper.GetDataSourceInfo("d", info));
}
