#include "Changes.h"

#include <trnidom/TRNIDOM_DOMException.h>

#include "Control.h"
#include "NodeOps.h"
#include "Xerces.h"

namespace trnidom_detail {

namespace {

using xercesc::DOMNode;

/// Whether the W3C allows a node of that type below a node of that type.
bool takes(DOMNode::NodeType parent, DOMNode::NodeType child) noexcept {
  switch (child) {
    case DOMNode::ELEMENT_NODE:
    case DOMNode::COMMENT_NODE:
    case DOMNode::PROCESSING_INSTRUCTION_NODE:
      return parent == DOMNode::ELEMENT_NODE || parent == DOMNode::DOCUMENT_NODE;
    case DOMNode::TEXT_NODE:
      return parent == DOMNode::ELEMENT_NODE || parent == DOMNode::ATTRIBUTE_NODE;
    case DOMNode::CDATA_SECTION_NODE:
      return parent == DOMNode::ELEMENT_NODE;
    default:
      return false;
  }
}

bool isSelfOrAncestor(const DOMNode* node, const DOMNode* of) noexcept {
  if (node == of) return true;
  if (ops::firstChild(node) == nullptr) return false;
  for (; of != nullptr; of = ops::parent(of))
    if (node == of) return true;
  return false;
}

}  // namespace

Insertion::Insertion(const char* tried, const TRNIDOM_Node& parent, const TRNIDOM_Node& child, const DOMNode* replaced)
    : m_control(Access::control(parent)), m_parent(Access::node(parent)), m_child(Access::node(child)) {
  if (m_parent == nullptr) fail(TRNIDOM_DOMException::INVALID_STATE_ERR, tried, m_parent, "there is no node");
  if (m_child == nullptr) fail(TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR, tried, m_parent, "the child is null");
  if (Access::control(child) != m_control)
    fail(TRNIDOM_DOMException::WRONG_DOCUMENT_ERR, tried, m_parent, describe(m_child) + " is of another document");
  if (!takes(m_parent->getNodeType(), m_child->getNodeType()))
    fail(TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR, tried, m_parent, describe(m_child) + " cannot be its child");
  if (isSelfOrAncestor(m_child, m_parent))
    fail(TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR, tried, m_parent, "the child is the node or above it");
  if (m_parent == m_control->document && m_child->getNodeType() == DOMNode::ELEMENT_NODE)
    settleDocumentElement(tried, replaced);
}

void Insertion::run(DOMNode* before) noexcept {
  if (m_displaced != nullptr) {
    if (before == m_displaced) before = ops::nextSibling(m_displaced);
    removeChildNode(m_control, m_parent, m_displaced);
  }
  if (DOMNode* from = ops::parent(m_child)) removeChildNode(m_control, from, m_child);
  ops::link(m_parent, m_child, before);
  ++m_control->structure;
  if (before == nullptr)
    m_control->indexes.appended(m_parent, m_child);
  else
    m_control->indexes.inserted(m_parent, m_child);
}

void removeChildNode(Control* control, DOMNode* parent, DOMNode* child) noexcept {
  ops::unlink(parent, child);
  ++control->structure;
  control->indexes.removed(parent, child);
}

/// A document has one element. An untouched placeholder gives way to another.
void Insertion::settleDocumentElement(const char* tried, const DOMNode* replaced) {
  DOMNode* present = m_control->document->getDocumentElement();
  if (present == nullptr || present == m_child || present == replaced) return;
  if (present != m_control->placeholder || ops::firstChild(present) != nullptr || ops::attributeCount(present) != 0)
    fail(TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR, tried, m_parent, "there is a document element already");
  m_displaced = present;
}

DOMNode* newElement(const char* tried, Control* control, const I18NString& tagName) {
  const Text name = textOf(tagName);
  const XMLCh* kept = control->names.find(name);
  if (kept == nullptr) requireName(name, tried, control->document);
  DOMNode* element = guarded(tried, control->document, [&] { return ops::newElement(control->document, name, kept); });
  if (kept == nullptr) control->names.add(ops::name(element));
  return element;
}

DOMNode* newText(const char* tried, Control* control, const I18NString& data) {
  const Text text = textOf(data);
  requireNoNul(text, tried, control->document);
  return guarded(tried, control->document, [&] { return ops::newText(control->document, text); });
}

void addAttribute(const char* tried, Control* control, DOMNode* element, Text name, Text value) {
  requireNoNul(value, tried, element);
  const XMLCh* kept = control->names.find(name);
  if (kept == nullptr) requireName(name, tried, element);
  DOMNode* attribute = guarded(tried, element, [&] { return ops::addAttribute(element, name, value, kept); });
  if (kept == nullptr) control->names.add(ops::name(attribute));
}

void setValue(const char* tried, Control* control, DOMNode* node, Text value) {
  requireNoNul(value, tried, node);
  const DOMNode* first = ops::firstChild(node);
  const bool keepsChildren =
      node->getNodeType() != DOMNode::ATTRIBUTE_NODE || (first != nullptr && ops::nextSibling(first) == nullptr);
  guarded(tried, node, [&] { ops::setValue(node, value); });
  if (!keepsChildren) ++control->structure;
}

TRNIDOM_Node appendNew(const char* tried, const TRNIDOM_Node& parent, DOMNode* child) {
  Control* control = Access::control(parent);
  DOMNode* above = Access::node(parent);
  TRNIDOM_Node handle = Access::handle(child, control);
  if (above->getNodeType() != DOMNode::ELEMENT_NODE) {
    Insertion(tried, parent, handle).run(nullptr);
    return handle;
  }
  ops::append(above, child);
  ++control->structure;
  control->indexes.appended(above, child);
  return handle;
}

}  // namespace trnidom_detail
