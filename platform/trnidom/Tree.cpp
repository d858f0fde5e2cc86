#include "Tree.h"

namespace trnidom_detail {

namespace {

using xercesc::DOMDocument;
using xercesc::DOMNode;

DOMNode* copyElement(const DOMNode* source, DOMDocument* document) {
  DOMNode* copy = ops::newElement(document, ops::name(source));
  const std::size_t count = ops::attributeCount(source);
  for (std::size_t i = 0; i < count; ++i) {
    const DOMNode* attribute = ops::attributeAt(source, i);
    ops::addAttribute(copy, ops::name(attribute), ops::value(attribute));
  }
  return copy;
}

/// The node without its children.
DOMNode* copyNode(const DOMNode* source, DOMDocument* document) {
  switch (source->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
      return copyElement(source, document);
    case DOMNode::ATTRIBUTE_NODE:
      return ops::newAttribute(document, ops::name(source), ops::value(source));
    case DOMNode::TEXT_NODE:
      return ops::newText(document, ops::value(source));
    case DOMNode::CDATA_SECTION_NODE:
      return ops::newCDATASection(document, ops::value(source));
    case DOMNode::COMMENT_NODE:
      return ops::newComment(document, ops::value(source));
    case DOMNode::PROCESSING_INSTRUCTION_NODE:
      return ops::newProcessingInstruction(document, ops::name(source), ops::value(source));
    default:
      return nullptr;
  }
}

}  // namespace

DOMNode* copyTree(const DOMNode* source, DOMDocument* document, bool deep) {
  DOMNode* const copy = copyNode(source, document);
  if (!deep || source->getNodeType() != DOMNode::ELEMENT_NODE) return copy;
  // `above` is the copy of the parent of `node`.
  DOMNode* above = copy;
  const DOMNode* node = ops::firstChild(source);
  while (node != nullptr) {
    DOMNode* child = copyNode(node, document);
    ops::link(above, child, nullptr);
    if (const DOMNode* below = ops::firstChild(node)) {
      above = child;
      node = below;
      continue;
    }
    while (ops::nextSibling(node) == nullptr) {
      node = ops::parent(node);
      if (node == source) return copy;
      above = ops::parent(above);
    }
    node = ops::nextSibling(node);
  }
  return copy;
}

}  // namespace trnidom_detail
