#include <trnidom/TRNIDOM_Node.h>

#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include "Changes.h"
#include "Control.h"
#include "ListRecord.h"
#include "NodeOps.h"
#include "Tree.h"
#include "Xerces.h"

using namespace trnidom_detail;
using xercesc::DOMNode;

namespace {

void requireChild(const char* tried, const TRNIDOM_Node& parent, const TRNIDOM_Node& child) {
  const DOMNode* above = Access::node(parent);
  const DOMNode* node = Access::node(child);
  if (above == nullptr) fail(TRNIDOM_DOMException::INVALID_STATE_ERR, tried, above, "there is no node");
  if (node == nullptr || ops::parent(node) != above)
    fail(TRNIDOM_DOMException::NOT_FOUND_ERR, tried, above, describe(node) + " is not its child");
}

}  // namespace

I18NString TRNIDOM_Node::getNodeName() const {
  return isNull() ? I18NString() : stringOf(Text(ops::name(Access::node(*this))));
}

unsigned short TRNIDOM_Node::getNodeType() const noexcept {
  return isNull() ? static_cast<unsigned short>(0) : static_cast<unsigned short>(Access::node(*this)->getNodeType());
}

I18NString TRNIDOM_Node::getNodeValue() const {
  if (isNull()) return {};
  const DOMNode* node = Access::node(*this);
  return guarded("getNodeValue", node, [&] { return stringOf(ops::value(node)); });
}

TRNIDOM_Node TRNIDOM_Node::getParentNode() const noexcept {
  return isNull() ? TRNIDOM_Node() : Access::handle(ops::parent(Access::node(*this)), *this);
}

TRNIDOM_Node TRNIDOM_Node::getFirstChild() const noexcept {
  return isNull() ? TRNIDOM_Node() : Access::handle(ops::firstChild(Access::node(*this)), *this);
}

TRNIDOM_Node TRNIDOM_Node::getLastChild() const noexcept {
  return isNull() ? TRNIDOM_Node() : Access::handle(ops::lastChild(Access::node(*this)), *this);
}

TRNIDOM_Node TRNIDOM_Node::getPreviousSibling() const noexcept {
  return isNull() ? TRNIDOM_Node() : Access::handle(ops::previousSibling(Access::node(*this)), *this);
}

TRNIDOM_Node TRNIDOM_Node::getNextSibling() const noexcept {
  return isNull() ? TRNIDOM_Node() : Access::handle(ops::nextSibling(Access::node(*this)), *this);
}

TRNIDOM_NodeList TRNIDOM_Node::getChildNodes() const {
  return isNull() ? TRNIDOM_NodeList() : childList(*this);
}

bool TRNIDOM_Node::hasChildNodes() const noexcept {
  return !isNull() && ops::firstChild(Access::node(*this)) != nullptr;
}

TRNIDOM_NamedNodeMap TRNIDOM_Node::getAttributes() const {
  return getNodeType() == ELEMENT_NODE ? Access::map(*this) : TRNIDOM_NamedNodeMap();
}

TRNIDOM_Document TRNIDOM_Node::getOwnerDocument() const noexcept {
  if (isNull()) return {};
  Control* control = Access::control(*this);
  return Access::node(*this) == control->document ? TRNIDOM_Node() : Access::handle(control->document, control);
}

void TRNIDOM_Node::setNodeValue(const I18NString& value) {
  static constexpr const char* kTried = "setNodeValue";
  DOMNode* node = Access::node(*this);
  if (node == nullptr) fail(TRNIDOM_DOMException::INVALID_STATE_ERR, kTried, node, "there is no node");
  const unsigned short type = getNodeType();
  if (type == ELEMENT_NODE || type == DOCUMENT_NODE) return;
  setValue(kTried, Access::control(*this), node, textOf(value));
  Access::control(*this)->indexes.valueChanged(node);
}

TRNIDOM_Node TRNIDOM_Node::appendChild(const TRNIDOM_Node& newChild) {
  Insertion insertion("appendChild", *this, newChild, nullptr);
  insertion.run(nullptr);
  return newChild;
}

TRNIDOM_Node TRNIDOM_Node::insertBefore(const TRNIDOM_Node& newChild, const TRNIDOM_Node& refChild) {
  static constexpr const char* kTried = "insertBefore";
  Insertion insertion(kTried, *this, newChild, nullptr);
  if (!refChild.isNull()) requireChild(kTried, *this, refChild);
  if (newChild != refChild) insertion.run(Access::node(refChild));
  return newChild;
}

TRNIDOM_Node TRNIDOM_Node::replaceChild(const TRNIDOM_Node& newChild, const TRNIDOM_Node& oldChild) {
  static constexpr const char* kTried = "replaceChild";
  requireChild(kTried, *this, oldChild);
  DOMNode* old = Access::node(oldChild);
  Insertion insertion(kTried, *this, newChild, old);
  if (newChild == oldChild) return oldChild;
  DOMNode* before = ops::nextSibling(old);
  if (before == Access::node(newChild)) before = ops::nextSibling(before);
  removeChildNode(Access::control(*this), Access::node(*this), old);
  insertion.run(before);
  return oldChild;
}

TRNIDOM_Node TRNIDOM_Node::removeChild(const TRNIDOM_Node& oldChild) {
  requireChild("removeChild", *this, oldChild);
  removeChildNode(Access::control(*this), Access::node(*this), Access::node(oldChild));
  return oldChild;
}

TRNIDOM_Node TRNIDOM_Node::cloneNode(bool deep) const {
  if (isNull()) return {};
  Control* control = Access::control(*this);
  DOMNode* node = Access::node(*this);
  if (node != control->document)
    return guarded("cloneNode", node, [&] { return Access::handle(copyTree(node, control->document, deep), control); });
  TRNIDOM_Document copy = newDocument();
  if (!deep) return copy;
  guarded("cloneNode", node, [&] {
    xercesc::DOMDocument* document = Access::control(copy)->document;
    for (DOMNode* child = ops::firstChild(node); child != nullptr; child = ops::nextSibling(child))
      ops::link(document, copyTree(child, document, true), nullptr);
  });
  return copy;
}
