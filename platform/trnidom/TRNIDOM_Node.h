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
  static constexpr unsigned short ELEMENT_NODE = 1;
  static constexpr unsigned short ATTRIBUTE_NODE = 2;
  static constexpr unsigned short TEXT_NODE = 3;
  static constexpr unsigned short CDATA_SECTION_NODE = 4;
  static constexpr unsigned short ENTITY_REFERENCE_NODE = 5;
  static constexpr unsigned short ENTITY_NODE = 6;
  static constexpr unsigned short PROCESSING_INSTRUCTION_NODE = 7;
  static constexpr unsigned short COMMENT_NODE = 8;
  static constexpr unsigned short DOCUMENT_NODE = 9;
  static constexpr unsigned short DOCUMENT_TYPE_NODE = 10;
  static constexpr unsigned short DOCUMENT_FRAGMENT_NODE = 11;
  static constexpr unsigned short NOTATION_NODE = 12;

  /// The null handle.
  TRNIDOM_Node() noexcept = default;
  TRNIDOM_Node(const TRNIDOM_Node& other) noexcept : m_node(other.m_node), m_document(other.m_document) {
    if (m_document != nullptr) m_document->add();
  }
  TRNIDOM_Node(TRNIDOM_Node&& other) noexcept
      : m_node(std::exchange(other.m_node, nullptr)), m_document(std::exchange(other.m_document, nullptr)) {}
  TRNIDOM_Node& operator=(const TRNIDOM_Node& other) noexcept {
    TRNIDOM_Node copy(other);
    swap(copy);
    return *this;
  }
  TRNIDOM_Node& operator=(TRNIDOM_Node&& other) noexcept {
    if (this != &other) {
      if (m_document != nullptr) m_document->remove();
      m_node = std::exchange(other.m_node, nullptr);
      m_document = std::exchange(other.m_document, nullptr);
    }
    return *this;
  }
  ~TRNIDOM_Node() {
    if (m_document != nullptr) m_document->remove();
  }

  bool isNull() const noexcept { return m_node == nullptr; }

  friend bool operator==(const TRNIDOM_Node& left, const TRNIDOM_Node& right) noexcept {
    return left.m_node == right.m_node;
  }
  friend bool operator!=(const TRNIDOM_Node& left, const TRNIDOM_Node& right) noexcept {
    return left.m_node != right.m_node;
  }

  I18NString getNodeName() const;

  /// One of the constants above; 0 for a null handle.
  unsigned short getNodeType() const noexcept;

  /// The value of a text, CDATA section, comment, processing instruction or attribute; empty for any other node.
  I18NString getNodeValue() const;

  /// Null for an attribute, as W3C has it.
  TRNIDOM_Node getParentNode() const noexcept;

  /// The children of an attribute are texts, which together are its value.
  /// @throws std::bad_alloc of an attribute alone, whose text is made when it is asked for.
  TRNIDOM_Node getFirstChild() const;
  /// @throws std::bad_alloc as `getFirstChild`.
  TRNIDOM_Node getLastChild() const;
  TRNIDOM_Node getPreviousSibling() const noexcept;
  TRNIDOM_Node getNextSibling() const noexcept;

  /// The children, live.
  TRNIDOM_NodeList getChildNodes() const;
  bool hasChildNodes() const noexcept;

  /// The attributes of an element; an empty map for any other node.
  TRNIDOM_NamedNodeMap getAttributes() const;

  /// The document this node belongs to; null for a document, as W3C has it.
  TRNIDOM_Document getOwnerDocument() const noexcept;

  /// Does nothing on a kind of node that has no value.
  /// @throws TRNIDOM_DOMException `INVALID_CHARACTER_ERR` for U+0000, which no DOM can hold.
  void setNodeValue(const I18NString& value);

  /// Appends the node, moving it from where it stood, and returns it.
  TRNIDOM_Node appendChild(const TRNIDOM_Node& newChild);

  /// Inserts before a child of this node; a null `refChild` appends. Returns the inserted node.
  TRNIDOM_Node insertBefore(const TRNIDOM_Node& newChild, const TRNIDOM_Node& refChild);

  /// Returns the node that was replaced.
  TRNIDOM_Node replaceChild(const TRNIDOM_Node& newChild, const TRNIDOM_Node& oldChild);

  /// Returns the node that was removed.
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
