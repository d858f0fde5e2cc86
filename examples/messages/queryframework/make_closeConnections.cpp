// Makes the command that closes the service's connections.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryframework/QFCloseConnectionsCommandHelper.h>

int main() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  QFCloseConnectionsCommandHelper command;
  TRNIDOM_Element message;
  command.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
