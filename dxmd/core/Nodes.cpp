#include <dxmd/core/Nodes.h>

#include <trnidom/TRNIDOM_Helper.h>

namespace dxmd {

TRNIDOM_Node firstText(const TRNIDOM_Node& parent) {
  TRNIDOM_Node child = parent.getFirstChild();
  return child.getNodeType() == TRNIDOM_Node::TEXT_NODE ? child : TRNIDOM_Node();
}

void readChildText(const TRNIDOM_Node& parent, const I18NString& name, I18NString& text) {
  const TRNIDOM_Element child = TRNIDOM_Helper::findChildElement(parent, name);
  if (!child.isNull()) TRNIDOM_Helper::getElementText(child, text);
}

}  // namespace dxmd
