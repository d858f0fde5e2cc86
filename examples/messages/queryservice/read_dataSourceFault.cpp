// Prints what is at fault, and what else could be connected to.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryservice/QsDataSourceFaultHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  QsDataSourceFaultHelper fault;
  fault.Take(root);
  std::cout << fault.GetFaultCode() << ": " << fault.GetFaultString() << "\n";
  if (const auto* connection = fault.GetFaultConnection()) std::cout << "at fault: " << connection->name << "\n";
  if (const auto* signon = fault.GetFaultSignon()) std::cout << "signed on as: " << signon->name << "\n";

  QsDataSourceFaultHelper::DataSourceInfo dataSource;
  fault.GetDataSourceInfo(fault.GetFaultDataSourceName(), dataSource);
  std::cout << dataSource.name << " has";
  for (const auto* connection : dataSource.connections) std::cout << " " << connection->name;
  std::cout << "\n";
}
