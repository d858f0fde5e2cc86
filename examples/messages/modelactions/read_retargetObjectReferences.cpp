// Prints which references are replaced, and where.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXActionHelperRetargetObjectReferences references;
  references.Take(root);
  for (const auto& entry : references.getEntries())
    for (const auto& updateInfo : entry.m_updateInfoList)
      for (const auto& item : updateInfo.m_itemsToUpdate)
        std::cout << item.m_itemID << (item.m_processDescendants == 1 ? " and below: " : ": ")
                  << entry.m_currentRefValue << " becomes " << updateInfo.m_newRefValue << "\n";
}
