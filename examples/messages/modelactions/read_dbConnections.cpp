// Prints a list of database connections.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelactions/DXActionHelperDBConnection.h>
#include <dxmd/modelactions/DXActionHelperDBConnections.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXActionHelperDBConnections list;
  list.Take(root);
  for (TRNIDOM_Element& element : list.getDomVector()) {
    DXActionHelperDBConnection connection;
    connection.Take(element);
    std::cout << connection.getDatabase() << ": " << connection.getConnectionString() << "\n";
  }
}
