#include <trnidom/TRNIDOM_Node.h>

#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include "store/Document.h"
#include "store/Refusal.h"

using namespace trnidom_detail;

namespace {

Node* requireNode(const TRNIDOM_Node& handle) {
  if (handle.isNull()) throw Refusal{TRNIDOM_DOMException::INVALID_STATE_ERR, "there is no node"};
  return Access::node(handle);
}

/// The node that is to be a child of the parent.
Node* requireOwn(const TRNIDOM_Node& parent, const TRNIDOM_Node& child) {
  requireNode(parent);
  if (child.isNull()) throw Refusal{TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR, "the child is null"};
  if (Access::document(child) != Access::document(parent))
    throw Refusal{TRNIDOM_DOMException::WRONG_DOCUMENT_ERR, describe(Access::node(child)) + " is of another document"};
  return Access::node(child);
}

}  // namespace

I18NString TRNIDOM_Node::getNodeName() const {
  if (isNull()) return {};
  if (const Name* name = nameOf(m_node)) return stringOf(name->text());
  switch (m_node->type) {
    case trnidom_detail::Node::kText:
      return stringOf(u"#text");
    case trnidom_detail::Node::kCdata:
      return stringOf(u"#cdata-section");
    case trnidom_detail::Node::kComment:
      return stringOf(u"#comment");
    default:
      return stringOf(u"#document");
  }
}

unsigned short TRNIDOM_Node::getNodeType() const noexcept {
  return isNull() ? static_cast<unsigned short>(0) : static_cast<unsigned short>(m_node->type);
}

I18NString TRNIDOM_Node::getNodeValue() const {
  return isNull() ? I18NString() : valueOf(m_node);
}

TRNIDOM_Node TRNIDOM_Node::getParentNode() const noexcept {
  return isNull() || m_node->type == trnidom_detail::Node::kAttribute ? TRNIDOM_Node()
                                                                      : Access::handle(m_node->parent, *this);
}

TRNIDOM_Node TRNIDOM_Node::getFirstChild() const {
  return isNull() ? TRNIDOM_Node() : Access::handle(Access::document(*this)->firstChild(m_node), *this);
}

TRNIDOM_Node TRNIDOM_Node::getLastChild() const {
  if (isNull()) return {};
  ChildNode* first = Access::document(*this)->firstChild(m_node);
  return first != nullptr ? Access::handle(first->previous, *this) : TRNIDOM_Node();
}

TRNIDOM_Node TRNIDOM_Node::getPreviousSibling() const noexcept {
  if (isNull()) return {};
  const ChildNode* child = asChild(m_node);
  if (child == nullptr || child->previous->next == nullptr) return {};  // that is the last one
  return Access::handle(child->previous, *this);
}

TRNIDOM_Node TRNIDOM_Node::getNextSibling() const noexcept {
  return isNull() || asChild(m_node) == nullptr ? TRNIDOM_Node() : Access::handle(m_node->next, *this);
}

TRNIDOM_NodeList TRNIDOM_Node::getChildNodes() const {
  return isNull() ? TRNIDOM_NodeList() : Access::childList(*this);
}

bool TRNIDOM_Node::hasChildNodes() const noexcept {
  if (isNull()) return false;
  const bool isValue =
      m_node->type == trnidom_detail::Node::kAttribute && !m_node->has(trnidom_detail::Node::kHasChildList);
  return isValue || firstListed(m_node) != nullptr;
}

TRNIDOM_NamedNodeMap TRNIDOM_Node::getAttributes() const {
  return getNodeType() == ELEMENT_NODE ? Access::map(*this) : TRNIDOM_NamedNodeMap();
}

TRNIDOM_Document TRNIDOM_Node::getOwnerDocument() const noexcept {
  if (getNodeType() == DOCUMENT_NODE || isNull()) return {};
  return Access::handle(Access::document(*this)->node(), *this);
}

void TRNIDOM_Node::setNodeValue(const I18NString& value) {
  attempt("setNodeValue", *this, [&] {
    if (hasValue(requireNode(*this))) Access::document(*this)->setValue(m_node, textOf(value));
  });
}

TRNIDOM_Node TRNIDOM_Node::appendChild(const TRNIDOM_Node& newChild) {
  attempt("appendChild", *this, [&] {
    Node* const child = requireOwn(*this, newChild);
    Access::document(*this)->insert(m_node, child, nullptr);
  });
  return newChild;
}

TRNIDOM_Node TRNIDOM_Node::insertBefore(const TRNIDOM_Node& newChild, const TRNIDOM_Node& refChild) {
  attempt("insertBefore", *this, [&] {
    Node* const child = requireOwn(*this, newChild);
    Access::document(*this)->insert(m_node, child, Access::node(refChild));
  });
  return newChild;
}

TRNIDOM_Node TRNIDOM_Node::replaceChild(const TRNIDOM_Node& newChild, const TRNIDOM_Node& oldChild) {
  attempt("replaceChild", *this, [&] {
    Document::requireChild(requireNode(*this), Access::node(oldChild));
    Node* const child = requireOwn(*this, newChild);
    Access::document(*this)->replace(m_node, child, Access::node(oldChild));
  });
  return oldChild;
}

TRNIDOM_Node TRNIDOM_Node::removeChild(const TRNIDOM_Node& oldChild) {
  attempt("removeChild", *this, [&] {
    Node* const parent = requireNode(*this);
    Access::document(*this)->remove(parent, Access::node(oldChild));
  });
  return oldChild;
}

TRNIDOM_Node TRNIDOM_Node::cloneNode(bool deep) const {
  if (isNull()) return {};
  Document* document = Access::document(*this);
  if (m_node != document->node()) return Access::handle(document->copy(m_node, deep), *this);
  TRNIDOM_Document copy = newDocument();
  if (deep) Access::document(copy)->copyChildren(*document);
  return copy;
}
