// Makes a validate command for an expression.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryframework/QFValidateCommandHelper.h>

int main() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  TRNIDOM_Document content = TRNIDOM_Parser::parseString(
      "<request><content><expression>[Sales].[Fact].[Revenue] / 2</expression></content></request>");
  TRNIDOM_Element message = content.getDocumentElement();
  QFValidateCommandHelper command;
  command.Make(message);  // copies what the first child of "request" holds, and takes the place of "request"
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
