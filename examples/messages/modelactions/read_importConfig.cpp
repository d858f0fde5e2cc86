// Prints what is known of an import source.

#include <iostream>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelactions/DXActionHelperImportConfig.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXActionHelperImportConfig config;
  config.Take(root);
  I18NString plugin;
  if (config.getPluginName(plugin)) std::cout << "plug-in: " << plugin << "\n";
  std::vector<DXActionHelperImportConfig::ConnectionItem> items;
  config.getConnectionItems(items);
  for (const auto& item : items) std::cout << item.name << " goes as " << item.nameInRequest << "\n";
  std::vector<DXActionHelperImportConfig::ConfigItem> capabilities;
  config.getCapabilities(capabilities);
  for (const auto& capability : capabilities) std::cout << capability.name << ": " << capability.value << "\n";
}
