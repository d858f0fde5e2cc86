#include <dxmd/queryengine/VqeTestConnectionHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

// The test of a connection that is described by these elements.
std::string testOf(const std::string& database) {
  return R"(<command><connection><dataSourceType value="QueryFrameworkService"/><connection>)" + database +
         "</connection></connection><testConnection/></command>";
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
