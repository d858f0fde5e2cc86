// Prints the joins of a reply.

#include <iostream>
#include <set>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  VqeGetJoinPathsHelper command("");  // the one that made the request does as well
  command.Take(root);
  if (!command.PathExists()) std::cout << "no join path\n";
  std::set<I18NString> joins;
  command.GetJoins(joins);
  for (const I18NString& join : joins) std::cout << join << "\n";
}
