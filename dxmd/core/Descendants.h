#ifndef DXMD_CORE_DESCENDANTS_H
#define DXMD_CORE_DESCENDANTS_H

#include <cstddef>
#include <initializer_list>
#include <vector>

#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/resources/Vocabulary.h>

namespace dxmd {

/// The descendant elements of some names, and which of them are below which, gathered in one walk.
///
/// For elements that nest in their own kind: a search below each of them would cost the square of their depth.
class Descendants {
 public:
  struct Found {
    TRNIDOM_Element element;
    std::size_t position;  ///< among all elements found, in document order
    std::size_t end;       ///< position behind the last element found below this one
  };

  /// Consecutive elements of one name, in document order.
  class Range {
   public:
    using Iterator = std::vector<Found>::const_iterator;

    Range(Iterator begin, Iterator end) : m_begin(begin), m_end(end) {}

    Iterator begin() const { return m_begin; }
    Iterator end() const { return m_end; }

    /// The first of them, or null.
    TRNIDOM_Element first() const { return m_begin == m_end ? TRNIDOM_Element() : m_begin->element; }

   private:
    Iterator m_begin;
    Iterator m_end;
  };

  /// Walks the tree below the root; what is no element has no descendants. The handles are kept, so that the result is
  /// to be used while the tree stays as it is.
  Descendants(const TRNIDOM_Element& root, std::initializer_list<FixedText> names);

  /// The root, as that which all others are below.
  const Found& root() const { return m_root; }

  /// Those below the ancestor, at any depth, that have the name at that index.
  Range below(const Found& ancestor, std::size_t name) const;

 private:
  Found m_root;
  std::vector<std::vector<Found>> m_found;  // by name
};

}  // namespace dxmd

#endif
