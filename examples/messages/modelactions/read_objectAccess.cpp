// Prints who may access an object.

#include <iostream>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <dxmd/modelactions/DXActionHelperSecurityObject.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXActionHelperObjectAccess access;
  access.Take(root);
  std::vector<DXActionHelperObjectAccess::SecurityObjectAccess> entries;
  access.getEntries(entries);
  for (const auto& entry : entries)
    std::cout << DXActionHelperObjectAccess::getObjectAccessRuleStr(entry.rule) << " " << entry.securityObject->type
              << " " << entry.securityObject->displayPath << "\n";
}
