// The wrapper's node work on Xerces-C's node objects; see NodeOps.h. The only source that looks inside Xerces-C's DOM.
//
// The fields are public so that Xerces-C's own classes reach into each other, and reaching them by a static cast saves
// the dynamic casts that most of the time of a tree built through the public interface goes into. The state left behind
// is the one that the public interface leaves: whatever is not done here is done through it on the same nodes.

#include <xercesc/dom/impl/DOMAttrImpl.hpp>
#include <xercesc/dom/impl/DOMAttrMapImpl.hpp>
#include <xercesc/dom/impl/DOMCDATASectionImpl.hpp>
#include <xercesc/dom/impl/DOMCommentImpl.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/dom/impl/DOMElementImpl.hpp>
#include <xercesc/dom/impl/DOMNodeVector.hpp>
#include <xercesc/dom/impl/DOMProcessingInstructionImpl.hpp>
#include <xercesc/dom/impl/DOMStringPool.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XercesVersion.hpp>

#include "NodeOps.h"

// Another version may lay its nodes out differently. Read its headers before allowing it, or build with
// TRNIDOM_PUBLIC_XERCES.
static_assert(XERCES_VERSION_MAJOR == 3 && XERCES_VERSION_MINOR == 2, "written for the nodes of Xerces-C 3.2");

