// Prints the expanded expression of a reply.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryengine/VqeExpandParameterHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  VqeExpandParameterHelper command("");  // the one that made the request does as well
  command.Take(root);
  std::cout << command.GetExpandedQuery() << "\n";
}
