// Makes the list that binds a group to a view.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelactions/DXActionHelperSecurityObject.h>
#include <dxmd/modelactions/DXActionHelperSecurityObjectSpec.h>

int main() {
  DXActionHelperSecurityObjectSpec spec;
  TRNIDOM_Element message;
  spec.Make(message);  // empty; each entry is written into it
  DXActionHelperSecurityObjectSpec::ViewInfo view("[Sales view]");
  view.addPackageRef("[Sales]");
  spec.addEntry({"/directory/group[@name='Sales']", "Groups > Sales", DXActionHelperSecurityObject::kGroup}, {view});
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