namespace trnidom_detail::ops {

using namespace xercesc;

namespace {

/// Most elements have no more attributes; more are made room for when they come.
constexpr XMLSize_t kFewAttributes = 1;

/// So many sorted names are looked through one by one.
constexpr XMLSize_t kFewNames = 8;

// What is protected is reached as a derived class may reach it.

struct AttrMap : DOMAttrMapImpl {
  static DOMNodeVector*& nodes(DOMAttrMapImpl* map) noexcept { return map->*&AttrMap::fNodes; }
};

template <typename Impl>
struct Leaf : Impl {
  static DOMNodeImpl& node(Impl* impl) noexcept { return impl->*&Leaf::fNode; }
  static DOMChildNode& child(Impl* impl) noexcept { return impl->*&Leaf::fChild; }
  static DOMCharacterDataImpl& data(Impl* impl) noexcept { return impl->*&Leaf::fCharacterData; }
};

/// Asks the processor for what lies behind an element that is being read. A document keeps its nodes in the order they
/// were made in, mostly the one they are read in, and its nodes are too large and too far apart for the processor to
/// find that out itself. What is asked for in vain, or is no memory, costs next to nothing.
void fetchAhead(const DOMNode* element) noexcept {
  constexpr std::size_t kLine = 64;
  constexpr std::size_t kAhead = 45;  // about five elements with an attribute
  constexpr std::size_t kLines = 9;   // about one of them
  const auto* at = reinterpret_cast<const unsigned char*>(element);
  for (std::size_t line = kAhead; line < kAhead + kLines; ++line) __builtin_prefetch(at + line * kLine);
}

DOMElementImpl* asElement(const DOMNode* node) noexcept {
  return static_cast<DOMElementImpl*>(const_cast<DOMNode*>(node));
}

DOMAttrImpl* asAttribute(const DOMNode* node) noexcept {
  return static_cast<DOMAttrImpl*>(const_cast<DOMNode*>(node));
}

template <typename Impl>
Impl* as(const DOMNode* node) noexcept {
  return static_cast<Impl*>(const_cast<DOMNode*>(node));
}

DOMDocumentImpl* as(DOMDocument* document) noexcept {
  return static_cast<DOMDocumentImpl*>(document);
}

bool isElement(const DOMNode* node) noexcept {
  return node->getNodeType() == DOMNode::ELEMENT_NODE;
}

bool canBeChild(const DOMNode* node) noexcept {
  const auto type = node->getNodeType();
  return type != DOMNode::ATTRIBUTE_NODE && type != DOMNode::DOCUMENT_NODE;
}

/// What a node has that can be a child.
struct Child {
  DOMNodeImpl* node;
  DOMChildNode* siblings;
};

Child childOf(const DOMNode* node) noexcept {
  switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
      return {&asElement(node)->fNode, &asElement(node)->fChild};
    case DOMNode::TEXT_NODE:
      return {&as<DOMTextImpl>(node)->fNode, &as<DOMTextImpl>(node)->fChild};
    case DOMNode::COMMENT_NODE:
      return {&as<DOMCommentImpl>(node)->fNode, &as<DOMCommentImpl>(node)->fChild};
    case DOMNode::CDATA_SECTION_NODE: {
      auto* impl = as<DOMCDATASectionImpl>(node);
      return {&Leaf<DOMCDATASectionImpl>::node(impl), &Leaf<DOMCDATASectionImpl>::child(impl)};
    }
    default: {  // a processing instruction: there are no others
      auto* impl = as<DOMProcessingInstructionImpl>(node);
      return {&Leaf<DOMProcessingInstructionImpl>::node(impl), &Leaf<DOMProcessingInstructionImpl>::child(impl)};
    }
  }
}

/// Appends a node without a parent to an element or attribute.
void append(DOMNode* parent, DOMParentNode& children, DOMNode* child, Child appended) noexcept {
  appended.node->fOwnerNode = parent;
  appended.node->isOwned(true);
  if (children.fFirstChild == nullptr) {
    children.fFirstChild = child;
    appended.node->isFirstChild(true);
    appended.siblings->previousSibling = child;
  } else {
    // The first child's previous sibling is the last child.
    DOMChildNode* first = childOf(children.fFirstChild).siblings;
    DOMNode* last = first->previousSibling;
    (last == children.fFirstChild ? first : childOf(last).siblings)->nextSibling = child;
    appended.siblings->previousSibling = last;
    first->previousSibling = child;
  }
  as(children.fOwnerDocument)->changed();
}

/// Compares as Xerces-C sorts attributes: by code unit.
int compare(Text name, const XMLCh* other) noexcept {
  for (const XMLCh unit : name) {
    if (unit != *other || unit == 0) return unit < *other || unit == 0 ? -1 : 1;
    ++other;
  }
  return *other == 0 ? 0 : -1;
}

struct Place {
  XMLSize_t index;  // where the attribute is, or would be
  DOMNode* found;
};

Place place(DOMNodeVector* attributes, Text name) noexcept {
  if (attributes == nullptr) return {0, nullptr};
  const XMLSize_t count = attributes->size();
  XMLSize_t first = 0;
  XMLSize_t last = count;
  while (last - first > kFewNames) {
    const XMLSize_t middle = first + (last - first) / 2;
    if (compare(name, asAttribute(attributes->elementAt(middle))->fName) < 0)
      last = middle;
    else
      first = middle;
  }
  for (; first < last; ++first) {
    DOMNode* attribute = attributes->elementAt(first);
    const int order = compare(name, asAttribute(attribute)->fName);
    if (order <= 0) return {first, order == 0 ? attribute : nullptr};
  }
  return {first, nullptr};
}

/// The only child of an attribute, when it is a text, or null.
DOMTextImpl* onlyText(const DOMNode* attribute) noexcept {
  DOMNode* child = asAttribute(attribute)->fParent.fFirstChild;
  if (child == nullptr || child->getNodeType() != DOMNode::TEXT_NODE) return nullptr;
  auto* text = as<DOMTextImpl>(child);
  return text->fChild.nextSibling == nullptr ? text : nullptr;
}

Text textIn(const DOMCharacterDataImpl& data) noexcept {
  return {data.fDataBuf->getRawBuffer(), data.fDataBuf->getLen()};
}

void setData(DOMCharacterDataImpl& data, Text value) {
  DOMBuffer* buffer = data.fDataBuf;
  const XMLSize_t before = buffer->getLen();
  try {
    buffer->set(value.data(), value.size());
  } catch (const OutOfMemoryException&) {
    buffer->chop(before);  // what was there still is
    throw;
  }
}

/// Constructs a node in the document's memory. Its own operator new would first look for a node of that kind that was
/// released; there is none.
template <typename Impl, typename... Arguments>
Impl* construct(DOMDocumentImpl* document, Arguments... arguments) {
  return ::new (document->DOMDocumentImpl::allocate(sizeof(Impl))) Impl(document, arguments...);
}

/// A text is made with room to grow by so many code units. One that is shorter than that gets no more room, which saves
/// a twentieth of the memory of a document of many short values.
constexpr XMLSize_t kRoomToGrow = 15;

DOMTextImpl* makeText(DOMDocumentImpl* document, Text data) {
  if (data.size() >= kRoomToGrow) return construct<DOMTextImpl>(document, data.data(), data.size());
  auto* text = construct<DOMTextImpl>(document, data.data(), XMLSize_t{0});
  text->fCharacterData.fDataBuf->set(data.data(), data.size());
  return text;
}

/// The name to construct a node with, which looks it up among those that the document keeps. That takes a while, and
/// is saved when the name is known: then none is looked up, and the name is set.
const XMLCh* lookedUp(Text name, const XMLCh* kept) noexcept {
  return kept != nullptr ? nullptr : name.data();
}

DOMAttrImpl* makeAttribute(DOMDocumentImpl* document, Text name, Text value, const XMLCh* kept) {
  auto* attribute = construct<DOMAttrImpl>(document, lookedUp(name, kept));
  if (kept != nullptr) attribute->fName = kept;
  DOMTextImpl* text = makeText(document, value);
  append(attribute, attribute->fParent, text, {&text->fNode, &text->fChild});
  return attribute;
}

}  // namespace

