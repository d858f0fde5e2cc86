// Prints the answer to one task.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/materialize/DXMaterializeResponseHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXMaterializeResponseHelper response;
  response.Take(root);
  I18NString answer;
  if (response.GetResponse(DXMaterializeRequestHelper::kTaskLoadDataFromFile, answer)) std::cout << answer << "\n";
}
