#include "store/Document.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <type_traits>

#include "parse/XmlName.h"
#include "store/BlockCache.h"
#include "store/Refusal.h"
#include "store/SharedNames.h"
#include "text/Quote.h"
#include "text/Utf8.h"

void TRNIDOM_HandleCount::freeDocument() noexcept {
  static_cast<trnidom_detail::Document*>(this)->free();
}

namespace trnidom_detail {

namespace {

/// A document and the beginning of its arena are one block of this size, and most documents need no more.
constexpr std::size_t kSize = std::size_t{4} << 10;

/// What a node is written with besides its name and value; most take less.
constexpr std::size_t kMarkupSize = 5;

/// A value longer than this is never behind its node.
constexpr std::size_t kLongestInNode = 0x7FFF;

void requireNoNul(Text text) {
  if (hasNul(text)) throw Refusal{TRNIDOM_DOMException::INVALID_CHARACTER_ERR, "the text has the character U+0000"};
}

/// Whether the W3C allows a node of that type below a node of that type.
bool takes(Node::Type parent, Node::Type child) noexcept {
  switch (child) {
    case Node::kElement:
    case Node::kComment:
    case Node::kInstruction:
      return parent == Node::kElement || parent == Node::kDocument;
    case Node::kText:
      return parent == Node::kElement || parent == Node::kAttribute;
    case Node::kCdata:
      return parent == Node::kElement;
    default:
      return false;
  }
}

bool isSelfOrAncestor(const Node* node, const Node* of) noexcept {
  if (node == of) return true;
  if (firstListed(node) == nullptr) return false;
  for (; of != nullptr; of = of->parent)
    if (node == of) return true;
  return false;
}

void setUnits(Node* node, char16_t* units, Text value) noexcept {
  if (!value.empty()) std::memmove(units, value.data(), value.size() * sizeof(char16_t));
  node->length = static_cast<std::uint32_t>(value.size());
}

void setFlag(Node* node, Node::Flag flag) noexcept {
  node->flags |= flag;
}

void clearFlag(Node* node, Node::Flag flag) noexcept {
  node->flags &= static_cast<std::uint8_t>(~flag);
}

}  // namespace

// Life.

Document::Document(void* first, std::size_t size) noexcept : m_arena(first, size) {
  m_node.type = Node::kDocument;
}

Document* Document::make() {
  static_assert(sizeof(Document) < kSize / 2);
  void* const memory = blocks::take(kSize);
  return new (memory) Document(static_cast<unsigned char*>(memory) + sizeof(Document), kSize - sizeof(Document));
}

void Document::free() noexcept {
  this->~Document();
  blocks::giveBack(this, kSize);
}

TRNIDOM_Document newDocument() {
  Document* document = Document::make();
  return Access::handle(document->node(), document);
}

// Making nodes.

const Name* Document::validName(Text name) {
  const std::size_t quick = quickHash(name);
  if (const Name* recent = m_names.findRecent(name, quick)) return recent;
  if (const Name* shared = shared_names::find(name, quick)) return m_names.adopt(shared, quick);
  return checkedName(name, quick);
}

/// One that programs have not created before, as far as that is kept.
const Name* Document::checkedName(Text name, std::size_t quick) {
  return m_names.findOrAdd(name, quick, [&](std::size_t hash) {
    if (!isXmlName(name))
      throw Refusal{TRNIDOM_DOMException::INVALID_CHARACTER_ERR,
                    quotedName(stringOf(name).toUtf8()) + " is no XML name"};
    const Name* const shared = shared_names::keep(name, quick, hash);
    return shared != nullptr ? shared : m_names.make(name, hash);
  });
}

template <typename Made>
Made* Document::makeWithValue(Node::Type type, Text value) {
  if (value.size() > std::numeric_limits<std::uint32_t>::max()) throw std::bad_alloc();
  ValueBlock* const block = value.size() > kLongestInNode ? makeBlock(value, value.size()) : nullptr;
  std::size_t room = kPointerRoom;
  if (block == nullptr) room = std::max(room, value.size() * sizeof(char16_t));
  room = (room + Arena::kAlignment - 1) / Arena::kAlignment * Arena::kAlignment;

  auto* made = new (m_arena.allocate(sizeof(Made) + room)) Made{};
  m_expectedSize += value.size() + kMarkupSize;
  made->type = type;
  made->room = static_cast<std::uint16_t>(room / sizeof(char16_t));
  if (block != nullptr) {
    setFlag(made, Node::kHasBlock);
    blockOf(made) = block;
    made->length = static_cast<std::uint32_t>(value.size());
  } else {
    setUnits(made, reinterpret_cast<char16_t*>(made + 1), value);
  }
  if constexpr (!std::is_same_v<Made, Attribute>) made->previous = made;
  return made;
}

Element* Document::makeElement(const Name* name) {
  auto* element = new (m_arena.allocate(sizeof(Element))) Element{};
  m_expectedSize += std::size_t{2} * name->utf8Length + kMarkupSize;
  element->type = Node::kElement;
  element->previous = element;
  element->name = name;
  return element;
}

Attribute* Document::makeAttribute(const Name* name, Text value) {
  auto* attribute = makeWithValue<Attribute>(Node::kAttribute, value);
  attribute->name = name;
  m_expectedSize += name->utf8Length;
  return attribute;
}

CharacterData* Document::makeCharacterData(Node::Type type, Text data) {
  return makeWithValue<CharacterData>(type, data);
}

Instruction* Document::makeInstruction(const Name* target, Text data) {
  auto* instruction = makeWithValue<Instruction>(Node::kInstruction, data);
  instruction->target = target;
  return instruction;
}

ValueBlock* Document::makeBlock(Text value, std::size_t capacity) {
  auto* block = new (m_arena.allocate(sizeof(ValueBlock) + capacity * sizeof(char16_t))) ValueBlock{capacity};
  std::copy(value.begin(), value.end(), block->units());
  return block;
}

Element* Document::newElement(Text name) {
  return makeElement(validName(name));
}

CharacterData* Document::newCharacterData(Node::Type type, Text data) {
  requireNoNul(data);
  return makeCharacterData(type, data);
}

void Document::setPlaceholder(Text name) {
  m_placeholder = newElement(name);
  link(&m_node, m_placeholder, nullptr);
}

// Copying.

Attribute* Document::copyAttribute(const Attribute* source) {
  const Name* name = m_names.intern(source->name->text());
  if (!source->has(Node::kHasChildList)) return makeAttribute(name, ownValue(source));
  Attribute* copy = makeAttribute(name, Text());
  setFlag(copy, Node::kHasChildList);
  childListOf(copy) = nullptr;
  for (const ChildNode* child = firstListed(source); child != nullptr; child = child->following())
    link(copy, makeCharacterData(Node::kText, ownValue(child)), nullptr);
  return copy;
}

Element* Document::copyElement(const Element* source) {
  Element* copy = makeElement(m_names.intern(source->name->text()));
  Attribute* last = nullptr;
  for (const Attribute* at = source->firstAttribute; at != nullptr; at = at->following()) {
    Attribute* attribute = copyAttribute(at);
    attribute->parent = copy;
    if (last == nullptr)
      copy->firstAttribute = attribute;
    else
      last->next = attribute;
    last = attribute;
  }
  return copy;
}

/// The node without its children; null for a document.
Node* Document::copyAlone(const Node* source) {
  switch (source->type) {
    case Node::kElement:
      return copyElement(static_cast<const Element*>(source));
    case Node::kAttribute:
      return copyAttribute(static_cast<const Attribute*>(source));
    case Node::kInstruction:
      return makeInstruction(m_names.intern(static_cast<const Instruction*>(source)->target->text()), ownValue(source));
    case Node::kDocument:
      return nullptr;
    default:
      return makeCharacterData(source->type, ownValue(source));
  }
}

Node* Document::copy(const Node* source, bool deep) {
  Node* const copied = copyAlone(source);
  if (!deep || !isElement(source)) return copied;
  Node* above = copied;  // the copy of the parent of `node`
  const Node* node = firstListed(source);
  while (node != nullptr) {
    Node* child = copyAlone(node);
    link(above, asChild(child), nullptr);
    if (const Node* below = firstListed(node)) {
      above = child;
      node = below;
      continue;
    }
    while (node->next == nullptr) {
      node = node->parent;
      if (node == source) return copied;
      above = above->parent;
    }
    node = node->next;
  }
  return copied;
}

void Document::copyChildren(const Document& source) {
  for (const ChildNode* child = source.m_node.firstChild; child != nullptr; child = child->following())
    link(&m_node, asChild(copy(child, true)), nullptr);
}

// Links between nodes.

void Document::link(Node* parent, ChildNode* child, ChildNode* before) noexcept {
  ChildNode*& first = firstChildOf(parent);
  child->parent = parent;
  child->next = before;
  if (first == nullptr) {
    child->previous = child;
    first = child;
  } else if (before == nullptr) {
    ChildNode* const last = first->previous;
    last->next = child;
    child->previous = last;
    first->previous = child;
  } else {
    child->previous = before->previous;
    before->previous = child;
    if (before == first)
      first = child;
    else
      child->previous->next = child;
  }
  if (parent == &m_node && isElement(child)) m_documentElement = static_cast<Element*>(child);
}

void Document::unlink(ChildNode* child) noexcept {
  ChildNode*& first = firstChildOf(child->parent);
  auto* const next = child->following();
  if (child == first)
    first = next;
  else
    child->previous->next = next;
  // What follows the child, or the first child when it was the last, knows it as the one before.
  if (next != nullptr)
    next->previous = child->previous;
  else if (first != nullptr)
    first->previous = child->previous;
  if (child == m_documentElement) m_documentElement = nullptr;
  child->parent = nullptr;
  child->next = nullptr;
  child->previous = child;
}

// Changing trees.

void Document::requireChild(const Node* parent, const Node* child) {
  if (child == nullptr || asChild(child) == nullptr || child->parent != parent)
    throw Refusal{TRNIDOM_DOMException::NOT_FOUND_ERR, describe(child) + " is not its child"};
}

void Document::requireInsertable(const Node* parent, const Node* child) const {
  const auto refuse = [](const std::string& because) {
    throw Refusal{TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR, because};
  };
  if (!takes(parent->type, child->type)) refuse(describe(child) + " cannot be its child");
  if (isSelfOrAncestor(child, parent)) refuse("the child is the node or above it");
}

/// The placeholder, when it has to give way to the child. A document has one element.
Element* Document::displacedBy(const Node* parent, const Node* child, const Node* replaced) const {
  Element* const present = m_documentElement;
  if (parent != &m_node || !isElement(child) || present == nullptr || present == child || present == replaced)
    return nullptr;
  if (present != m_placeholder || present->firstChild != nullptr || present->firstAttribute != nullptr)
    throw Refusal{TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR, "there is a document element already"};
  return present;
}

/// Has the child, and the parent's children, be nodes that can be linked.
void Document::prepare(Node* parent, ChildNode* child) {
  if (child->has(Node::kMirrors)) listChildren(static_cast<Attribute*>(child->parent));
  if (parent->type == Node::kAttribute) listChildren(static_cast<Attribute*>(parent));
}

void Document::put(Node* parent, ChildNode* child, ChildNode* before, Element* displaced) noexcept {
  if (displaced != nullptr) {
    if (before == displaced) before = displaced->following();
    take(displaced);
  }
  if (child->parent != nullptr) take(child);
  if (isText(child)) noteTextChanging(parent);
  link(parent, child, before);
  ++m_structure;
  if (before == nullptr) {
    m_children.appended(parent, child);
  } else {
    ++m_order;
    m_children.inserted(parent, child);
  }
}

void Document::take(ChildNode* child) noexcept {
  m_children.removing(child->parent, child);
  if (isText(child)) noteTextChanging(child->parent);
  unlink(child);
  ++m_structure;
  ++m_order;
}

void Document::insert(Node* parent, Node* child, Node* before) {
  requireInsertable(parent, child);
  Element* const displaced = displacedBy(parent, child, nullptr);
  if (before != nullptr) requireChild(parent, before);
  if (child == before) return;
  prepare(parent, asChild(child));
  put(parent, asChild(child), before != nullptr ? asChild(before) : nullptr, displaced);
}

void Document::replace(Node* parent, Node* child, Node* old) {
  requireChild(parent, old);
  requireInsertable(parent, child);
  Element* const displaced = displacedBy(parent, child, old);
  if (child == old) return;
  prepare(parent, asChild(child));
  ChildNode* before = asChild(old)->following();
  if (before == child) before = before->following();
  take(asChild(old));
  put(parent, asChild(child), before, displaced);
}

void Document::remove(Node* parent, Node* child) {
  requireChild(parent, child);
  prepare(parent, asChild(child));
  take(asChild(child));
}

void Document::appendNew(Node* parent, Element* element) {
  if (isElement(parent))
    put(parent, element, nullptr, nullptr);
  else
    insert(parent, element, nullptr);
}

// Changing values.

/// Sets the value that lies with a node.
void Document::assign(Node* node, Text value) {
  const bool hasBlock = node->has(Node::kHasBlock);
  const std::size_t capacity = hasBlock ? blockOf(node)->capacity : node->room;
  if (value.size() <= capacity) {
    setUnits(node, hasBlock ? blockOf(node)->units() : static_cast<char16_t*>(roomOf(node)), value);
    return;
  }
  // Growing by half bounds what growing values leave behind.
  ValueBlock* const block = makeBlock(value, std::max(value.size(), capacity + capacity / 2));
  blockOf(node) = block;
  setFlag(node, Node::kHasBlock);
  node->length = static_cast<std::uint32_t>(value.size());
}

void Document::setValue(Node* node, Text value) {
  requireNoNul(value);
  if (node->has(Node::kMirrors)) node = node->parent;
  if (node->type != Node::kAttribute) {
    if (isText(node) && node->parent != nullptr) noteTextChanging(node->parent);
    return assign(node, value);
  }
  noteTextChanging(node);
  if (!node->has(Node::kHasChildList)) return assign(node, value);
  ChildNode* child = firstListed(node);
  if (child != nullptr && child->next == nullptr) return assign(child, value);

  ValueBlock* const block = value.size() > node->room ? makeBlock(value, value.size()) : nullptr;
  while (ChildNode* listed = firstListed(node)) unlink(listed);
  ++m_structure;
  ++m_order;
  clearFlag(node, Node::kHasChildList);
  if (block == nullptr) return setUnits(node, static_cast<char16_t*>(roomOf(node)), value);
  setFlag(node, Node::kHasBlock);
  blockOf(node) = block;
  node->length = static_cast<std::uint32_t>(value.size());
}

/// The text of an element, or the value of an attribute, is about to change.
void Document::noteTextChanging(Node* parent) noexcept {
  if (isElement(parent))
    m_children.textChanging(static_cast<Element*>(parent));
  else if (parent->type == Node::kAttribute && parent->parent != nullptr)
    m_children.attributeChanging(static_cast<Element*>(parent->parent), static_cast<Attribute*>(parent)->name);
}

/// Has an attribute keep its children as a list; the text that mirrored it becomes the first.
void Document::listChildren(Attribute* attribute) {
  if (attribute->has(Node::kHasChildList)) return;
  CharacterData* const text = mirrorOf(attribute);
  const Text value = ownValue(attribute);
  if (value.size() <= text->room) {
    setUnits(text, static_cast<char16_t*>(roomOf(text)), value);
  } else {
    blockOf(text) = makeBlock(value, value.size());
    setFlag(text, Node::kHasBlock);
    text->length = attribute->length;
  }
  clearFlag(text, Node::kMirrors);
  m_mirrors.erase(attribute);
  clearFlag(attribute, Node::kHasBlock);
  setFlag(attribute, Node::kHasChildList);
  childListOf(attribute) = text;
}

void Document::setAttribute(Element* element, Text name, Text value) {
  const AttributeIndexes::Place place = placeOf(element, name);
  if (place.found != nullptr) return setValue(place.found, value);
  requireNoNul(value);
  const Name* const valid = validName(name);
  Attribute* const attribute = makeAttribute(valid, value);
  m_attributes.adding(element, attribute);
  m_children.attributeChanging(element, valid);
  attribute->parent = element;
  if (place.before == nullptr) {
    attribute->next = element->firstAttribute;
    element->firstAttribute = attribute;
  } else {
    attribute->next = place.before->next;
    place.before->next = attribute;
  }
  ++m_attributesVersion;
}

void Document::removeAttribute(Element* element, Text name) {
  const AttributeIndexes::Place place = placeOf(element, name);
  Attribute* const attribute = place.found;
  if (attribute == nullptr) return;
  m_children.attributeChanging(element, attribute->name);
  m_attributes.removing(element, attribute);
  if (place.before == nullptr)
    element->firstAttribute = attribute->following();
  else
    place.before->next = attribute->next;
  attribute->parent = nullptr;
  attribute->next = nullptr;
  ++m_attributesVersion;
}

// Reading.

AttributeIndexes::Place Document::placeOf(const Element* element, Text name) const {
  AttributeIndexes::Place place;
  if (AttributeIndexes::placeAmongFirst(element, name, place)) return place;
  const std::lock_guard<std::mutex> lock(m_onDemand);
  return m_attributes.place(const_cast<Element*>(element), name);
}

Attribute* Document::attribute(const Element* element, Text name) const {
  Attribute* at = element->firstAttribute;
  for (int seen = 0; at != nullptr && seen < AttributeIndexes::kFewAttributes; at = at->following(), ++seen) {
    if (at->name->is(name)) return at;
  }
  return at != nullptr ? placeOf(element, name).found : nullptr;
}

ChildNode* Document::firstChild(const Node* node) const {
  if (node->type == Node::kAttribute && !node->has(Node::kHasChildList))
    return mirrorOf(static_cast<const Attribute*>(node));
  return firstListed(node);
}

Element* Document::findChild(Node* parent, ChildKey::Kind kind, Text name, Text attribute, Text value) const {
  const ChildKey key{kind, m_names.find(name), kind == ChildKey::kAttribute ? m_names.find(attribute) : nullptr, value};
  // A name that no node has is no child's.
  if (key.name == nullptr || (kind == ChildKey::kAttribute && key.attribute == nullptr)) return nullptr;
  const std::lock_guard<std::mutex> lock(m_onDemand);
  return m_children.find(parent, key);
}

/// The text that stands for the value of an attribute without a list of children.
CharacterData* Document::mirrorOf(const Attribute* attribute) const {
  const std::lock_guard<std::mutex> lock(m_onDemand);
  const auto found = m_mirrors.find(attribute);
  if (found != m_mirrors.end()) return found->second;
  auto* text = new (m_arena.allocate(sizeof(CharacterData) + kPointerRoom)) CharacterData{};
  text->type = Node::kText;
  text->flags = Node::kMirrors;
  text->room = kPointerRoom / sizeof(char16_t);
  text->parent = const_cast<Attribute*>(attribute);
  text->previous = text;
  m_mirrors.emplace(attribute, text);
  return text;
}

}  // namespace trnidom_detail
