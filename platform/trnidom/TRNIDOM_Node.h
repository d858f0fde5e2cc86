#ifndef TRNIDOM_TRNIDOM_NODE_H
#define TRNIDOM_TRNIDOM_NODE_H

#include <utility>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_HandleCount.h>

class TRNIDOM_Document;
class TRNIDOM_NamedNodeMap;
class TRNIDOM_NodeList;

namespace trnidom_detail {
struct Access;
struct Node;
}  // namespace trnidom_detail

/// A handle to a node of a document, or to none.
///
/// A handle is two words: the node and its document. Copying it never copies a node, `==` means the
/// same node, and any handle keeps its whole document alive. Reading from a null handle gives null, empty or 0;
/// changing through one throws. Semantics are those of the W3C DOM Level 2 Core.
///
/// Threads: different documents are used by different threads at once, without a lock between them. A document, with
/// all handles into it, is changed by one thread while no other uses it; it may be read by several.
///
/// Every change throws TRNIDOM_DOMException with the W3C's code when the DOM does not allow it, and std::bad_alloc
/// when memory is exhausted; the tree is then as it was.
class TRNIDOM_API TRNIDOM_Node {
 public:
  static constexpr unsigned short ELEMENT_NODE = 1;           ///< an element
  static constexpr unsigned short ATTRIBUTE_NODE = 2;         ///< an attribute, which has no parent and is no child
  static constexpr unsigned short TEXT_NODE = 3;              ///< a text
  static constexpr unsigned short CDATA_SECTION_NODE = 4;     ///< a CDATA section
  static constexpr unsigned short ENTITY_REFERENCE_NODE = 5;  ///< of no node here
  static constexpr unsigned short ENTITY_NODE = 6;            ///< of no node here
  static constexpr unsigned short PROCESSING_INSTRUCTION_NODE = 7;  ///< a processing instruction
  static constexpr unsigned short COMMENT_NODE = 8;                 ///< a comment
  static constexpr unsigned short DOCUMENT_NODE = 9;                ///< a document
  static constexpr unsigned short DOCUMENT_TYPE_NODE = 10;          ///< of no node here
  static constexpr unsigned short DOCUMENT_FRAGMENT_NODE = 11;      ///< of no node here
  static constexpr unsigned short NOTATION_NODE = 12;               ///< of no node here

  /// The null handle.
  TRNIDOM_Node() noexcept = default;

  /// One more handle to the same node.
  TRNIDOM_Node(const TRNIDOM_Node& other) noexcept : m_node(other.m_node), m_document(other.m_document) {
    if (m_document != nullptr) m_document->add();
  }

  /// A handle to the same node; the other one is null then.
  TRNIDOM_Node(TRNIDOM_Node&& other) noexcept
      : m_node(std::exchange(other.m_node, nullptr)), m_document(std::exchange(other.m_document, nullptr)) {}

  /// Refers to the other's node. The document referred to before goes if this was the last handle into it.
  TRNIDOM_Node& operator=(const TRNIDOM_Node& other) noexcept {
    TRNIDOM_Node copy(other);
    swap(copy);
    return *this;
  }

  /// The same; the other handle is null then.
  TRNIDOM_Node& operator=(TRNIDOM_Node&& other) noexcept {
    if (this != &other) {
      if (m_document != nullptr) m_document->remove();
      m_node = std::exchange(other.m_node, nullptr);
      m_document = std::exchange(other.m_document, nullptr);
    }
    return *this;
  }

  /// Frees the document with the last handle into it.
  ~TRNIDOM_Node() {
    if (m_document != nullptr) m_document->remove();
  }

  /// Whether the handle refers to no node.
  bool isNull() const noexcept { return m_node == nullptr; }

  /// Whether both refer to the same node, or both to none.
  friend bool operator==(const TRNIDOM_Node& left, const TRNIDOM_Node& right) noexcept {
    return left.m_node == right.m_node;
  }

  /// Whether they refer to different nodes.
  friend bool operator!=(const TRNIDOM_Node& left, const TRNIDOM_Node& right) noexcept {
    return left.m_node != right.m_node;
  }

