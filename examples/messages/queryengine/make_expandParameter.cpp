// Makes the command that expands an expression.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryengine/VqeExpandParameterHelper.h>

int main() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  VqeExpandParameterHelper command("/content/package[@name='Sales']/model[@name='2024']");
  command.SetParameterisedValue("[Sales].[Orders].[Year] = ?Year?");
  TRNIDOM_Element message;
  command.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
