// Prints the object IDs of a reply.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryengine/VqeRefineObjectsHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  VqeRefineObjectsHelper command("");  // the one that made the request does as well
  command.Take(root);
  for (I18NString objectID; command.getResponseObject(objectID);) std::cout << objectID << "\n";
}
