#include <dxmd/queryservice/GetSimpleNodeValue.h>

#include <dxmd/core/Dom.h>

bool GetSimpleNodeValue(TRNIDOM_Element& element, const I18NString& name, I18NString& value) {
  for (TRNIDOM_Node child = element.getFirstChild(); !child.isNull(); child = child.getNextSibling()) {
    if (!dxmd::isElement(child) || child.getNodeName() != name || !child.hasChildNodes()) continue;
    value = child.getFirstChild().getNodeValue();
    return true;
  }
  return false;
}
