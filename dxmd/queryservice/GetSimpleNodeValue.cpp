#include <dxmd/queryservice/GetSimpleNodeValue.h>

#include <dxmd/core/Nodes.h>

using namespace dxmd;

bool GetSimpleNodeValue(TRNIDOM_Element& element, const I18NString& name, I18NString& value) {
  for (const TRNIDOM_Element& child : ChildElements(element, name)) {
    const TRNIDOM_Node content = child.getFirstChild();
    if (content.isNull()) continue;
    value = content.getNodeValue();
    return true;
  }
  return false;
}
