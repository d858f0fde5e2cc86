#include "index/ChildIndexes.h"

#include <algorithm>
#include <limits>
#include <new>

#include "text/SipHash.h"

namespace trnidom_detail {

namespace {

/// So many children are looked at one by one before an index pays.
constexpr int kFewChildren = 16;

/// Calls `take` with each piece that the text or attribute value of a key consists of. False when the element has no
/// such attribute.
template <typename Take>
bool eachPiece(const Element* element, ChildKey::Kind kind, const Name* attributeName, Take take) noexcept {
  if (kind == ChildKey::kText) {
    for (const ChildNode* child = element->firstChild; child != nullptr; child = child->following())
      if (isText(child)) take(ownValue(child));
  } else if (kind == ChildKey::kAttribute) {
    const Attribute* attribute = element->firstAttribute;
    while (attribute != nullptr && attribute->name != attributeName) attribute = attribute->following();
    if (attribute == nullptr) return false;
    if (!attribute->has(Node::kHasChildList)) {
      take(ownValue(attribute));
    } else {
      for (const ChildNode* child = firstListed(attribute); child != nullptr; child = child->following())
        take(ownValue(child));
    }
  }
  return true;
}

std::size_t hashOf(const ChildKey& key) noexcept {
  SipHash hash;
  hash.add(reinterpret_cast<std::uintptr_t>(key.name));
  hash.add(key.value);
  return hash.value();
}

}  // namespace

bool matches(const Node* node, const ChildKey& key) noexcept {
  if (!isElement(node)) return false;
  const auto* element = static_cast<const Element*>(node);
  if (element->name != key.name) return false;
  Text rest = key.value;
  bool same = true;
  const bool present = eachPiece(element, key.kind, key.attribute, [&](Text piece) {
    same = same && rest.substr(0, piece.size()) == piece;
    if (same) rest.remove_prefix(piece.size());
  });
  return present && same && rest.empty();
}

Element* firstMatchBelow(Node* root, const ChildKey& key) noexcept {
  for (ChildNode* node = nextBelow(root, root); node != nullptr; node = nextBelow(root, node))
    if (matches(node, key)) return static_cast<Element*>(node);
  return nullptr;
}

void ChildIndexes::Index::enter(Element* child) {
  SipHash hash;
  hash.add(reinterpret_cast<std::uintptr_t>(child->name));
  if (eachPiece(child, kind, attribute, [&hash](Text piece) { hash.add(piece); })) buckets.enter(hash.value(), child);
}

void ChildIndexes::Index::erase(Element* child) noexcept {
  SipHash hash;
  hash.add(reinterpret_cast<std::uintptr_t>(child->name));
  if (eachPiece(child, kind, attribute, [&hash](Text piece) { hash.add(piece); })) buckets.erase(hash.value(), child);
}

Element* ChildIndexes::find(Node* parent, const ChildKey& key) {
  ChildNode* child = firstListed(parent);
  for (int seen = 0; child != nullptr && seen < kFewChildren; child = child->following(), ++seen)
    if (matches(child, key)) return static_cast<Element*>(child);
  if (child == nullptr) return nullptr;

  Parent& record = m_parents[parent];
  const Index& index = indexFor(parent, record, key);
  try {
    enterChanged(parent, record);
  } catch (const std::bad_alloc&) {  // a child may be in some indexes and not in others
    drop(parent);
    throw;
  }
  return index.buckets.find(hashOf(key), [&key](const Element* element) { return matches(element, key); });
}

ChildIndexes::Index& ChildIndexes::indexFor(Node* parent, Parent& record, const ChildKey& key) {
  for (Index& index : record.indexes)
    if (index.isFor(key.kind, key.attribute)) return index;

  // A parent that is not indexed yet has its children numbered.
  const bool isNew = !parent->has(Node::kIndexed);
  Index made{key.kind, key.attribute, {}};
  std::uint32_t number = 0;
  for (ChildNode* child = firstListed(parent); child != nullptr; child = child->following()) {
    if (!isElement(child)) continue;
    auto* element = static_cast<Element*>(child);
    if (isNew) {
      element->number = number++;
      element->flags &= static_cast<std::uint8_t>(~Node::kLeftIndexes);
    }
    if (!element->has(Node::kLeftIndexes)) made.enter(element);
  }
  record.indexes.push_back(std::move(made));
  if (isNew) {
    record.nextNumber = number;
    parent->flags |= Node::kIndexed;
  }
  return record.indexes.back();
}

void ChildIndexes::enterChanged(const Node* parent, Parent& record) {
  while (!record.changed.empty()) {
    Element* child = record.changed.back();
    // It may have gone since, or come again, or be there twice.
    if (child->parent == parent && child->has(Node::kLeftIndexes)) {
      for (Index& index : record.indexes) index.enter(child);
      child->flags &= static_cast<std::uint8_t>(~Node::kLeftIndexes);
    }
    record.changed.pop_back();
  }
}

void ChildIndexes::noteAppended(Node* parent, Element* child) noexcept {
  Parent& record = m_parents.find(parent)->second;
  if (record.nextNumber == std::numeric_limits<std::uint32_t>::max()) return drop(parent);
  child->number = record.nextNumber++;
  child->flags &= static_cast<std::uint8_t>(~Node::kLeftIndexes);
  try {
    for (Index& index : record.indexes) index.enter(child);
  } catch (const std::bad_alloc&) {  // do without
    drop(parent);
  }
}

void ChildIndexes::noteRemoving(Node* parent, Element* child) noexcept {
  if (child->has(Node::kLeftIndexes)) {
    child->flags &= static_cast<std::uint8_t>(~Node::kLeftIndexes);
    return;
  }
  for (Index& index : m_parents.find(parent)->second.indexes) index.erase(child);
}

void ChildIndexes::noteChanging(Element* child, ChildKey::Kind kind, const Name* attribute) noexcept {
  if (child->has(Node::kLeftIndexes)) return;
  Parent& record = m_parents.find(child->parent)->second;
  const auto isConcerned = [&](const Index& index) { return index.isFor(kind, attribute); };
  if (std::none_of(record.indexes.begin(), record.indexes.end(), isConcerned)) return;
  try {
    record.changed.push_back(child);
  } catch (const std::bad_alloc&) {  // do without
    return drop(child->parent);
  }
  for (Index& index : record.indexes) index.erase(child);
  child->flags |= Node::kLeftIndexes;
}

void ChildIndexes::drop(Node* parent) noexcept {
  m_parents.erase(parent);
  parent->flags &= static_cast<std::uint8_t>(~Node::kIndexed);
}

}  // namespace trnidom_detail