DOMNode* parent(const DOMNode* node) noexcept {
  if (!canBeChild(node)) return nullptr;
  const DOMNodeImpl* impl = childOf(node).node;
  return impl->isOwned() ? impl->fOwnerNode : nullptr;
}

DOMNode* firstChild(const DOMNode* node) noexcept {
  return node->getFirstChild();
}

DOMNode* lastChild(const DOMNode* node) noexcept {
  const DOMNode* first = node->getFirstChild();
  return first != nullptr ? childOf(first).siblings->previousSibling : nullptr;
}

DOMNode* previousSibling(const DOMNode* node) noexcept {
  if (!canBeChild(node)) return nullptr;
  const Child child = childOf(node);
  return child.node->isFirstChild() ? nullptr : child.siblings->previousSibling;
}

DOMNode* nextSibling(const DOMNode* node) noexcept {
  return node->getNextSibling();
}

DOMNode* firstElement(const DOMNode* parent, NameMatcher& named) noexcept {
  DOMNode* first = parent->getFirstChild();
  if (first == nullptr || (isElement(first) && named(asElement(first)->fName))) return first;
  return nextElement(first, named);
}

DOMNode* nextElement(const DOMNode* node, NameMatcher& named) noexcept {
  for (bool element = isElement(node);;) {
    DOMNode* next = element ? asElement(node)->fChild.nextSibling : node->getNextSibling();
    if (next == nullptr) return nullptr;
    element = isElement(next);
    if (element && named(asElement(next)->fName)) return next;
    node = next;
  }
}

const XMLCh* name(const DOMNode* node) noexcept {
  return node->getNodeName();
}

Text value(const DOMNode* node) {
  switch (node->getNodeType()) {
    case DOMNode::TEXT_NODE:
      return textIn(as<DOMTextImpl>(node)->fCharacterData);
    case DOMNode::CDATA_SECTION_NODE:
      return textIn(Leaf<DOMCDATASectionImpl>::data(as<DOMCDATASectionImpl>(node)));
    case DOMNode::ATTRIBUTE_NODE:
      if (const DOMTextImpl* text = onlyText(node)) return textIn(text->fCharacterData);
      break;
    default:
      break;
  }
  return textOf(node->getNodeValue());
}

DOMNode* attribute(const DOMNode* element, Text name) noexcept {
  return place(AttrMap::nodes(asElement(element)->fAttributes), name).found;
}

