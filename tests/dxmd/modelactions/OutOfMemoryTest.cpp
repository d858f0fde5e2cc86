// Nothing leaks and nothing but std::bad_alloc comes out when memory runs out, wherever that happens.

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

#include "FailingNew.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(ModelActionsOutOfMemory, ConnectionsAndFiles) {
  withEachNewFailing([] {
    DXActionHelperDBConnection connection;
    connection.setDatabase("d");
    connection.setConnectionString("c");
    connection.setDbType("t");
    TRNIDOM_Element element = madeElement(connection);
    DXActionHelperDBConnections list;
    list.addDom(element);
    element = madeElement(list);
    list.Take(element);
    DXActionHelperDBConnection().Take(list.getDomVector()[1]);

    DXActionHelperIQDFile file;
    for (int line = 0; line < 20; ++line) file.addContentLine(std::to_string(line).c_str());
    element = madeElement(file);
    file.Take(element);
  });
}

TEST(ModelActionsOutOfMemory, IncrementalDocuments) {
  withEachNewFailing([] {
    DXActionHelperObjectAccess access;
    TRNIDOM_Element element = madeElement(access);
    for (const char* path : {"a", "b", "a"})
      access.addEntry({path, "", DXActionHelperSecurityObject::kRole}, DXActionHelperObjectAccess::kAllow);
    std::vector<DXActionHelperObjectAccess::SecurityObjectAccess> entries;
    access.getEntries(entries);

    DXActionHelperSecurityObjectSpec spec;
    element = madeElement(spec);
    std::vector<DXActionHelperSecurityObjectSpec::ViewInfo> views(2, DXActionHelperSecurityObjectSpec::ViewInfo("v"));
    views[0].addPackageRef("p");
    spec.addEntry({"a", "d", "t"}, views);
    spec.Take(element);
    spec.getEntry(views);

    DXActionHelperRetargetObjectReferences retarget;
    element = madeElement(retarget);
    retarget.addEntry("a", "b", {DXActionHelperRetargetObjectReferences::ItemToUpdate{"i", 1}});
    retarget.getEntries();
  });
}

TEST(ModelActionsOutOfMemory, ReportsOwnWhatTheyAreGivenEvenIfTheyCannotKeepIt) {
  withEachNewFailing([] {
    DXExternalizeReportHelper report;
    for (int i = 0; i < 3; ++i) report.AddEntry(new DXExternalizeReportHelper::Entry{"o", "m", "p", "e"});
    TRNIDOM_Element element = madeElement(report);
    report.Take(element);

    DXPackagesReportHelper packages;
    packages.AddPackage("n", "p");
    element = madeElement(packages);
    packages.Take(element);
  });
}

TEST(ModelActionsOutOfMemory, ImportConfiguration) {
  TRNIDOM_Element element = parsed("<source><connection provider='p'><item name='n'/></connection></source>");
  withEachNewFailing([&] {
    DXActionHelperImportConfig config;
    config.Take(element);
    I18NString provider;
    config.getConnectionProvider(provider);
    std::vector<DXActionHelperImportConfig::ConnectionItem> items;
    config.getConnectionItems(items);
  });
}
