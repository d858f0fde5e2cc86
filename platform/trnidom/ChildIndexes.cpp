#include "ChildIndexes.h"

#include <algorithm>
#include <functional>
#include <new>

#include "NodeOps.h"

namespace trnidom_detail {

namespace {

using xercesc::DOMNode;

/// So many children are looked at one by one before an index pays.
constexpr int kFewChildren = 16;

bool isElement(const DOMNode* node) noexcept {
  return node->getNodeType() == DOMNode::ELEMENT_NODE;
}

bool isText(const DOMNode* node) noexcept {
  const auto type = node->getNodeType();
  return type == DOMNode::TEXT_NODE || type == DOMNode::CDATA_SECTION_NODE;
}

}  // namespace

bool hasText(const DOMNode* element, Text text) {
  for (const DOMNode* child = ops::firstChild(element); child != nullptr; child = ops::nextSibling(child)) {
    if (!isText(child)) continue;
    const Text part = ops::value(child);
    if (text.substr(0, part.size()) != part) return false;
    text.remove_prefix(part.size());
  }
  return text.empty();
}

bool matches(const DOMNode* node, const ChildKey& key) {
  if (!isElement(node) || !isName(ops::name(node), key.name)) return false;
  switch (key.kind) {
    case ChildKey::kText:
      return hasText(node, key.value);
    case ChildKey::kAttribute: {
      const Text value = ops::attributeValue(node, key.attribute);
      return value.data() != nullptr && value == key.value;
    }
    default:
      return true;
  }
}

DOMNode* ChildIndexes::find(DOMNode* parent, const ChildKey& key) {
  DOMNode* child = ops::firstChild(parent);
  for (int seen = 0; child != nullptr && seen < kFewChildren; child = ops::nextSibling(child), ++seen)
    if (matches(child, key)) return child;
  if (child == nullptr) return nullptr;

  std::vector<Index>& indexes = m_indexes[parent];
  const auto isIt = [&](const Index& index) { return index.isFor(key.kind, key.attribute); };
  auto index = std::find_if(indexes.begin(), indexes.end(), isIt);
  if (index != indexes.end()) {
    bool stale = false;
    DOMNode* found = index->find(key, stale);
    if (!stale) return found;
    indexes.erase(index);
  }
  Index made(key.kind, key.attribute);
  made.fill(parent);
  indexes.push_back(std::move(made));
  bool stale = false;
  return indexes.back().find(key, stale);
}

void ChildIndexes::noteAppended(DOMNode* parent, DOMNode* child) noexcept {
  if (isText(child)) return noteText(parent);
  if (!isElement(child)) return;
  const auto found = m_indexes.find(parent);
  if (found == m_indexes.end()) return;
  try {
    for (Index& index : found->second) index.add(child);
  } catch (...) {  // out of memory: do without
    m_indexes.erase(found);
  }
}

void ChildIndexes::noteMoved(DOMNode* parent, DOMNode* child) noexcept {
  if (isText(child)) return noteText(parent);
  if (isElement(child)) m_indexes.erase(parent);
}

void ChildIndexes::noteAttribute(DOMNode* element, Text name) noexcept {
  noteKey(element, ChildKey::kAttribute, name);
}

void ChildIndexes::noteValue(DOMNode* node) noexcept {
  if (isText(node)) {
    if (DOMNode* parent = ops::parent(node)) noteText(parent);
  } else if (node->getNodeType() == DOMNode::ATTRIBUTE_NODE) {
    if (DOMNode* element = ops::ownerElement(node)) noteAttribute(element, ops::name(node));
  }
}

// The children of this node, whose text they make up, have changed.
void ChildIndexes::noteText(DOMNode* node) noexcept {
  if (isElement(node))
    noteKey(node, ChildKey::kText, Text());
  else
    noteValue(node);
}

void ChildIndexes::noteKey(DOMNode* element, ChildKey::Kind kind, Text attribute) noexcept {
  const DOMNode* parent = ops::parent(element);
  if (parent == nullptr) return;
  const auto found = m_indexes.find(parent);
  if (found == m_indexes.end()) return;
  std::vector<Index>& indexes = found->second;
  const auto index = std::find_if(indexes.begin(), indexes.end(),
                                  [&](const Index& candidate) { return candidate.isFor(kind, attribute); });
  if (index == indexes.end()) return;
  bool kept = false;
  try {
    // A text of many pieces is not hashed again for each of them.
    const DOMNode* piece = kind == ChildKey::kText ? ops::firstChild(element) : nullptr;
    for (int pieces = 0; piece != nullptr && pieces < kFewChildren; ++pieces) piece = ops::nextSibling(piece);
    kept = piece == nullptr && index->change(element);
  } catch (...) {  // out of memory: do without
  }
  if (kept) return;
  indexes.erase(index);
  if (indexes.empty()) m_indexes.erase(found);
}

void ChildIndexes::Index::fill(const DOMNode* parent) {
  for (DOMNode* child = ops::firstChild(parent); child != nullptr; child = ops::nextSibling(child))
    if (isElement(child)) add(child);
}

DOMNode* ChildIndexes::Index::find(const ChildKey& key, bool& stale) const {
  if (m_slots.empty()) return nullptr;
  const std::size_t hash = hashOf(key);
  const std::size_t mask = m_slots.size() - 1;
  for (std::size_t at = hash & mask; m_slots[at].child != nullptr; at = (at + 1) & mask) {
    if (m_slots[at].hash != hash) continue;
    if (matches(m_slots[at].child, key)) return m_slots[at].child;
    stale = true;
  }
  return nullptr;
}

void ChildIndexes::Index::add(DOMNode* element) {
  std::u16string store;
  const ChildKey key = keyOf(element, store);
  if (key.kind != m_kind) return;  // lacks the attribute
  enter(element, key);
}

bool ChildIndexes::Index::change(DOMNode* element) {
  std::u16string store;
  const ChildKey key = keyOf(element, store);
  if (key.kind != m_kind) return true;  // lacks the attribute
  const Found found = enter(element, key);
  if (found.other == nullptr) return true;
  // What is there already is the first of its key if it still has it and this one comes after all others.
  return !found.self && matches(found.other, key) && ops::nextSibling(element) == nullptr;
}

/// Enters the element under its key, unless it is there or a child of that key is. Gives what was there under the key's
/// hash.
ChildIndexes::Index::Found ChildIndexes::Index::enter(DOMNode* element, const ChildKey& key) {
  if (m_used >= m_slots.size() / 2) grow();
  const std::size_t hash = hashOf(key);
  const std::size_t mask = m_slots.size() - 1;
  Found found;
  bool taken = false;
  std::size_t at = hash & mask;
  for (; m_slots[at].child != nullptr; at = (at + 1) & mask) {
    const DOMNode* child = m_slots[at].child;
    if (m_slots[at].hash != hash) continue;
    if (child == element)
      found.self = true;
    else if (found.other == nullptr)
      found.other = child;
    taken = taken || child == element || matches(child, key);
  }
  if (taken) return found;
  m_slots[at] = {hash, element};
  ++m_used;
  return found;
}

void ChildIndexes::Index::grow() {
  std::vector<Slot> slots(m_slots.empty() ? 64 : m_slots.size() * 2);
  const std::size_t mask = slots.size() - 1;
  for (const Slot& slot : m_slots) {
    if (slot.child == nullptr) continue;
    std::size_t at = slot.hash & mask;
    while (slots[at].child != nullptr) at = (at + 1) & mask;
    slots[at] = slot;
  }
  m_slots.swap(slots);
}

/// The element's key of this index's kind; one of kind kName when it lacks the attribute.
ChildKey ChildIndexes::Index::keyOf(const DOMNode* element, std::u16string& store) const {
  ChildKey key{m_kind, ops::name(element), m_attribute, Text()};
  if (m_kind == ChildKey::kText) {
    for (const DOMNode* child = ops::firstChild(element); child != nullptr; child = ops::nextSibling(child)) {
      if (!isText(child)) continue;
      if (key.value.empty() && store.empty()) {
        key.value = ops::value(child);
        continue;
      }
      if (store.empty()) store = key.value;
      store += ops::value(child);
      key.value = store;
    }
  } else if (m_kind == ChildKey::kAttribute) {
    key.value = ops::attributeValue(element, m_attribute);
    if (key.value.data() == nullptr) key.kind = ChildKey::kName;
  }
  return key;
}

std::size_t ChildIndexes::Index::hashOf(const ChildKey& key) noexcept {
  const std::hash<Text> hash;
  return hash(key.name) * 31 + hash(key.value);
}

}  // namespace trnidom_detail