Text attributeValue(const DOMNode* element, Text name) {
  fetchAhead(element);
  DOMNodeVector* attributes = AttrMap::nodes(asElement(element)->fAttributes);
  const DOMNode* found = nullptr;
  if (attributes != nullptr && attributes->size() == 1) {
    const DOMNode* only = attributes->elementAt(0);
    if (isName(asAttribute(only)->fName, name)) found = only;
  } else {
    found = place(attributes, name).found;
  }
  if (found == nullptr) return {};
  const DOMTextImpl* text = onlyText(found);
  return text != nullptr ? textIn(text->fCharacterData) : value(found);
}

std::size_t attributeCount(const DOMNode* element) noexcept {
  DOMNodeVector* attributes = AttrMap::nodes(asElement(element)->fAttributes);
  return attributes != nullptr ? attributes->size() : 0;
}

DOMNode* attributeAt(const DOMNode* element, std::size_t index) noexcept {
  return AttrMap::nodes(asElement(element)->fAttributes)->elementAt(index);
}

DOMNode* ownerElement(const DOMNode* attribute) noexcept {
  return asAttribute(attribute)->getOwnerElement();
}

DOMNode* newElement(DOMDocument* document, Text name, const XMLCh* kept) {
  auto* element = construct<DOMElementImpl>(as(document), lookedUp(name, kept));
  if (kept != nullptr) element->fName = kept;
  return element;
}

DOMNode* newText(DOMDocument* document, Text data) {
  return makeText(as(document), data);
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
  return makeAttribute(as(document), name, value, nullptr);
}

void append(DOMNode* element, DOMNode* child) noexcept {
  append(element, asElement(element)->fParent, child, childOf(child));
}

void link(DOMNode* parent, DOMNode* child, DOMNode* before) noexcept {
  if (before == nullptr && isElement(parent))
    append(parent, child);
  else
    parent->insertBefore(child, before);
}

void unlink(DOMNode* parent, DOMNode* child) noexcept {
  parent->removeChild(child);
}

DOMNode* addAttribute(DOMNode* element, Text name, Text value, const XMLCh* kept) {
  DOMElementImpl* owner = asElement(element);
  DOMDocumentImpl* document = as(owner->fParent.fOwnerDocument);
  DOMAttrImpl* attribute = makeAttribute(document, name, value, kept);
  if (DOMNodeVector* attributes = AttrMap::nodes(owner->fAttributes)) {
    attributes->insertElementAt(attribute, place(attributes, name).index);
  } else {
    attributes =
        ::new (document->DOMDocumentImpl::allocate(sizeof *attributes)) DOMNodeVector(document, kFewAttributes);
    attributes->addElement(attribute);
    AttrMap::nodes(owner->fAttributes) = attributes;
  }
  attribute->fNode.fOwnerNode = element;
  attribute->fNode.isOwned(true);
  document->changed();
  return attribute;
}

void removeAttribute(DOMNode* element, DOMNode* attribute) noexcept {
  asElement(element)->removeAttributeNode(asAttribute(attribute));
}

void setValue(DOMNode* node, Text value) {
  switch (node->getNodeType()) {
    case DOMNode::TEXT_NODE:
      return setData(as<DOMTextImpl>(node)->fCharacterData, value);
    case DOMNode::CDATA_SECTION_NODE:
      return setData(Leaf<DOMCDATASectionImpl>::data(as<DOMCDATASectionImpl>(node)), value);
    case DOMNode::COMMENT_NODE:
      return setData(as<DOMCommentImpl>(node)->fCharacterData, value);
    case DOMNode::PROCESSING_INSTRUCTION_NODE:
      return setData(Leaf<DOMProcessingInstructionImpl>::data(as<DOMProcessingInstructionImpl>(node)), value);
    default:
      break;
  }
  if (DOMTextImpl* text = onlyText(node)) return setData(text->fCharacterData, value);
  DOMNode* replacement = newText(node->getOwnerDocument(), value);
  while (DOMNode* child = node->getFirstChild()) node->removeChild(child);
  append(node, asAttribute(node)->fParent, replacement, childOf(replacement));
}

}  // namespace trnidom_detail::ops
