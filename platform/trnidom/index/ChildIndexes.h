#ifndef TRNIDOM_INDEX_CHILDINDEXES_H
#define TRNIDOM_INDEX_CHILDINDEXES_H

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "index/HashBuckets.h"
#include "store/Node.h"
#include "text/Text.h"

namespace trnidom_detail {

/// What a child element is looked for by: its name alone, or with its text or the value of an attribute.
struct ChildKey {
  enum Kind { kName, kText, kAttribute };

  Kind kind;
  const Name* name;
  const Name* attribute;  ///< for kAttribute: the attribute's name
  Text value;             ///< the text, or the attribute's value
};

/// Whether a node is an element of that key.
bool matches(const Node* node, const ChildKey& key) noexcept;

/// The first element of that key below a node, in document order, or null.
Element* firstMatchBelow(Node* root, const ChildKey& key) noexcept;

/// Finds children of parents that have many.
///
/// A search looks at the first children one by one; when there are more, an index of that parent's children by that
/// kind of key is made. The children of an indexed parent are numbered in their order. `Document` tells this object of
/// every change, those of a child's key before they happen: the child is then taken out of the indexes, and entered
/// again by the next search. Only an insertion before other children drops a parent's indexes.
class ChildIndexes {
 public:
  ChildIndexes() = default;
  ChildIndexes(const ChildIndexes&) = delete;
  ChildIndexes& operator=(const ChildIndexes&) = delete;

  /// The first child element of that key, or null.
  /// @throws std::bad_alloc
  Element* find(Node* parent, const ChildKey& key);

  void appended(Node* parent, ChildNode* child) noexcept {
    if (parent->has(Node::kIndexed) && isElement(child)) noteAppended(parent, static_cast<Element*>(child));
  }
  void inserted(Node* parent, const ChildNode* child) noexcept {
    if (parent->has(Node::kIndexed) && isElement(child)) drop(parent);
  }
  /// To be told before the child goes.
  void removing(Node* parent, ChildNode* child) noexcept {
    if (parent->has(Node::kIndexed) && isElement(child)) noteRemoving(parent, static_cast<Element*>(child));
  }
  /// To be told before the text of an element changes.
  void textChanging(Element* element) noexcept {
    if (isIndexedChild(element)) noteChanging(element, ChildKey::kText, nullptr);
  }
  /// To be told before the attribute of that name changes, comes or goes.
  void attributeChanging(Element* element, const Name* name) noexcept {
    if (isIndexedChild(element)) noteChanging(element, ChildKey::kAttribute, name);
  }

 private:
  /// The children of one parent by one kind of key.
  struct Index {
    ChildKey::Kind kind;
    const Name* attribute;
    HashBuckets buckets;

    bool isFor(ChildKey::Kind otherKind, const Name* otherAttribute) const noexcept {
      return kind == otherKind && attribute == otherAttribute;
    }
    void enter(Element* child);
    void erase(Element* child) noexcept;
  };

  /// What is known of one parent.
  struct Parent {
    std::vector<Index> indexes;
    std::vector<Element*> changed;  // taken out of the indexes since the last search
    std::uint32_t nextNumber = 0;
  };

  static bool isIndexedChild(const Element* element) noexcept {
    return element->parent != nullptr && element->parent->has(Node::kIndexed);
  }

  Index& indexFor(Node* parent, Parent& record, const ChildKey& key);
  static void enterChanged(const Node* parent, Parent& record);
  void noteAppended(Node* parent, Element* child) noexcept;
  void noteRemoving(Node* parent, Element* child) noexcept;
  void noteChanging(Element* child, ChildKey::Kind kind, const Name* attribute) noexcept;
  void drop(Node* parent) noexcept;

  std::unordered_map<const Node*, Parent> m_parents;
};

}  // namespace trnidom_detail

#endif
