#include <gtest/gtest.h>

#include <dxmd/modelactions/DXActionHelperImportConfig.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(ImportConfigKind, CapturedConfigurationIsRead) {
  EXPECT_EQ(R"({"queryType":"relational","connection":{"items":[{"name":"server","nameInRequest":""}]},)"
            R"("capabilities":[{"name":"sort","value":"true"}]})"
            "\n",
            decoded("importConfig",
                    R"(<source queryType="relational" pluginName=""><x><connection><item name="server"/></connection>)"
                    R"(</x><connection provider="second"/><capabilities><y><item name="sort" value="true"/></y>)"
                    R"(</capabilities></source>)"));
  EXPECT_EQ("{}\n", decoded("importConfig", "<source><connection/><capabilities/></source>"));
}

TEST(ImportConfigKind, ConfigurationIsMadeAsTheLibraryReadsIt) {
  const std::string xml = encoded("importConfig", R"({"queryType": "q", "pluginName": "p", "interfaceType": "i",
    "connection": {"provider": "odbc", "items": [{"name": "server", "nameInRequest": "DSN"}, {"name": ""}]},
    "capabilities": [{"name": "sort", "value": "true"}]})");
  expectXml(R"(<source interfaceType="i" pluginName="p" queryType="q"><connection provider="odbc">)"
            R"(<item name="server" nameInRequest="DSN"/><item name="" nameInRequest=""/></connection>)"
            R"(<capabilities><item name="sort" value="true"/></capabilities></source>)",
            xml);
  const auto config = taken<DXActionHelperImportConfig>(xml);
  I18NString text;
  EXPECT_TRUE(config->getInterfaceType(text));
  EXPECT_EQ("i", text);
  EXPECT_TRUE(config->getConnectionProvider(text));
  EXPECT_EQ("odbc", text);
  std::vector<DXActionHelperImportConfig::ConnectionItem> items;
  config->getConnectionItems(items);
  ASSERT_EQ(2u, items.size());
  EXPECT_EQ("DSN", items[0].nameInRequest);
  std::vector<DXActionHelperImportConfig::ConfigItem> capabilities;
  config->getCapabilities(capabilities);
  ASSERT_EQ(1u, capabilities.size());
  EXPECT_EQ("true", capabilities[0].value);
  EXPECT_EQ("<source/>", encoded("importConfig", R"({"connection": {}, "capabilities": []})"));
}
