// Prints the views that users, roles and groups are bound to.

#include <iostream>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelactions/DXActionHelperSecurityObject.h>
#include <dxmd/modelactions/DXActionHelperSecurityObjectSpec.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXActionHelperSecurityObjectSpec spec;
  spec.Take(root);
  std::vector<DXActionHelperSecurityObjectSpec::ViewInfo> views;
  for (auto object = spec.getEntry(views); !object.isNull(); object = spec.getEntry(views)) {
    std::cout << object->type << " " << object->displayPath << ":";
    for (const auto& view : views) std::cout << " " << view.getViewRef();
    std::cout << "\n";
    views.clear();  // getters append
  }
}
