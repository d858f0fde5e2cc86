// The wrapper's node work through Xerces-C's public interface; see NodeOps.h.

#include <string>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

#include "NodeOps.h"

namespace trnidom_detail::ops {

using namespace xercesc;

namespace {

const DOMElement* asElement(const DOMNode* node) noexcept {
  return static_cast<const DOMElement*>(node);
}

DOMElement* asElement(DOMNode* node) noexcept {
  return static_cast<DOMElement*>(node);
}

/// Sets character data, which loses the old data when memory runs out.
void setData(DOMNode* node, Text value) {
  const std::u16string before(node->getNodeValue());
  try {
    node->setNodeValue(value.data());
  } catch (const OutOfMemoryException&) {
    node->setNodeValue(before.c_str());  // fits where it was
    throw;
  }
}

/// The first element of that name among a node, which may be null, and the siblings after it.
DOMNode* elementFrom(DOMNode* node, NameMatcher& named) noexcept {
  while (node != nullptr && !(node->getNodeType() == DOMNode::ELEMENT_NODE && named(node->getNodeName())))
    node = node->getNextSibling();
  return node;
}

}  // namespace

DOMNode* parent(const DOMNode* node) noexcept {
  return node->getParentNode();
}

DOMNode* firstChild(const DOMNode* node) noexcept {
  return node->getFirstChild();
}

DOMNode* lastChild(const DOMNode* node) noexcept {
  return node->getLastChild();
}

DOMNode* previousSibling(const DOMNode* node) noexcept {
  return node->getPreviousSibling();
}

DOMNode* nextSibling(const DOMNode* node) noexcept {
  return node->getNextSibling();
}

DOMNode* firstElement(const DOMNode* parent, NameMatcher& named) noexcept {
  return elementFrom(parent->getFirstChild(), named);
}

DOMNode* nextElement(const DOMNode* node, NameMatcher& named) noexcept {
  return elementFrom(node->getNextSibling(), named);
}

const XMLCh* name(const DOMNode* node) noexcept {
  return node->getNodeName();
}

Text value(const DOMNode* node) {
  switch (node->getNodeType()) {
    case DOMNode::TEXT_NODE:
    case DOMNode::CDATA_SECTION_NODE:
    case DOMNode::COMMENT_NODE: {
      const auto* data = static_cast<const DOMCharacterData*>(node);
      return {data->getData(), data->getLength()};
    }
    default:
      return textOf(node->getNodeValue());
  }
}

DOMNode* attribute(const DOMNode* element, Text name) noexcept {
  // No attribute has U+0000 in its name, where Xerces-C would end it.
  return name.find(u'\0') == Text::npos ? asElement(element)->getAttributeNode(name.data()) : nullptr;
}

Text attributeValue(const DOMNode* element, Text name) {
  const DOMNode* found = attribute(element, name);
  return found != nullptr ? value(found) : Text();
}

std::size_t attributeCount(const DOMNode* element) noexcept {
  return element->getAttributes()->getLength();
}

DOMNode* attributeAt(const DOMNode* element, std::size_t index) noexcept {
  return element->getAttributes()->item(index);
}

DOMNode* ownerElement(const DOMNode* attribute) noexcept {
  return static_cast<const DOMAttr*>(attribute)->getOwnerElement();
}

DOMNode* newElement(DOMDocument* document, Text name, const XMLCh*) {
  return document->createElement(name.data());
}

DOMNode* newText(DOMDocument* document, Text data) {
  return document->createTextNode(data.data());
}

DOMNode* newComment(DOMDocument* document, Text data) {
  return document->createComment(data.data());
}

DOMNode* newCDATASection(DOMDocument* document, Text data) {
  return document->createCDATASection(data.data());
}

DOMNode* newProcessingInstruction(DOMDocument* document, Text target, Text data) {
  return document->createProcessingInstruction(target.data(), data.data());
}

DOMNode* newAttribute(DOMDocument* document, Text name, Text value) {
  DOMAttr* attribute = document->createAttribute(name.data());
  attribute->appendChild(document->createTextNode(value.data()));
  return attribute;
}

void append(DOMNode* element, DOMNode* child) noexcept {
  element->appendChild(child);
}

void link(DOMNode* parent, DOMNode* child, DOMNode* before) noexcept {
  parent->insertBefore(child, before);
}

void unlink(DOMNode* parent, DOMNode* child) noexcept {
  parent->removeChild(child);
}

DOMNode* addAttribute(DOMNode* element, Text name, Text value, const XMLCh*) {
  auto* attribute = static_cast<DOMAttr*>(newAttribute(element->getOwnerDocument(), name, value));
  asElement(element)->setAttributeNode(attribute);
  return attribute;
}

void removeAttribute(DOMNode* element, DOMNode* attribute) noexcept {
  asElement(element)->removeAttributeNode(static_cast<DOMAttr*>(attribute));
}

void setValue(DOMNode* node, Text value) {
  if (node->getNodeType() != DOMNode::ATTRIBUTE_NODE) return setData(node, value);
  DOMNode* text = node->getFirstChild();
  if (text != nullptr && text->getNextSibling() == nullptr) return setData(text, value);
  DOMNode* replacement = node->getOwnerDocument()->createTextNode(value.data());
  while ((text = node->getFirstChild()) != nullptr) node->removeChild(text);
  node->appendChild(replacement);
}

}  // namespace trnidom_detail::ops
