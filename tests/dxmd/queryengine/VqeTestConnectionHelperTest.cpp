#include <dxmd/queryengine/VqeTestConnectionHelper.h>

#include <dxmd/queryengine/VqeCancelQueryHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

// The test of a connection that is described by these elements.
std::string testOf(const std::string& database) {
  return R"(<command><connection><dataSourceType value="QueryFrameworkService"/><connection>)" + database +
         "</connection></connection><testConnection/></command>";
}

// The command after the connection was added to it.
std::string withConnection(const ActionHandlerBase& helper, const std::string& connection) {
  TRNIDOM_Element command = madeElement(helper);
  TRNIDOM_Element element = parsed(connection);
  QFCommandHelper::AddConnection(command, element);
  return xmlOf(command);
}

}  // namespace

TEST(VqeTestConnectionHelper, WritesEachValueInItsPlace) {
  expectXml(testOf(R"(<dataSource value="ds"/><dataSourceType value="Database"/><connectionString value="cs"/>)"
                   R"(<name value="cn"/><username value="un"/><password value="pw"/><cubePassword value="cp"/>)"
                   R"(<namespace value="ns"/><signon><name value="sn"/></signon>)"),
            made(VqeTestConnectionHelper("ds", "cn", "sn", "un", "pw", "cs", "cp", "ns")));
}

TEST(VqeTestConnectionHelper, WritesOnlySourceTypeAndStringWhenEmpty) {
  expectXml(testOf(R"(<dataSource value=""/><dataSourceType value="Database"/><connectionString value=""/>)"),
            made(VqeTestConnectionHelper("", "", "", "", "", "", "", "")));
  expectXml(testOf(R"(<dataSource value="ds"/><dataSourceType value="Database"/><connectionString value="cs"/>)"
                   R"(<signon><name value="sn"/></signon>)"),
            made(VqeTestConnectionHelper("ds", "", "sn", "", "", "cs", "", "")));
}

TEST(VqeTestConnectionHelper, AddedConnectionReplacesTheInnerOne) {
  const VqeTestConnectionHelper test("ds", "cn", "", "", "", "cs", "", "");
  expectXml(testOf(R"(<name value="new"/>)"),
            withConnection(test, R"(<connection><dataSourceType value="outer"/>)"
                                 R"(<connection><name value="new"/></connection></connection>)"));
}

TEST(VqeCancelQueryHelper, AddedConnectionComesFirstThenIsReplaced) {
  VqeCancelQueryHelper cancel;
  const std::string first = withConnection(cancel, R"(<connection id="1"/>)");
  EXPECT_NE(std::string::npos, first.find(R"(instance"><connection id="1"/><cancel>)"));

  TRNIDOM_Element connection = parsed(R"(<connection id="1"/>)");
  cancel.SetConnection(connection);
  const std::string second = withConnection(cancel, R"(<connection id="2"/>)");
  EXPECT_NE(std::string::npos, second.find(R"(instance"><connection id="2"/><cancel>)"));
}
