#include <trnidom/TRNIDOM_NamedNodeMap.h>

#include "Control.h"
#include "NodeOps.h"

using namespace trnidom_detail;

TRNIDOM_NamedNodeMap Access::map(const TRNIDOM_Node& element) noexcept {
  return TRNIDOM_NamedNodeMap(element);
}

std::size_t TRNIDOM_NamedNodeMap::getLength() const noexcept {
  return m_element.isNull() ? 0 : ops::attributeCount(Access::node(m_element));
}

TRNIDOM_Node TRNIDOM_NamedNodeMap::item(std::size_t index) const noexcept {
  if (index >= getLength()) return {};
  return Access::handle(ops::attributeAt(Access::node(m_element), index), m_element);
}

TRNIDOM_Node TRNIDOM_NamedNodeMap::getNamedItem(const I18NString& name) const noexcept {
  if (m_element.isNull()) return {};
  return Access::handle(ops::attribute(Access::node(m_element), textOf(name)), m_element);
}

TRNIDOM_NamedNodeMap::iterator TRNIDOM_NamedNodeMap::begin() const {
  return {this, 0};
}

TRNIDOM_NamedNodeMap::iterator TRNIDOM_NamedNodeMap::end() const {
  return {this, iterator::kEnd};
}
