#include <trnidom/TRNIDOM_Element.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include "store/Document.h"
#include "store/Refusal.h"

using namespace trnidom_detail;

namespace {

/// The node when it is an element, or null.
Element* elementOf(const TRNIDOM_Node& handle) noexcept {
  Node* node = Access::node(handle);
  return node != nullptr && isElement(node) ? static_cast<Element*>(node) : nullptr;
}

Element* requireElement(const TRNIDOM_Node& handle) {
  Element* element = elementOf(handle);
  if (element == nullptr)
    throw Refusal{handle.isNull() ? TRNIDOM_DOMException::INVALID_STATE_ERR : TRNIDOM_DOMException::NOT_SUPPORTED_ERR,
                  "there is no element"};
  return element;
}

}  // namespace

I18NString TRNIDOM_Element::getTagName() const {
  const Element* element = elementOf(*this);
  return element != nullptr ? stringOf(element->name->text()) : I18NString();
}

I18NString TRNIDOM_Element::getAttribute(const I18NString& name) const {
  const Element* element = elementOf(*this);
  if (element == nullptr) return {};
  const Attribute* attribute = Access::document(*this)->attribute(element, textOf(name));
  return attribute != nullptr ? valueOf(attribute) : I18NString();
}

bool TRNIDOM_Element::hasAttribute(const I18NString& name) const {
  const Element* element = elementOf(*this);
  return element != nullptr && Access::document(*this)->attribute(element, textOf(name)) != nullptr;
}

void TRNIDOM_Element::setAttribute(const I18NString& attrName, const I18NString& attrValue) {
  attempt("setAttribute", *this, [&] {
    Element* const element = requireElement(*this);
    Access::document(*this)->setAttribute(element, textOf(attrName), textOf(attrValue));
  });
}

void TRNIDOM_Element::removeAttribute(const I18NString& name) {
  attempt("removeAttribute", *this, [&] {
    Element* const element = requireElement(*this);
    Access::document(*this)->removeAttribute(element, textOf(name));
  });
}

TRNIDOM_NodeList TRNIDOM_Element::getElementsByTagName(const I18NString& name) const {
  return elementOf(*this) != nullptr ? Access::descendantList(*this, name) : TRNIDOM_NodeList();
}
