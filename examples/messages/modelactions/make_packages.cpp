// Makes a list of one package.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelactions/DXPackagesReportHelper.h>

int main() {
  DXPackagesReportHelper report;
  report.AddPackage("Sales", "/content/package[@name='Sales']");
  TRNIDOM_Element message;
  report.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
