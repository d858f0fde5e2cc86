#ifndef TRNIDOM_TRNIDOM_NAMEDNODEMAP_H
#define TRNIDOM_TRNIDOM_NAMEDNODEMAP_H

#include <cstddef>

#include <trnidom/TRNIDOM_Node.h>

/// The attributes of an element, in no particular order. No helper asks for them today.
class TRNIDOM_NamedNodeMap {
 public:
  /// The number of attributes.
  std::size_t getLength() const;

  /// The attribute at that index; null past the end.
  TRNIDOM_Node item(std::size_t index) const;
};

#endif
