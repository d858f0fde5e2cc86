#include <vector>

#include <dxmd/modelactions/DXActionHelperDBConnection.h>
#include <dxmd/modelactions/DXActionHelperDBConnections.h>
#include <dxmd/modelactions/DXActionHelperIQDFile.h>
#include <dxmd/modelactions/DXActionHelperImportConfig.h>
#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>
#include <dxmd/modelactions/DXActionHelperSecurityObjectSpec.h>
#include <dxmd/modelactions/DXExternalizeReportHelper.h>
#include <dxmd/modelactions/DXPackagesReportHelper.h>

#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(ModelActionsHostileInput, Connections) {
  feedRandomTrees({{"dbConnections", "dbConnection", "database", "connectionString", "dbType", "catalog"}, {}, {"a"}},
                  [](TRNIDOM_Element& tree) {
                    DXActionHelperDBConnections list;
                    list.Take(tree);
                    for (TRNIDOM_Element& element : list.getDomVector()) DXActionHelperDBConnection().Take(element);
                    list.addDom(tree);
                    madeElement(list);
                  });
}

TEST(ModelActionsHostileInput, DefinitionFile) {
  feedRandomTrees({{"filePath", "contents", "line", "line", "cmDataSource"}, {}, {"a", "b"}},
                  [](TRNIDOM_Element& tree) {
                    DXActionHelperIQDFile file;
                    file.Take(tree);
                    madeElement(file);
                  });
}

TEST(ModelActionsHostileInput, ImportConfiguration) {
  feedRandomTrees({{"source", "connection", "capabilities", "item"}, {"queryType", "provider", "name", "value"}, {"a"}},
                  [](TRNIDOM_Element& tree) {
                    DXActionHelperImportConfig config;
                    config.Take(tree);
                    I18NString text;
                    config.getConnectionProvider(text);
                    std::vector<DXActionHelperImportConfig::ConnectionItem> items;
                    config.getConnectionItems(items);
                    std::vector<DXActionHelperImportConfig::ConfigItem> capabilities;
                    config.getCapabilities(capabilities);
                  });
}

TEST(ModelActionsHostileInput, ObjectAccessReadAndAddedTo) {
  feedRandomTrees({{"objectAccess", "securityObject", "securityObject", "access", "rule", "cmSearchPath"},
                   {"cmSearchPath", "displayPath", "type"},
                   {"allow", "deny", "u"}},
                  [](TRNIDOM_Element& tree) {
                    DXActionHelperObjectAccess access;
                    access.Take(tree);
                    access.addEntry({"u", "", DXActionHelperSecurityObject::kUser}, DXActionHelperObjectAccess::kAllow);
                    access.isUnspecifiedForAllEntries();
                  });
}

TEST(ModelActionsHostileInput, SecurityObjectsReadAndAddedTo) {
  feedRandomTrees(
      {{"securityObjects", "securityObject", "securityObject", "view", "viewref", "cmSearchPath"}, {}, {"a"}},
      [](TRNIDOM_Element& tree) {
        DXActionHelperSecurityObjectSpec spec;
        spec.Take(tree);
        spec.addEntry({"u", "", "t"}, {});
        std::vector<DXActionHelperSecurityObjectSpec::ViewInfo> views;
        while (!spec.getEntry(views).isNull()) continue;
      });
}

TEST(ModelActionsHostileInput, RetargetReadAndAddedTo) {
  feedRandomTrees({{"entry", "updateInfo", "itemToUpdate"},
                   {"currentRefValue", "newRefValue", "processDescendants"},
                   {"true", "a"}},
                  [](TRNIDOM_Element& tree) {
                    DXActionHelperRetargetObjectReferences retarget;
                    retarget.Take(tree);
                    retarget.addEntry("a", "a", DXActionHelperRetargetObjectReferences::ItemToUpdate{"a", 1});
                    retarget.getEntries();
                  });
}

TEST(ModelActionsHostileInput, Reports) {
  feedRandomTrees({{"entry", "file", "package"}, {"objectID", "path", "defaultName"}, {"a"}},
                  [](TRNIDOM_Element& tree) {
                    DXExternalizeReportHelper report;
                    report.Take(tree);
                    madeElement(report);
                    DXPackagesReportHelper packages;
                    packages.Take(tree);
                    madeElement(packages);
                  });
}
