#include <dxmd/core/Dom.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/resources/Vocabulary.h>

namespace dxmd {

TRNIDOM_Element appendElement(TRNIDOM_Element& parent, const I18NString& name) {
  return TRNIDOM_Helper::appendElement(parent, name);
}

TRNIDOM_Element appendElement(TRNIDOM_Element& parent, const I18NString& name, const I18NString& attrName,
                              const I18NString& attrValue) {
  return TRNIDOM_Helper::appendElement(parent, name, attrName, attrValue);
}

TRNIDOM_Element appendValueElement(TRNIDOM_Element& parent, const I18NString& name, const I18NString& value) {
  return appendElement(parent, name, STR_value, value);
}

TRNIDOM_Element appendTextElement(TRNIDOM_Element& parent, const I18NString& name, const I18NString& text) {
  TRNIDOM_Element element = appendElement(parent, name);
  appendText(element, text);
  return element;
}

void appendText(TRNIDOM_Element& parent, const I18NString& text) {
  TRNIDOM_Helper::appendText(parent, text);
}

TRNIDOM_Node appendImported(TRNIDOM_Element& parent, const TRNIDOM_Node& node) {
  return parent.appendChild(parent.getOwnerDocument().importNode(node, true));
}

TRNIDOM_Element setChildValue(TRNIDOM_Element& parent, const I18NString& name, const I18NString& value) {
  TRNIDOM_Element element = TRNIDOM_Helper::findOrCreateElement(parent, name);
  element.setAttribute(STR_value, value);
  return element;
}

TRNIDOM_Node firstText(const TRNIDOM_Node& parent) {
  TRNIDOM_Node child = parent.getFirstChild();
  return isText(child) ? child : TRNIDOM_Node();
}

const I18NString& toText(bool value) {
  return value ? STR_true : STR_false;
}

void readChildText(const TRNIDOM_Node& parent, const I18NString& name, I18NString& text) {
  const TRNIDOM_Element child = TRNIDOM_Helper::findChildElement(parent, name);
  if (!child.isNull()) TRNIDOM_Helper::getElementText(child, text);
}

}  // namespace dxmd
