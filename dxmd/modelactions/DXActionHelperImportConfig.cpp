#include <dxmd/modelactions/DXActionHelperImportConfig.h>

#include <trn/TRNAssert.h>

#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {
const I18NString STR_interfaceType("interfaceType");
}  // namespace

DXActionHelperImportConfig::ConnectionItem DXActionHelperImportConfig::ConnectionItem::Make(TRNIDOM_Element& item) {
  return {item.getAttribute(STR_name), item.getAttribute(STR_nameInRequest)};
}

DXActionHelperImportConfig::ConfigItem DXActionHelperImportConfig::ConfigItem::Make(TRNIDOM_Element& item) {
  return {item.getAttribute(STR_name), item.getAttribute(STR_value)};
}

DXActionHelperImportConfig::DXActionHelperImportConfig() = default;
DXActionHelperImportConfig::~DXActionHelperImportConfig() = default;

void DXActionHelperImportConfig::doTake(TRNIDOM_Element& elmSourceConfig) {
  TRN_ASSERT(!elmSourceConfig.isNull() && elmSourceConfig.getNodeName() == dxmd_actionhelper_resources_source_str);
  m_sourceConfig = elmSourceConfig;
}

bool DXActionHelperImportConfig::getQueryType(I18NString& queryType) const {
  return readAttribute(STR_queryType, queryType);
}

bool DXActionHelperImportConfig::getPluginName(I18NString& pluginName) const {
  return readAttribute(STR_pluginName, pluginName);
}

bool DXActionHelperImportConfig::getInterfaceType(I18NString& interfaceType) const {
  return readAttribute(STR_interfaceType, interfaceType);
}

bool DXActionHelperImportConfig::getConnectionProvider(I18NString& provider) const {
  const TRNIDOM_Element connection = m_sourceConfig.getElementsByTagName(STR_connection).item(0);
  if (!isElement(connection)) return false;
  provider = connection.getAttribute(STR_provider);
  return !provider.empty();
}

void DXActionHelperImportConfig::getConnectionItems(std::vector<ConnectionItem>& items) const {
  getItems(m_sourceConfig, STR_connection, items);
}

void DXActionHelperImportConfig::getCapabilities(std::vector<ConfigItem>& items) const {
  getItems(m_sourceConfig, STR_capabilities, items);
}

TRNIDOM_NodeList DXActionHelperImportConfig::getItemNodes(const TRNIDOM_Element& root, const I18NString& listName) {
  const TRNIDOM_Element list = root.getElementsByTagName(listName).item(0);
  return list.getElementsByTagName(STR_item);
}

bool DXActionHelperImportConfig::readAttribute(const I18NString& name, I18NString& value) const {
  if (m_sourceConfig.isNull()) return false;
  value = m_sourceConfig.getAttribute(name);
  return !value.empty();
}
