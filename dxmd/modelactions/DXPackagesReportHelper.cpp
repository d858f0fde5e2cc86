#include <dxmd/modelactions/DXPackagesReportHelper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

const I18NString DXPackagesReportHelper::kPacakgesRoot("packages");
const I18NString DXPackagesReportHelper::kPacakgeEntry("package");
const I18NString DXPackagesReportHelper::kDefaultName("defaultName");

DXPackagesReportHelper::DXPackagesReportHelper() = default;
DXPackagesReportHelper::~DXPackagesReportHelper() = default;

DXPackagesReportHelper::Package* DXPackagesReportHelper::AddPackage(const I18NString& defaultName,
                                                                    const I18NString& searchPath) {
  return m_packages.emplace(defaultName, searchPath);
}

void DXPackagesReportHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(kPacakgesRoot);
  for (const Package* package : m_packages) {
    TRNIDOM_Element packageElem = appendElement(elem, kPacakgeEntry, kDefaultName, package->defaultName);
    packageElem.setAttribute(STR_cmSearchPath, package->searchPath);
  }
}

void DXPackagesReportHelper::doTake(TRNIDOM_Element& elem) {
  for (const TRNIDOM_Element& packageElem : DescendantElements(elem, kPacakgeEntry))
    AddPackage(packageElem.getAttribute(kDefaultName), packageElem.getAttribute(STR_cmSearchPath));
}
