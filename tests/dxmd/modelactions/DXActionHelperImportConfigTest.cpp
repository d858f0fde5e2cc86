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
  I18NString answer("before");
  EXPECT_FALSE(config.getQueryType(answer));
  EXPECT_EQ("", answer);
  EXPECT_TRUE(config.getPluginName(answer));
  EXPECT_EQ("plug", answer);
  EXPECT_FALSE(config.getInterfaceType(answer));
  EXPECT_EQ("", answer);
  element.setAttribute("interfaceType", "direct");
  EXPECT_TRUE(config.getInterfaceType(answer));
  EXPECT_EQ("direct", answer);
}

TEST(ImportConfig, FirstConnectionAtAnyDepthCountsWithItsProviderIfAny) {
  const auto config = taken<Config>(
      "<source><x> <connection provider='p1'><item name='a' nameInRequest='A'/><y><item name='b'/></y>"
      "<connection provider='inner'><item name='c' nameInRequest='C'/></connection></connection></x>"
      "<connection provider='p2'><item name='d'/></connection></source>");
  I18NString provider;
  EXPECT_TRUE(config->getConnectionProvider(provider));
  EXPECT_EQ("p1", provider);
  EXPECT_EQ("a=A;b=;c=C;", connectionItems(*config));
  EXPECT_FALSE(taken<Config>("<source/>")->getConnectionProvider(provider));
  EXPECT_EQ("p1", provider) << "without connection it stays as it was";
  EXPECT_FALSE(taken<Config>("<source><connection/></source>")->getConnectionProvider(provider));
  EXPECT_EQ("", provider);
}

TEST(ImportConfig, CapabilitiesAreAddedToTheCallers) {
  const auto config = taken<Config>(
      "<source><connection><item name='no'/></connection><capabilities>text<item name='sort' value='true'/>"
      "<item value='1'/></capabilities><capabilities><item name='late'/></capabilities></source>");
  EXPECT_EQ("held=;sort=true;=1;", capabilities(*config));
}

TEST(ImportConfig, BeforeAnythingWasTakenThereAreNoAnswersAndNothingIsEverWritten) {
  Config config;
  I18NString answer("before");
  EXPECT_FALSE(config.getQueryType(answer) || config.getPluginName(answer) || config.getInterfaceType(answer) ||
               config.getConnectionProvider(answer));
  EXPECT_EQ("before", answer);
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
  I18NString answer;
  EXPECT_TRUE(config->getQueryType(answer)) << "what is refused is not remembered";
}
