#ifndef TRNIDOM_TREE_H
#define TRNIDOM_TREE_H

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include "NodeOps.h"

/// Work on whole trees, of any depth: none of it recurses.
namespace trnidom_detail {

/// The node after this one in document order among what is below `root`; null at the end.
inline xercesc::DOMNode* nextBelow(const xercesc::DOMNode* root, const xercesc::DOMNode* node) noexcept {
  if (xercesc::DOMNode* child = ops::firstChild(node)) return child;
  for (; node != root; node = ops::parent(node))
    if (xercesc::DOMNode* next = ops::nextSibling(node)) return next;
  return nullptr;
}

/// A copy of the node that belongs to the document and has no parent; null for a kind of node that cannot be copied.
/// @throws xercesc::OutOfMemoryException; what was copied till then is part of no tree.
xercesc::DOMNode* copyTree(const xercesc::DOMNode* source, xercesc::DOMDocument* document, bool deep);

}  // namespace trnidom_detail

#endif
