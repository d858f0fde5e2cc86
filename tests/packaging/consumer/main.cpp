#include <iostream>

#include <dxmd/modelactions/DXPackagesReportHelper.h>
#include <trnidom/TRNIDOM_Writer.h>

int main() {
  DXPackagesReportHelper report;
  report.AddPackage("Sales", "/content/package[@name='Sales']");
  TRNIDOM_Element packages;
  report.Make(packages);
  std::cout << TRNIDOM_Writer::toString(packages) << '\n';
}
