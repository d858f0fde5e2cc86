// Prints a list of packages.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelactions/DXPackagesReportHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXPackagesReportHelper report;
  report.Take(root);
  for (const auto* package : report.GetPackages())
    std::cout << package->defaultName << " at " << package->searchPath << "\n";
}
