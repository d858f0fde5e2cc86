#ifndef TRNIDOM_STORE_NODE_H
#define TRNIDOM_STORE_NODE_H

#include <cstddef>
#include <cstdint>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Node.h>

#include "store/Names.h"
#include "text/Text.h"

/// The nodes of a document, as they lie in its arena. Everything here reads; trees are changed by `Document` alone.
///
/// A value lies behind its node. One that outgrows the room there moves to a block of its own, and the room then holds
/// a pointer to that. An attribute whose children are more or less than the one text that its value is keeps them as a
/// list, and the room then holds a pointer to the first. Room for a pointer is always there.
namespace trnidom_detail {

struct Attribute;
struct ChildNode;

struct Node {
  /// The W3C's node types.
  enum Type : std::uint8_t {
    kElement = TRNIDOM_Node::ELEMENT_NODE,
    kAttribute = TRNIDOM_Node::ATTRIBUTE_NODE,
    kText = TRNIDOM_Node::TEXT_NODE,
    kCdata = TRNIDOM_Node::CDATA_SECTION_NODE,
    kInstruction = TRNIDOM_Node::PROCESSING_INSTRUCTION_NODE,
    kComment = TRNIDOM_Node::COMMENT_NODE,
    kDocument = TRNIDOM_Node::DOCUMENT_NODE
  };
  enum Flag : std::uint8_t {
    kHasBlock = 1,        ///< the value is in a block of its own
    kHasChildList = 2,    ///< an attribute: its children are a list
    kMirrors = 4,         ///< a text: it has no value of its own, but that of the attribute that is its parent
    kIndexed = 8,         ///< an element or document: ChildIndexes knows it as a parent
    kLeftIndexes = 16,    ///< an element: its key has changed, and it is to be entered into its parent's indexes again
    kManyAttributes = 32  ///< an element: AttributeIndexes knows it
  };

  Type type;
  std::uint8_t flags;
  std::uint16_t room;  ///< code units behind the node
  union {
    std::uint32_t length;  ///< of the value, in code units
    std::uint32_t number;  ///< an element's among the children of an indexed parent, in their order
  };
  Node* parent;  ///< of an attribute: its element
  Node* next;    ///< sibling; of an attribute: the next attribute

  bool has(Flag flag) const noexcept { return (flags & flag) != 0; }
};

/// A node that can stand below another.
struct ChildNode : Node {
  ChildNode* previous;  ///< sibling; of a first child: the last child

  ChildNode* following() const noexcept { return static_cast<ChildNode*>(next); }
};

struct Element : ChildNode {
  const Name* name;
  ChildNode* firstChild;
  Attribute* firstAttribute;  ///< in the order of their names by code unit
};

/// A text, CDATA section or comment. The value follows.
struct CharacterData : ChildNode {};

/// A processing instruction. The value follows.
struct Instruction : ChildNode {
  const Name* target;
};

/// The value follows.
struct Attribute : Node {
  const Name* name;

  Attribute* following() const noexcept { return static_cast<Attribute*>(next); }
};

struct DocumentNode : Node {
  ChildNode* firstChild;
};

/// Where a value lies that has outgrown its node. The code units follow.
struct ValueBlock {
  std::size_t capacity;

