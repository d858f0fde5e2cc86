#include <trnidom/TRNIDOM_Helper.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include "Changes.h"
#include "Control.h"
#include "NodeOps.h"
#include "Tree.h"
#include "Xerces.h"

using namespace trnidom_detail;
using xercesc::DOMNode;

namespace {

bool isElement(const DOMNode* node) noexcept {
  return node->getNodeType() == DOMNode::ELEMENT_NODE;
}

bool isText(const DOMNode* node) noexcept {
  const auto type = node->getNodeType();
  return type == DOMNode::TEXT_NODE || type == DOMNode::CDATA_SECTION_NODE;
}

constexpr const char* kFindOrCreate = "findOrCreate";

TRNIDOM_Element findChild(const TRNIDOM_Node& parent, const ChildKey& key) {
  return guarded(kFindOrCreate, Access::node(parent), [&] {
    return Access::handle(Access::control(parent)->indexes.find(Access::node(parent), key), parent);
  });
}

TRNIDOM_Element appendWithAttribute(const char* tried, const TRNIDOM_Node& parent, const I18NString& name,
                                    const I18NString& attrName, const I18NString& attrValue) {
  Control* control = Access::control(parent);
  DOMNode* made = newElement(tried, control, name);
  addAttribute(tried, control, made, textOf(attrName), textOf(attrValue));
  return appendNew(tried, parent, made);
}

Control* requireNode(const char* tried, const TRNIDOM_Node& node) {
  if (node.isNull()) fail(TRNIDOM_DOMException::INVALID_STATE_ERR, tried, nullptr, "there is no node");
  return Access::control(node);
}

}  // namespace

TRNIDOM_Element TRNIDOM_Helper::findChildElement(const TRNIDOM_Node& parent, const I18NString& name) {
  if (parent.isNull()) return {};
  return findChild(parent, {ChildKey::kName, textOf(name), Text(), Text()});
}

TRNIDOM_Element TRNIDOM_Helper::findNextSiblingElement(const TRNIDOM_Node& node, const I18NString& name) {
  if (node.isNull()) return {};
  NameMatcher named(textOf(name));
  return Access::handle(ops::nextElement(Access::node(node), named), node);
}

TRNIDOM_Element TRNIDOM_Helper::findFirstElement(const TRNIDOM_Node& parent, const I18NString& name) {
  if (parent.isNull()) return {};
  const DOMNode* root = Access::node(parent);
  NameMatcher named(textOf(name));
  for (DOMNode* node = nextBelow(root, root); node != nullptr; node = nextBelow(root, node))
    if (isElement(node) && named(ops::name(node))) return Access::handle(node, parent);
  return {};
}

TRNIDOM_Element TRNIDOM_Helper::findElementWithAttribute(const TRNIDOM_Node& parent, const I18NString& name,
                                                         const I18NString& attrName, const I18NString& attrValue) {
  if (parent.isNull()) return {};
  const DOMNode* root = Access::node(parent);
  const ChildKey key{ChildKey::kAttribute, textOf(name), textOf(attrName), textOf(attrValue)};
  return guarded("findElementWithAttribute", root, [&]() -> TRNIDOM_Element {
    for (DOMNode* node = nextBelow(root, root); node != nullptr; node = nextBelow(root, node))
      if (matches(node, key)) return Access::handle(node, parent);
    return {};
  });
}

TRNIDOM_Element TRNIDOM_Helper::findOrCreateElement(const TRNIDOM_Node& parent, const I18NString& name) {
  TRNIDOM_Element found = findChildElement(parent, name);
  if (!found.isNull() || parent.isNull()) return found;
  return appendElement(parent, name);
}

TRNIDOM_Element TRNIDOM_Helper::findOrCreateElementWithText(const TRNIDOM_Node& parent, const I18NString& name,
                                                            const I18NString& text) {
  if (parent.isNull()) return {};
  TRNIDOM_Element found = findChild(parent, {ChildKey::kText, textOf(name), Text(), textOf(text)});
  if (!found.isNull()) return found;
  Control* control = Access::control(parent);
  DOMNode* made = newElement(kFindOrCreate, control, name);
  if (!text.empty()) ops::append(made, newText(kFindOrCreate, control, text));
  return appendNew(kFindOrCreate, parent, made);
}

TRNIDOM_Element TRNIDOM_Helper::findOrCreateElementWithAttribute(const TRNIDOM_Node& parent, const I18NString& name,
                                                                 const I18NString& attrName,
                                                                 const I18NString& attrValue) {
  if (parent.isNull()) return {};
  TRNIDOM_Element found = findChild(parent, {ChildKey::kAttribute, textOf(name), textOf(attrName), textOf(attrValue)});
  if (!found.isNull()) return found;
  return appendWithAttribute(kFindOrCreate, parent, name, attrName, attrValue);
}

TRNIDOM_Element TRNIDOM_Helper::appendElement(const TRNIDOM_Node& parent, const I18NString& name) {
  static constexpr const char* kTried = "appendElement";
  return appendNew(kTried, parent, newElement(kTried, requireNode(kTried, parent), name));
}

TRNIDOM_Element TRNIDOM_Helper::appendElement(const TRNIDOM_Node& parent, const I18NString& name,
                                              const I18NString& attrName, const I18NString& attrValue) {
  static constexpr const char* kTried = "appendElement";
  requireNode(kTried, parent);
  return appendWithAttribute(kTried, parent, name, attrName, attrValue);
}

TRNIDOM_Node TRNIDOM_Helper::appendText(const TRNIDOM_Node& parent, const I18NString& text) {
  static constexpr const char* kTried = "appendText";
  return appendNew(kTried, parent, newText(kTried, requireNode(kTried, parent), text));
}

void TRNIDOM_Helper::getChildAttributes(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& attrName,
                                        std::vector<I18NString>& values) {
  if (parent.isNull()) return;
  const DOMNode* node = Access::node(parent);
  NameMatcher named(textOf(name));
  const Text attribute = textOf(attrName);
  guarded("getChildAttributes", node, [&] {
    for (const DOMNode* child = ops::firstElement(node, named); child != nullptr;
         child = ops::nextElement(child, named))
      values.emplace_back(ops::attributeValue(child, attribute));
  });
}

I18NString TRNIDOM_Helper::getElementText(const TRNIDOM_Node& element) {
  if (element.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) return {};
  const DOMNode* first = nullptr;
  std::u16string all;  // of several, which is rare
  for (const DOMNode* child = ops::firstChild(Access::node(element)); child != nullptr;
       child = ops::nextSibling(child)) {
    if (!isText(child)) continue;
    if (first == nullptr) {
      first = child;
      continue;
    }
    if (all.empty()) all = ops::value(first);
    all += ops::value(child);
  }
  if (first == nullptr) return {};
  return stringOf(all.empty() ? ops::value(first) : Text(all));
}

void TRNIDOM_Helper::getElementText(const TRNIDOM_Node& element, I18NString& out) {
  out = getElementText(element);
}