  /// The name of an element or attribute with its prefix, the target of a processing instruction, and as the W3C has
  /// them "#text", "#cdata-section", "#comment" and "#document".
  I18NString getNodeName() const;

  /// One of the constants above; 0 for a null handle.
  unsigned short getNodeType() const noexcept;

  /// The value of a text, CDATA section, comment, processing instruction or attribute; empty for any other node.
  I18NString getNodeValue() const;

  /// The node that this one is a child of; null for a document, for what stands alone and, as the W3C has it, for an
  /// attribute.
  TRNIDOM_Node getParentNode() const noexcept;

  /// The first child, or null. The children of an attribute are texts, which together are its value.
  /// @throws std::bad_alloc of an attribute alone, whose text is made when it is asked for.
  TRNIDOM_Node getFirstChild() const;

  /// The last child, or null.
  /// @throws std::bad_alloc as `getFirstChild`.
  TRNIDOM_Node getLastChild() const;

  /// The child of the same parent just before this one, whatever its kind; null when there is none.
  TRNIDOM_Node getPreviousSibling() const noexcept;

  /// The child of the same parent just after this one, whatever its kind; null when there is none.
  TRNIDOM_Node getNextSibling() const noexcept;

  /// The children, live.
  TRNIDOM_NodeList getChildNodes() const;

  /// Whether it has a child of any kind.
  bool hasChildNodes() const noexcept;

  /// The attributes of an element; an empty map for any other node.
  TRNIDOM_NamedNodeMap getAttributes() const;

  /// The document this node belongs to; null for a document, as the W3C has it.
  TRNIDOM_Document getOwnerDocument() const noexcept;

  /// Replaces the value of a text, CDATA section, comment, processing instruction or attribute. Does nothing on a kind
  /// of node that has no value.
  /// @throws TRNIDOM_DOMException `INVALID_CHARACTER_ERR` for U+0000, which no DOM can hold, `INVALID_STATE_ERR` on a
  ///         null handle.
  void setNodeValue(const I18NString& value);

  /// Appends the node, moving it from where it stood, and returns it.
  /// @throws TRNIDOM_DOMException `INVALID_STATE_ERR` on a null handle; `HIERARCHY_REQUEST_ERR` for a null child, an
  ///         ancestor, and what this kind of node cannot hold; `WRONG_DOCUMENT_ERR` for a child of another document.
  TRNIDOM_Node appendChild(const TRNIDOM_Node& newChild);

  /// Inserts before a child of this node; a null `refChild` appends. Returns the inserted node.
  /// @throws TRNIDOM_DOMException as `appendChild`, and `NOT_FOUND_ERR` when `refChild` is no child of this node.
  TRNIDOM_Node insertBefore(const TRNIDOM_Node& newChild, const TRNIDOM_Node& refChild);

  /// Puts the node in the place of a child of this one. Returns the node that was replaced, which stands alone then.
  /// @throws TRNIDOM_DOMException as `appendChild`, and `NOT_FOUND_ERR` when `oldChild` is no child of this node.
  TRNIDOM_Node replaceChild(const TRNIDOM_Node& newChild, const TRNIDOM_Node& oldChild);

  /// Takes a child out of the tree and returns it; it stays in the document, alone.
  /// @throws TRNIDOM_DOMException `NOT_FOUND_ERR` when `oldChild` is no child of this node; `INVALID_STATE_ERR` on a
  ///         null handle.
  TRNIDOM_Node removeChild(const TRNIDOM_Node& oldChild);

  /// A copy in the same document, without a parent; attributes always go along, children only when `deep`. The copy of
  /// a document is a document of its own.
  TRNIDOM_Node cloneNode(bool deep) const;

 private:
  friend struct trnidom_detail::Access;

  TRNIDOM_Node(trnidom_detail::Node* node, TRNIDOM_HandleCount* document) noexcept
      : m_node(node), m_document(node != nullptr ? document : nullptr) {
    if (m_document != nullptr) m_document->add();
  }

  void swap(TRNIDOM_Node& other) noexcept {
    std::swap(m_node, other.m_node);
    std::swap(m_document, other.m_document);
  }

  trnidom_detail::Node* m_node = nullptr;
  TRNIDOM_HandleCount* m_document = nullptr;
};

#endif
