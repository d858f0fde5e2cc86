#include <dxmd/core/Dom.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/resources/Vocabulary.h>

namespace dxmd {

namespace {

// `appendChild` is not const; a copy of the handle stands for the same node.
TRNIDOM_Node append(TRNIDOM_Node parent, const TRNIDOM_Node& child) {
  return parent.appendChild(child);
}

}  // namespace

TRNIDOM_Element appendElement(const TRNIDOM_Node& parent, const I18NString& name) {
  return append(parent, parent.getOwnerDocument().createElement(name));
}

TRNIDOM_Element appendElement(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& attrName,
                              const I18NString& attrValue) {
  TRNIDOM_Element element = parent.getOwnerDocument().createElement(name);
  element.setAttribute(attrName, attrValue);
  append(parent, element);
  return element;
}

TRNIDOM_Element appendValueElement(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& value) {
  return appendElement(parent, name, STR_value, value);
}

TRNIDOM_Element appendElementWithText(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& text) {
  return text.empty() ? appendElement(parent, name) : appendElementWithTextNode(parent, name, text);
}

TRNIDOM_Element appendElementWithTextNode(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& text) {
  TRNIDOM_Document doc = parent.getOwnerDocument();
  TRNIDOM_Element element = doc.createElement(name);
  element.appendChild(doc.createTextNode(text));
  append(parent, element);
  return element;
}

void appendText(const TRNIDOM_Node& parent, const I18NString& text) {
  append(parent, parent.getOwnerDocument().createTextNode(text));
}

TRNIDOM_Node appendImported(const TRNIDOM_Node& parent, const TRNIDOM_Node& node) {
  return append(parent, parent.getOwnerDocument().importNode(node, true));
}

TRNIDOM_Element setChildValue(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& value) {
  TRNIDOM_Element element = TRNIDOM_Helper::findOrCreateElement(parent, name);
  element.setAttribute(STR_value, value);
  return element;
}

const I18NString& toText(bool value) {
  return value ? STR_true : STR_false;
}

}  // namespace dxmd
