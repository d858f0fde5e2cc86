// Makes the command that refines a model for two objects.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryengine/VqeRefineObjectsHelper.h>

int main() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  VqeRefineObjectsHelper command("/content/package[@name='Sales']/model[@name='2024']");
  TRNIDOM_Element message;
  command.Make(message);
  command.addRequestObject("[Sales].[Orders]");  // writes into the message that was made
  command.addRequestObject("[Sales].[Products].[Product name]");
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
