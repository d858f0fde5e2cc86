#include <trnidom/TRNIDOM_Helper.h>

#include "store/Document.h"
#include "store/Refusal.h"

using namespace trnidom_detail;

namespace {

/// Finds a child of that key, or appends one.
/// @param complete  gives a new element its text or attribute.
template <typename Complete>
TRNIDOM_Element findOrCreate(const TRNIDOM_Node& parent, ChildKey::Kind kind, const I18NString& name, Text attribute,
                             Text value, Complete complete) {
  if (parent.isNull()) return {};
  return attempt("findOrCreate", parent, [&] {
    Document* document = Access::document(parent);
    Element* element = document->findChild(Access::node(parent), kind, textOf(name), attribute, value);
    if (element == nullptr) {
      element = document->newElement(textOf(name));
      complete(*document, element);
      document->appendNew(Access::node(parent), element);
    }
    return Access::handle(element, parent);
  });
}

}  // namespace

TRNIDOM_Element TRNIDOM_Helper::findChildElement(const TRNIDOM_Node& parent, const I18NString& name) {
  if (parent.isNull()) return {};
  return Access::handle(Access::document(parent)->findChild(Access::node(parent), ChildKey::kName, textOf(name)),
                        parent);
}

TRNIDOM_Element TRNIDOM_Helper::findFirstElement(const TRNIDOM_Node& parent, const I18NString& name) {
  if (parent.isNull()) return {};
  const Name* wanted = Access::document(parent)->names().find(textOf(name));
  if (wanted == nullptr) return {};
  const ChildKey key{ChildKey::kName, wanted, nullptr, Text()};
  return Access::handle(firstMatchBelow(Access::node(parent), key), parent);
}

TRNIDOM_Element TRNIDOM_Helper::findElementWithAttribute(const TRNIDOM_Node& parent, const I18NString& name,
                                                         const I18NString& attrName, const I18NString& attrValue) {
  if (parent.isNull()) return {};
  const Names& names = Access::document(parent)->names();
  const ChildKey key{ChildKey::kAttribute, names.find(textOf(name)), names.find(textOf(attrName)), textOf(attrValue)};
  if (key.name == nullptr || key.attribute == nullptr) return {};
  return Access::handle(firstMatchBelow(Access::node(parent), key), parent);
}

TRNIDOM_Element TRNIDOM_Helper::findOrCreateElement(const TRNIDOM_Node& parent, const I18NString& name) {
  return findOrCreate(parent, ChildKey::kName, name, Text(), Text(), [](Document&, Element*) {});
}

TRNIDOM_Element TRNIDOM_Helper::findOrCreateElementWithText(const TRNIDOM_Node& parent, const I18NString& name,
                                                            const I18NString& text) {
  return findOrCreate(parent, ChildKey::kText, name, Text(), textOf(text), [&](Document& document, Element* element) {
    if (!text.empty()) document.insert(element, document.newCharacterData(Node::kText, textOf(text)), nullptr);
  });
}

TRNIDOM_Element TRNIDOM_Helper::findOrCreateElementWithAttribute(const TRNIDOM_Node& parent, const I18NString& name,
                                                                 const I18NString& attrName,
                                                                 const I18NString& attrValue) {
  return findOrCreate(parent, ChildKey::kAttribute, name, textOf(attrName), textOf(attrValue),
                      [&](Document& document, Element* element) {
                        document.setAttribute(element, textOf(attrName), textOf(attrValue));
                      });
}

I18NString TRNIDOM_Helper::getElementText(const TRNIDOM_Node& element) {
  const Node* node = Access::node(element);
  return node != nullptr && isElement(node) ? joinedText(firstListed(node)) : I18NString();
}

void TRNIDOM_Helper::getElementText(const TRNIDOM_Node& element, I18NString& out) {
  out = getElementText(element);
}
