// Makes the command that defines a query subject from SQL.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryengine/VqeQuerySubjectHelper.h>

int main() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  TRNIDOM_Document document =
      TRNIDOM_Parser::parseString("<dbQuery><sql type='veltra'>select * from [Sales].ORDERS</sql></dbQuery>");
  TRNIDOM_Element definition = document.getDocumentElement();
  VqeQuerySubjectHelper command("/content/package[@name='Sales']/model[@name='2024']", definition);
  TRNIDOM_Element message;
  command.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
