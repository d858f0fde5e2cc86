#include <dxmd/modelactions/DXActionHelperImportConfig.h>

#include <trn/TRNAssertError.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Config = DXActionHelperImportConfig;

std::string connectionItems(const Config& config) {
  std::vector<Config::ConnectionItem> items;
  config.getConnectionItems(items);
  std::string text;
  for (const auto& item : items) text += item.name.toUtf8() + "=" + item.nameInRequest.toUtf8() + ";";
  return text;
}

std::string capabilities(const Config& config) {
  std::vector<Config::ConfigItem> items{{"held", ""}};
  config.getCapabilities(items);
  std::string text;
  for (const auto& item : items) text += item.name.toUtf8() + "=" + item.value.toUtf8() + ";";
  return text;
}

}  // namespace

TEST(ImportConfig, AnswersFromTheElementAsItIsNow) {
  TRNIDOM_Element element = parsed("<source queryType='' pluginName='plug'/>");
  Config config;
  config.Take(element);
  EXPECT_EQ("no, ", filled(config, &Config::getQueryType));
  EXPECT_EQ("plug", filled(config, &Config::getPluginName));
  EXPECT_EQ("no, ", filled(config, &Config::getInterfaceType));
  element.setAttribute("interfaceType", "direct");
  EXPECT_EQ("direct", filled(config, &Config::getInterfaceType));
}

TEST(ImportConfig, FirstConnectionAtAnyDepthCountsWithItsProviderIfAny) {
  const auto config = taken<Config>(
      "<source><x> <connection provider='p1'><item name='a' nameInRequest='A'/><y><item name='b'/></y>"
      "<connection provider='inner'><item name='c' nameInRequest='C'/></connection></connection></x>"
      "<connection provider='p2'><item name='d'/></connection></source>");
  EXPECT_EQ("p1", filled(*config, &Config::getConnectionProvider));
  EXPECT_EQ("a=A;b=;c=C;", connectionItems(*config));
  EXPECT_EQ("no, untouched", filled(*taken<Config>("<source/>"), &Config::getConnectionProvider));
  EXPECT_EQ("no, ", filled(*taken<Config>("<source><connection/></source>"), &Config::getConnectionProvider));
}

TEST(ImportConfig, CapabilitiesAreAddedToTheCallers) {
  const auto config = taken<Config>(
      "<source><connection><item name='no'/></connection><capabilities>text<item name='sort' value='true'/>"
      "<item value='1'/></capabilities><capabilities><item name='late'/></capabilities></source>");
  EXPECT_EQ("held=;sort=true;=1;", capabilities(*config));
}

TEST(ImportConfig, BeforeAnythingWasTakenThereAreNoAnswersAndNothingIsEverWritten) {
  Config config;
  for (const auto getter :
       {&Config::getQueryType, &Config::getPluginName, &Config::getInterfaceType, &Config::getConnectionProvider})
    EXPECT_EQ("no, untouched", filled(config, getter));
  EXPECT_EQ("", connectionItems(config));
  EXPECT_EQ("held=;", capabilities(config));
  EXPECT_TRUE(madeElement(config).isNull());
}

TEST(ImportConfig, TakesOnlyASource) {
  const char* const text =
      "TRN_ASSERT(!elmSourceConfig.isNull() && elmSourceConfig.getNodeName() == "
      "dxmd_actionhelper_resources_source_str);";
  expectAssert(text, "DXActionHelperImportConfig", [] { taken<Config>("<Source/>"); });
  const auto config = taken<Config>("<source queryType='q'/>");
  expectAssert(text, "DXActionHelperImportConfig", [&] { take(*config, TRNIDOM_Element()); });
  EXPECT_THROW(take(*config, "<other/>"), TRNAssertError);
  EXPECT_EQ("q", filled(*config, &Config::getQueryType)) << "what is refused is not remembered";
}
