// Prints a query definition file.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelactions/DXActionHelperIQDFile.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXActionHelperIQDFile file;
  file.Take(root);
  std::cout << file.getFilePath() << ":\n";
  for (const I18NString& line : file.getContents()) std::cout << line << "\n";
}
