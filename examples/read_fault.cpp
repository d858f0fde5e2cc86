// Reads a fault that the query service reported about a data source, and prints what a user should be told.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryservice/QsDataSourceFaultHelper.h>

#include "errors.h"

namespace {

void printFault(const char* path) {
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(path).getDocumentElement();
  QsDataSourceFaultHelper fault;
  fault.Take(root);

  std::cout << fault.GetFaultString() << " (" << fault.GetFaultCode() << ", " << fault.GetFaultSubCode() << ")\n"
            << fault.GetFaultSubString() << "\n"
            << "data source: " << fault.GetFaultDataSourceName() << "\n";

  // What a fault lacks is no error: a pointer is null then, and a text empty. Pointers stay owned by the helper.
  if (const QsDataSourceFaultHelper::ConnectionInfo* connection = fault.GetFaultConnection())
    std::cout << "connection: " << connection->name << "\n";
  if (const QsDataSourceFaultHelper::SignonInfo* signon = fault.GetFaultSignon())
    std::cout << "sign-on: " << signon->name << "\n";

  // The connections to choose from. Their search paths may be connection strings, with passwords, and are not printed.
  QsDataSourceFaultHelper::DataSourceInfo source;
  fault.GetDataSourceInfo(fault.GetFaultDataSourceName(), source);
  for (const QsDataSourceFaultHelper::ConnectionInfo* connection : source.connections) {
    std::cout << "  " << connection->name << ":";
    for (const QsDataSourceFaultHelper::SignonInfo* signon : connection->signons) std::cout << " " << signon->name;
    std::cout << "\n";
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: read_fault FILE\n";
    return 2;
  }
  return exitStatus(argv[1], [&] { printFault(argv[1]); });
}
