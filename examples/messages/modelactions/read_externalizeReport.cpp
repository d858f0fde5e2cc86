// Prints how objects were externalised.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelactions/DXExternalizeReportHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXExternalizeReportHelper report;
  report.Take(root);
  for (const auto* entry : report.GetEntries()) std::cout << entry->objectID << ": " << entry->method << "\n";
}
