#ifndef TRNIDOM_CHILDINDEXES_H
#define TRNIDOM_CHILDINDEXES_H

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

#include <xercesc/dom/DOMNode.hpp>

#include "Text.h"

namespace trnidom_detail {

/// What a child element is looked for by: its name alone, or with its text or the value of an attribute.
struct ChildKey {
  enum Kind { kName, kText, kAttribute };

  Kind kind;
  Text name;
  Text attribute;  ///< for kAttribute: the attribute's name
  Text value;      ///< the text, or the attribute's value
};

/// Whether a node is an element of that key.
bool matches(const xercesc::DOMNode* node, const ChildKey& key);

/// Whether the text and CDATA children of an element, concatenated, are that text.
bool hasText(const xercesc::DOMNode* element, Text text);

/// Finds children of elements that have many.
///
/// A search looks at the first children one by one; when there are more, an index of that parent's children by that
/// kind of key is made, and kept as long as changes allow it. Whoever changes the tree tells this object afterwards;
/// what it is told costs next to nothing while there are no indexes.
class ChildIndexes {
 public:
  ChildIndexes() = default;
  ChildIndexes(const ChildIndexes&) = delete;
  ChildIndexes& operator=(const ChildIndexes&) = delete;

  /// The first child element of that key, or null.
  xercesc::DOMNode* find(xercesc::DOMNode* parent, const ChildKey& key);

  void appended(xercesc::DOMNode* parent, xercesc::DOMNode* child) noexcept {
    if (!m_indexes.empty()) noteAppended(parent, child);
  }
  void inserted(xercesc::DOMNode* parent, xercesc::DOMNode* child) noexcept {
    if (!m_indexes.empty()) noteMoved(parent, child);
  }
  void removed(xercesc::DOMNode* parent, xercesc::DOMNode* child) noexcept {
    if (!m_indexes.empty()) noteMoved(parent, child);
  }
  void attributeChanged(xercesc::DOMNode* element, Text name) noexcept {
    if (!m_indexes.empty()) noteAttribute(element, name);
  }
  /// The value of a node, or of an attribute, was set.
  void valueChanged(xercesc::DOMNode* node) noexcept {
    if (!m_indexes.empty()) noteValue(node);
  }

 private:
  /// The children of one parent by one kind of key: a hash table of the first child of each key. A child stays where
  /// its key was when the key changes, so a child found under a hash is compared before it counts.
  class Index {
   public:
    Index(ChildKey::Kind kind, Text attribute) : m_kind(kind), m_attribute(attribute) {}

    bool isFor(ChildKey::Kind kind, Text attribute) const noexcept {
      return m_kind == kind && (kind != ChildKey::kAttribute || m_attribute == attribute);
    }

    void fill(const xercesc::DOMNode* parent);
    void add(xercesc::DOMNode* element);

    /// Takes note of a child's new key. False when the order of equal children has become unknown.
    bool change(xercesc::DOMNode* element);

    /// The first child of that key, or null. `stale` tells that a child whose key had this hash has another key; in an
    /// index that was changed since it was filled, another child may then be the first, and null may be wrong.
    xercesc::DOMNode* find(const ChildKey& key, bool& stale) const;

   private:
    struct Slot {
      std::size_t hash;
      xercesc::DOMNode* child;
    };

    /// What was entered under a hash: the element that is to be, and the first of the others.
    struct Found {
      bool self = false;
      const xercesc::DOMNode* other = nullptr;
    };

    ChildKey keyOf(const xercesc::DOMNode* element, std::u16string& store) const;
    static std::size_t hashOf(const ChildKey& key) noexcept;
    Found enter(xercesc::DOMNode* element, const ChildKey& key);
    void grow();

    ChildKey::Kind m_kind;
    std::u16string m_attribute;
    std::vector<Slot> m_slots;
    std::size_t m_used = 0;
  };

  void noteAppended(xercesc::DOMNode* parent, xercesc::DOMNode* child) noexcept;
  void noteMoved(xercesc::DOMNode* parent, xercesc::DOMNode* child) noexcept;
  void noteAttribute(xercesc::DOMNode* element, Text name) noexcept;
  void noteValue(xercesc::DOMNode* node) noexcept;
  void noteText(xercesc::DOMNode* element) noexcept;
  void noteKey(xercesc::DOMNode* element, ChildKey::Kind kind, Text attribute) noexcept;

  std::unordered_map<const xercesc::DOMNode*, std::vector<Index>> m_indexes;
};

}  // namespace trnidom_detail

#endif