  char16_t* units() noexcept { return reinterpret_cast<char16_t*>(this + 1); }
};

inline bool isElement(const Node* node) noexcept {
  return node->type == Node::kElement;
}

/// Whether the node is part of what its parent's text is.
inline bool isText(const Node* node) noexcept {
  return node->type == Node::kText || node->type == Node::kCdata;
}

inline bool hasValue(const Node* node) noexcept {
  return node->type != Node::kElement && node->type != Node::kDocument;
}

/// The node as a child; null for an attribute or a document.
inline ChildNode* asChild(Node* node) noexcept {
  return node->type == Node::kAttribute || node->type == Node::kDocument ? nullptr : static_cast<ChildNode*>(node);
}
inline const ChildNode* asChild(const Node* node) noexcept {
  return asChild(const_cast<Node*>(node));
}

/// The least room behind a node that has a value, in bytes.
constexpr std::size_t kPointerRoom = sizeof(void*);

/// The room behind a node that has a value.
inline void* roomOf(Node* node) noexcept {
  switch (node->type) {
    case Node::kAttribute:
      return static_cast<Attribute*>(node) + 1;
    case Node::kInstruction:
      return static_cast<Instruction*>(node) + 1;
    default:
      return static_cast<CharacterData*>(node) + 1;
  }
}

/// The pointer that the room holds in place of a value.
inline ValueBlock*& blockOf(Node* node) noexcept {
  return *static_cast<ValueBlock**>(roomOf(node));
}
inline ChildNode*& childListOf(Attribute* attribute) noexcept {
  return *reinterpret_cast<ChildNode**>(attribute + 1);
}

/// Where an element, document, or attribute with a list keeps its first child.
inline ChildNode*& firstChildOf(Node* parent) noexcept {
  switch (parent->type) {
    case Node::kElement:
      return static_cast<Element*>(parent)->firstChild;
    case Node::kDocument:
      return static_cast<DocumentNode*>(parent)->firstChild;
    default:
      return childListOf(static_cast<Attribute*>(parent));
  }
}

/// The children of a node that are in a list; null for one that has none, or whose only child mirrors it.
inline ChildNode* firstListed(const Node* node) noexcept {
  if (node->type == Node::kElement) return static_cast<const Element*>(node)->firstChild;
  if (node->type == Node::kDocument) return static_cast<const DocumentNode*>(node)->firstChild;
  if (node->type == Node::kAttribute && node->has(Node::kHasChildList))
    return childListOf(const_cast<Attribute*>(static_cast<const Attribute*>(node)));
  return nullptr;
}

/// The value of a node that has one and whose children, if it is an attribute, are not a list.
inline Text ownValue(const Node* node) noexcept {
  auto* const holder = const_cast<Node*>(node->has(Node::kMirrors) ? node->parent : node);
  const char16_t* const units =
      holder->has(Node::kHasBlock) ? blockOf(holder)->units() : static_cast<const char16_t*>(roomOf(holder));
  return {units, holder->length};
}

/// The texts and CDATA sections among a node and its siblings after it, joined.
/// @throws std::bad_alloc
I18NString joinedText(const ChildNode* first);

/// The value of any node.
/// @throws std::bad_alloc
inline I18NString valueOf(const Node* node) {
  if (!hasValue(node)) return {};
  return node->has(Node::kHasChildList) ? joinedText(firstListed(node)) : stringOf(ownValue(node));
}

/// The name that a node was given; null for a kind of node that is given none.
inline const Name* nameOf(const Node* node) noexcept {
  switch (node->type) {
    case Node::kElement:
      return static_cast<const Element*>(node)->name;
    case Node::kAttribute:
      return static_cast<const Attribute*>(node)->name;
    case Node::kInstruction:
      return static_cast<const Instruction*>(node)->target;
    default:
      return nullptr;
  }
}

/// The node after this one in document order among what is below `root`; null at the end.
inline ChildNode* nextBelow(const Node* root, const Node* node) noexcept {
  if (ChildNode* child = firstListed(node)) return child;
  for (; node != root; node = node->parent)
    if (node->next != nullptr) return static_cast<ChildNode*>(node->next);
  return nullptr;
}

/// The node before this one in document order among what is below `root`; null at the beginning.
inline ChildNode* previousBelow(const Node* root, const ChildNode* node) noexcept {
  ChildNode* before = node->previous;
  if (before->next == nullptr) return node->parent == root ? nullptr : static_cast<ChildNode*>(node->parent);
  while (ChildNode* first = firstListed(before)) before = first->previous;
  return before;
}

}  // namespace trnidom_detail

#endif
