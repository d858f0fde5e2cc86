#include <dxmd/modelactions/DXExternalizeReportHelper.h>
#include <dxmd/modelactions/DXPackagesReportHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

std::string entriesOf(const DXExternalizeReportHelper& report) {
  std::string text;
  for (const auto* entry : report.GetEntries())
    text += (entry->objectID + "|" + entry->method + "|" + entry->path + "|" + entry->error + " ").toUtf8();
  return text;
}

std::string packagesOf(const DXPackagesReportHelper& report) {
  std::string text;
  for (const auto* package : report.GetPackages())
    text += (package->defaultName + "=" + package->searchPath + " ").toUtf8();
  return text;
}

}  // namespace

TEST(ExternalizeReport, WritesAllTextsAsAttributesButReadsNeitherPathNorErrorBack) {
  DXExternalizeReportHelper report;
  report.AddEntry(new DXExternalizeReportHelper::Entry{"[a].[b]", "tab", "/f", "e"});
  report.AddEntry(new DXExternalizeReportHelper::Entry());
  TRNIDOM_Element element = madeElement(report);
  expectXml(
      "<externalizeReport><entry error=\"e\" method=\"tab\" objectID=\"[a].[b]\" path=\"/f\"/>"
      "<entry error=\"\" method=\"\" objectID=\"\" path=\"\"/></externalizeReport>",
      element);
  EXPECT_TRUE(element.getParentNode().isNull());
  report.Take(element);
  EXPECT_EQ("[a].[b]|tab|/f|e ||| [a].[b]|tab|| ||| ", entriesOf(report));
}

TEST(ExternalizeReport, PathIsThatOfTheLastFileAmongTheEntrysOwnChildren) {
  const auto report = taken<DXExternalizeReportHelper>(
      "<r><x><entry objectID='1' path='no' error='no'> <file path='a'/>text<file path='b'/><y><file path='deep'/></y>"
      "<entry objectID='2'><file path='c'/><file/></entry></entry></x></r>");
  EXPECT_EQ("1||b| 2||| ", entriesOf(*report));
}

TEST(ExternalizeReport, NullElementsAreIgnoredAndNullEntriesRefused) {
  DXExternalizeReportHelper report;
  take(report, TRNIDOM_Element());
  expectAssert("TRN_ASSERT(pEntry);", "DXExternalizeReportHelper", [&] { report.AddEntry(nullptr); });
  expectXml("<externalizeReport/>", made(report));
}

TEST(PackagesReport, WritesAndAddsWhatItReadsToWhatItHolds) {
  DXPackagesReportHelper report;
  EXPECT_EQ("Sales", report.AddPackage("Sales", "/content/package")->defaultName);
  report.AddPackage("", "");
  TRNIDOM_Element element = madeElement(report);
  expectXml(
      "<packages><package cmSearchPath=\"/content/package\" defaultName=\"Sales\"/>"
      "<package cmSearchPath=\"\" defaultName=\"\"/></packages>",
      element);
  EXPECT_TRUE(element.getParentNode().isNull());
  report.Take(element);
  EXPECT_EQ("Sales=/content/package = Sales=/content/package = ", packagesOf(report));
}

TEST(PackagesReport, ReadsPackagesAtAnyDepthAndIgnoresANullElement) {
  const auto report =
      taken<DXPackagesReportHelper>("<r><x><package defaultName='a'><package cmSearchPath='b'/></package></x></r>");
  take(*report, TRNIDOM_Element());
  EXPECT_EQ("a= =b ", packagesOf(*report));
  expectXml("<packages/>", made(DXPackagesReportHelper()));
}
