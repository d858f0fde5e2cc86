#include <trnidom/TRNIDOM_NamedNodeMap.h>

#include "store/Document.h"

using namespace trnidom_detail;

TRNIDOM_NamedNodeMap Access::map(const TRNIDOM_Node& element) {
  return TRNIDOM_NamedNodeMap(element);
}

std::size_t TRNIDOM_NamedNodeMap::getLength() const noexcept {
  if (m_element.isNull()) return 0;
  refresh();
  return m_length;
}

TRNIDOM_Node TRNIDOM_NamedNodeMap::item(std::size_t index) const noexcept {
  if (index >= getLength()) return {};
  if (index < m_index) {
    m_node = static_cast<Element*>(Access::node(m_element))->firstAttribute;
    m_index = 0;
  }
  for (; m_index < index; ++m_index) m_node = m_node->next;
  return Access::handle(m_node, m_element);
}

TRNIDOM_Node TRNIDOM_NamedNodeMap::getNamedItem(const I18NString& name) const {
  if (m_element.isNull()) return {};
  const auto* element = static_cast<const Element*>(Access::node(m_element));
  return Access::handle(Access::document(m_element)->attribute(element, textOf(name)), m_element);
}

TRNIDOM_NamedNodeMap::iterator TRNIDOM_NamedNodeMap::begin() const {
  return {this, 0};
}

TRNIDOM_NamedNodeMap::iterator TRNIDOM_NamedNodeMap::end() const {
  return {this, iterator::kEnd};
}

/// Starts anew when attributes came or went.
void TRNIDOM_NamedNodeMap::refresh() const noexcept {
  const std::uint64_t version = Access::document(m_element)->attributesVersion();
  if (m_version == version) return;
  m_version = version;
  m_node = static_cast<Element*>(Access::node(m_element))->firstAttribute;
  m_index = 0;
  m_length = 0;
  for (const Node* at = m_node; at != nullptr; at = at->next) ++m_length;
}
