#ifndef TRNIDOM_TRNIDOM_NODE_H
#define TRNIDOM_TRNIDOM_NODE_H

#include <trn/I18NString.h>

class TRNIDOM_Document;
class TRNIDOM_NamedNodeMap;
class TRNIDOM_NodeList;

/// A handle to a node of a document: a value whose copies refer to the same node. A handle keeps its whole document
/// alive. Copying one is cheap and does not throw; a moved-from one may be left as it was or null.
///
/// Reading is total: asked of a null handle, every question is answered by null, empty, false or 0. Reading never
/// changes the document. Changing follows the W3C's DOM Level 2 Core; what cannot be changed, a null handle included,
/// throws the wrapper's own exception, which the helpers let pass to their caller. No operation recurses over the tree,
/// whose depth and size are the sender's choice.
///
/// Threads: a document is used by one thread at a time, different documents by different threads at once.
class TRNIDOM_Node {
 public:
  // The W3C's node types, of which the helpers tell these two from the rest.
  static constexpr unsigned short ELEMENT_NODE = 1;  ///< an element
  static constexpr unsigned short TEXT_NODE = 3;     ///< a text, but no CDATA section

  /// The null handle.
  TRNIDOM_Node();

  /// One more handle to the same node.
  TRNIDOM_Node(const TRNIDOM_Node& other);

  /// Refers to the other's node instead.
  TRNIDOM_Node& operator=(const TRNIDOM_Node& other);
  ~TRNIDOM_Node();

  /// Whether the handle refers to no node.
  bool isNull() const;

  /// The name of an element or attribute with its prefix; of any other node what the W3C says, as "#text".
  I18NString getNodeName() const;

  /// One of the W3C's constants; 0 for a null handle.
  unsigned short getNodeType() const;

  /// The value of a text, CDATA section, comment, processing instruction or attribute; empty for any other node.
  I18NString getNodeValue() const;

  /// The node that this one is a child of, or null.
  TRNIDOM_Node getParentNode() const;

  /// The first child, of whatever kind, or null.
  TRNIDOM_Node getFirstChild() const;

  /// The last child, of whatever kind, or null.
  TRNIDOM_Node getLastChild() const;

  /// The child of the same parent just before this one, or null.
  TRNIDOM_Node getPreviousSibling() const;

  /// The child of the same parent just after this one, or null.
  TRNIDOM_Node getNextSibling() const;

  /// The children of whatever kind, live.
  TRNIDOM_NodeList getChildNodes() const;

  /// Whether it has a child of any kind.
  bool hasChildNodes() const;

  /// The attributes of an element.
  TRNIDOM_NamedNodeMap getAttributes() const;

  /// The document this node belongs to; null for a document.
  TRNIDOM_Document getOwnerDocument() const;

  /// Replaces the value of a node that has one; the helpers set that of texts.
  void setNodeValue(const I18NString& value);

  /// Appends the node, moving it from where it stood, and returns it.
  TRNIDOM_Node appendChild(const TRNIDOM_Node& newChild);

  /// Inserts before a child of this node; a null `refChild` appends. Returns the inserted node.
  TRNIDOM_Node insertBefore(const TRNIDOM_Node& newChild, const TRNIDOM_Node& refChild);

  /// Returns the node that was replaced.
  TRNIDOM_Node replaceChild(const TRNIDOM_Node& newChild, const TRNIDOM_Node& oldChild);

  /// Returns the node that was removed.
  TRNIDOM_Node removeChild(const TRNIDOM_Node& oldChild);
};

#endif
