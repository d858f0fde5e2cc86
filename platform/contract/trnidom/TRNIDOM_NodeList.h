#ifndef TRNIDOM_TRNIDOM_NODELIST_H
#define TRNIDOM_TRNIDOM_NODELIST_H

#include <cstddef>

#include <trnidom/TRNIDOM_Node.h>

/// A list of nodes in document order, live as the W3C has it. It keeps its document alive.
class TRNIDOM_NodeList {
 public:
  /// The empty list.
  TRNIDOM_NodeList();
  /// A list of the same nodes.
  TRNIDOM_NodeList(const TRNIDOM_NodeList& other);

  /// Becomes a list of the same nodes.
  TRNIDOM_NodeList& operator=(const TRNIDOM_NodeList& other);
  ~TRNIDOM_NodeList();

  /// The number of nodes as the tree is now.
  std::size_t getLength() const;

  /// The node at that index; null past the end. Asking for the indices in ascending order should cost time linear in
  /// the tree below the list's root, also when the values of nodes and attributes are changed meanwhile.
  TRNIDOM_Node item(std::size_t index) const;
};

#endif
