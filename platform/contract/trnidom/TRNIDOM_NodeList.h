#ifndef TRNIDOM_TRNIDOM_NODELIST_H
#define TRNIDOM_TRNIDOM_NODELIST_H

#include <cstddef>

#include <trnidom/TRNIDOM_Node.h>

/// A list of nodes in document order, live as the W3C has it. It keeps its document alive.
class TRNIDOM_NodeList {
 public:
  /// The empty list.
  TRNIDOM_NodeList();
  TRNIDOM_NodeList(const TRNIDOM_NodeList& other);
  TRNIDOM_NodeList& operator=(const TRNIDOM_NodeList& other);
  ~TRNIDOM_NodeList();

  std::size_t getLength() const;

  /// The node at that index; null past the end. Asking for the indices in ascending order should cost time linear in
  /// the tree below the list's root, also when the values of nodes and attributes are changed meanwhile.
  TRNIDOM_Node item(std::size_t index) const;
};

#endif
