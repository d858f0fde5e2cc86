#include <trnidom/TRNIDOM_Element.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include "Changes.h"
#include "Control.h"
#include "ListRecord.h"
#include "NodeOps.h"
#include "Xerces.h"

using namespace trnidom_detail;
using xercesc::DOMNode;

namespace {

/// The node when it is an element, or null.
DOMNode* elementOf(const TRNIDOM_Node& handle) noexcept {
  DOMNode* node = Access::node(handle);
  return node != nullptr && node->getNodeType() == DOMNode::ELEMENT_NODE ? node : nullptr;
}

DOMNode* requireElement(const char* tried, const TRNIDOM_Node& handle) {
  DOMNode* element = elementOf(handle);
  if (element == nullptr) {
    DOMNode* node = Access::node(handle);
    fail(node == nullptr ? TRNIDOM_DOMException::INVALID_STATE_ERR : TRNIDOM_DOMException::NOT_SUPPORTED_ERR, tried,
         node, "there is no element");
  }
  return element;
}

}  // namespace

I18NString TRNIDOM_Element::getTagName() const {
  const DOMNode* element = elementOf(*this);
  return element != nullptr ? stringOf(Text(ops::name(element))) : I18NString();
}

I18NString TRNIDOM_Element::getAttribute(const I18NString& name) const {
  const DOMNode* element = elementOf(*this);
  if (element == nullptr) return {};
  return guarded("getAttribute", element, [&]() -> I18NString {
    const Text value = ops::attributeValue(element, textOf(name));
    if (value.empty()) return {};
    return stringOf(value);
  });
}

bool TRNIDOM_Element::hasAttribute(const I18NString& name) const noexcept {
  const DOMNode* element = elementOf(*this);
  return element != nullptr && ops::attribute(element, textOf(name)) != nullptr;
}

void TRNIDOM_Element::setAttribute(const I18NString& attrName, const I18NString& attrValue) {
  static constexpr const char* kTried = "setAttribute";
  DOMNode* element = requireElement(kTried, *this);
  Control* control = Access::control(*this);
  const Text name = textOf(attrName);
  const Text value = textOf(attrValue);
  if (DOMNode* attribute = ops::attribute(element, name)) {
    setValue(kTried, control, attribute, value);
  } else {
    addAttribute(kTried, control, element, name, value);
  }
  control->indexes.attributeChanged(element, name);
}

void TRNIDOM_Element::removeAttribute(const I18NString& name) {
  DOMNode* element = requireElement("removeAttribute", *this);
  DOMNode* attribute = ops::attribute(element, textOf(name));
  if (attribute == nullptr) return;
  ops::removeAttribute(element, attribute);
  Access::control(*this)->indexes.attributeChanged(element, textOf(name));
}

TRNIDOM_NodeList TRNIDOM_Element::getElementsByTagName(const I18NString& name) const {
  return elementOf(*this) != nullptr ? descendantList(*this, name) : TRNIDOM_NodeList();
}
