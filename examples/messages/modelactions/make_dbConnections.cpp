// Makes a list of one database connection.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelactions/DXActionHelperDBConnection.h>
#include <dxmd/modelactions/DXActionHelperDBConnections.h>

int main() {
  DXActionHelperDBConnection connection;
  connection.setDatabase("sales");
  connection.setDbType("OD");  // written without one, it could not be read back
  connection.setConnectionString("DSN=sales");
  TRNIDOM_Element element;
  connection.Make(element);

  DXActionHelperDBConnections list;
  list.addDom(element);
  TRNIDOM_Element message;
  list.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
