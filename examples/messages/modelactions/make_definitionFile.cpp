// Makes the message that carries a query definition file.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelactions/DXActionHelperIQDFile.h>

int main() {
  DXActionHelperIQDFile file;
  file.setFilePath("/queries/sales.def");
  for (const char* line : {"[Query]", "title=Sales", "select REGION, REVENUE", "from SALES"}) file.addContentLine(line);
  file.setDbConnectionName("Sales warehouse");
  TRNIDOM_Element message;
  file.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
