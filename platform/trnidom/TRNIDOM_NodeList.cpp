#include <trnidom/TRNIDOM_NodeList.h>

#include <limits>

#include "store/Document.h"

using namespace trnidom_detail;

TRNIDOM_NodeList Access::childList(const TRNIDOM_Node& root) {
  return {root, TRNIDOM_NodeList::kChildren, I18NString()};
}

TRNIDOM_NodeList Access::descendantList(const TRNIDOM_Node& root, const I18NString& name) {
  const bool all = textOf(name) == u"*";
  return {root, all ? TRNIDOM_NodeList::kAllElements : TRNIDOM_NodeList::kElementsByName, name};
}

TRNIDOM_NodeList::TRNIDOM_NodeList(const TRNIDOM_Node& root, Kind kind, const I18NString& name)
    : m_root(root), m_name(name), m_kind(kind) {}

std::size_t TRNIDOM_NodeList::getLength() const {
  if (m_root.isNull()) return 0;
  at(std::numeric_limits<std::size_t>::max());
  return m_length;
}

TRNIDOM_Node TRNIDOM_NodeList::item(std::size_t index) const {
  return m_root.isNull() ? TRNIDOM_Node() : Access::handle(at(index), m_root);
}

TRNIDOM_NodeList::iterator TRNIDOM_NodeList::begin() const {
  return {this, 0};
}

TRNIDOM_NodeList::iterator TRNIDOM_NodeList::end() const {
  return {this, iterator::kEnd};
}

bool TRNIDOM_NodeList::isAtEnd(std::size_t index) const {
  return m_root.isNull() || at(index) == nullptr;
}

/// Goes to the node at that index, or to the last one, and gives the former or null.
Node* TRNIDOM_NodeList::at(std::size_t index) const {
  const Document& document = *Access::document(m_root);
  const std::uint64_t structure = document.structureVersion();
  // What is appended to the root leaves the children before it where they are.
  const std::uint64_t order = m_kind == kChildren ? document.orderVersion() : structure;
  if (index == m_index && m_nodeVersion == order && m_node != nullptr) return m_node;
  if (m_nodeVersion != order || (m_node == nullptr && m_lengthVersion != structure)) {
    m_nodeVersion = order;
    start();
  }
  const bool lengthIsKnown = m_lengthVersion == structure;
  if (lengthIsKnown && index >= m_length) return nullptr;
  if (index < m_index && index < m_index - index) start();
  for (; m_node != nullptr && index < m_index; --m_index) m_node = previous(m_node);
  while (m_node != nullptr && m_index < index) {
    Node* const following = next(m_node);
    if (following == nullptr) break;
    m_node = following;
    ++m_index;
  }
  if (m_node != nullptr && m_index == index) return m_node;
  m_length = m_node != nullptr ? m_index + 1 : 0;
  m_lengthVersion = structure;
  return nullptr;
}

/// Goes to the first node.
void TRNIDOM_NodeList::start() const {
  Document& document = *Access::document(m_root);
  Node* const root = Access::node(m_root);
  m_index = 0;
  if (m_kind == kChildren) {
    m_node = document.firstChild(root);
    return;
  }
  if (m_wanted == nullptr) m_wanted = document.names().find(textOf(m_name));
  // A name that no node has is no element's.
  m_node = m_wanted != nullptr || m_kind == kAllElements ? next(root) : nullptr;
}

Node* TRNIDOM_NodeList::next(Node* node) const noexcept {
  if (m_kind == kChildren) return node->next;
  const Node* const root = Access::node(m_root);
  do node = nextBelow(root, node);
  while (node != nullptr && !isWanted(node));
  return node;
}

/// There is one.
Node* TRNIDOM_NodeList::previous(Node* node) const noexcept {
  if (m_kind == kChildren) return static_cast<ChildNode*>(node)->previous;
  const Node* const root = Access::node(m_root);
  do node = previousBelow(root, static_cast<ChildNode*>(node));
  while (node != nullptr && !isWanted(node));
  return node;
}

bool TRNIDOM_NodeList::isWanted(const Node* node) const noexcept {
  return isElement(node) && (m_kind == kAllElements || static_cast<const Element*>(node)->name == m_wanted);
}
