#include <dxmd/queryservice/QsApiConnectHelper.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include "TestSupport.h"

using namespace dxmd_test;

TEST(QsApiConnectHelper, NewConnectionNamesProviderAndService) {
  expectXml(R"(<connection><dataSourceType value="QueryFrameworkService"/><serviceID value="DX"/></connection>)",
            made(QsApiConnectHelper()));
}

TEST(QsApiConnectHelper, WritesPropertiesByKeyThenModelsThenFlags) {
  QsApiConnectHelper connection;
  connection.SetProviderType("P");
  connection.SetUserName("user");
  connection.SetPassword("secret");
  connection.SetPassport("pass");
  connection.SetNamespace("ns");
  connection.SetContentManagerURI("http://cm");
  connection.SetRunLocale(I18NLocale("fr_CA"));
  connection.SetProductLocale(I18NLocale("en"));
  connection.SetSessionID(7);
  connection.SetModelPath("/m");
  connection.SetDisableAuthentication(false);
  connection.SetRetainConnection(true);
  connection.AddModel("plain", false);
  connection.AddModel("bme", true);
  expectXml(
      R"(<connection><dataSourceType value="P"/><VAMPassport value="pass"/><contentManagerURI value="http://cm"/>)"
      R"(<dataSource value="/m"/><namespace value="ns"/><password value="secret"/><productLocale value="en"/>)"
      R"(<runLocale value="fr_CA"/><serviceID value="DX"/><sessionID value="7"/><username value="user"/>)"
      R"(<connection><name value="plain"/><dataSourceType value="Model"/></connection>)"
      R"(<connection><name value="bme"/><dataSourceType value="bmeModel"/></connection>)"
      R"(<property name="RETAINCONNECTION" value="TRUE"/><property name="disableAuthentication" value="FALSE"/>)"
      R"(</connection>)",
      made(connection));
}

TEST(QsApiConnectHelper, LastValueWinsAndEmptyOnesAreLeftOut) {
  QsApiConnectHelper connection;
  connection.SetUserName("user");
  connection.SetUserName("");
  connection.AddProperty("serviceID", "other");
  expectXml(R"(<connection><dataSourceType value="QueryFrameworkService"/><serviceID value="other"/></connection>)",
            made(connection));
  connection.AddProperty("not a name", "x");
  EXPECT_THROW(made(connection), TRNIDOM_DOMException);
}

TEST(QsApiConnectHelper, SessionIdIsASigned32BitNumber) {
  EXPECT_EQ("0", QsApiConnectHelper::MakeSessionID(0));
  EXPECT_EQ("2147483647", QsApiConnectHelper::MakeSessionID(2147483647UL));
  EXPECT_EQ("-2147483648", QsApiConnectHelper::MakeSessionID(2147483648UL));
  EXPECT_EQ("-1", QsApiConnectHelper::MakeSessionID(4294967295UL));
}

TEST(QsApiConnectHelper, RefreshTouchesOnlyWhatItIsGiven) {
  TRNIDOM_Element connection = parsed(R"(<connection><runLocale value="de"/><x/></connection>)");
  QsApiConnectHelper::RefreshRequest(connection, "", nullptr, nullptr);
  expectXml(R"(<connection><runLocale value="de"/><x/></connection>)", connection);
  const I18NLocale product("en");
  const I18NLocale run("fr");
  QsApiConnectHelper::RefreshRequest(connection, "pass", &product, &run);
  expectXml(
      R"(<connection><runLocale value="fr"/><x/><VAMPassport value="pass"/><productLocale value="en"/></connection>)",
      connection);
}
