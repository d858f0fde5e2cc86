// Makes the access rules of a group and an account.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <dxmd/modelactions/DXActionHelperSecurityObject.h>

int main() {
  DXActionHelperObjectAccess access;
  TRNIDOM_Element message;
  access.Make(message);  // empty; each entry is written into it
  access.addEntry({"/directory/group[@name='Sales']", "Groups > Sales", DXActionHelperSecurityObject::kGroup},
                  DXActionHelperObjectAccess::kAllow);
  access.addEntry({"/directory/account[@name='ada']", "Users > ada", DXActionHelperSecurityObject::kUser},
                  DXActionHelperObjectAccess::kDeny);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
