// Makes the message that points references at another object.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>

int main() {
  DXActionHelperRetargetObjectReferences references;
  TRNIDOM_Element message;
  references.Make(message);  // empty; each entry is written into it
  references.addEntry("[Sales].[Region]", "[Geography].[Region]",
                      {{"[Reports].[By region]", 1}, {"[Reports].[Totals]", 0}});
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
