// Makes the command that asks how two expressions are joined.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>

int main() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  VqeGetJoinPathsHelper command("/content/package[@name='Sales']/model[@name='2024']");
  command.AddItem("[Sales].[Orders].[Order number]");
  command.AddItem("[Sales].[Products].[Product name]");
  TRNIDOM_Element message;
  command.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
