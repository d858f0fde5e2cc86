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

TRNIDOM_Element firstNamed(TRNIDOM_Node node, const I18NString& name) {
  // Of the nodes of another kind only a processing instruction could have the name.
  while (!node.isNull() && !(node.getNodeName() == name && isElement(node))) node = node.getNextSibling();
  return node;
}

}  // namespace dxmd
