// Makes an update command for one subject.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>
#include <dxmd/queryframework/QFUpdateCommandHelper.h>

int main() {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");  // the deployment's own, once

  QFUpdateCommandHelper command("/content/package[@name='Sales']/model[@name='model']");
  command.AddUpdateSubject("[Sales].[Region]", "<region/>");  // a text: what looks like an element is none
  TRNIDOM_Element message;
  command.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
