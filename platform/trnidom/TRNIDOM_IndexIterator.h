#ifndef TRNIDOM_TRNIDOM_INDEXITERATOR_H
#define TRNIDOM_TRNIDOM_INDEXITERATOR_H

#include <cstddef>
#include <iterator>

#include <trnidom/TRNIDOM_Node.h>

/// Walks a live list or map by index; valid as long as the object it came from.
///
/// Two iterators are equal at the same index, and when both are at or past the current end.
/// @tparam List  TRNIDOM_NodeList or TRNIDOM_NamedNodeMap.
///
/// Threads: an iterator asks its list, and so is used by the thread that uses the list.
template <typename List>
class TRNIDOM_IndexIterator {
 public:
  using iterator_category = std::input_iterator_tag;  ///< what it gives is made at each call
  using value_type = TRNIDOM_Node;                    ///< handles
  using difference_type = std::ptrdiff_t;             ///< required of every iterator; there is no subtraction
  using pointer = const TRNIDOM_Node*;                ///< required of every iterator; there is no `->`
  using reference = TRNIDOM_Node;                     ///< a handle, by value

  /// The node at this index as the list is now; null past the end.
  TRNIDOM_Node operator*() const { return m_list->item(m_index); }

  /// Goes on to the next index.
  TRNIDOM_IndexIterator& operator++() noexcept {
    ++m_index;
    return *this;
  }

  /// Goes on to the next index and gives the iterator as it was.
  TRNIDOM_IndexIterator operator++(int) noexcept {
    TRNIDOM_IndexIterator before(*this);
    ++m_index;
    return before;
  }

  /// Whether both are at the same index, or both at or past the current end. Only for iterators of one list.
  friend bool operator==(const TRNIDOM_IndexIterator& left, const TRNIDOM_IndexIterator& right) {
    return left.m_index == right.m_index || (left.isAtEnd() && right.isAtEnd());
  }

  /// Whether a loop between them goes on.
  friend bool operator!=(const TRNIDOM_IndexIterator& left, const TRNIDOM_IndexIterator& right) {
    return !(left == right);
  }

 private:
  friend List;

  /// The index of the end, wherever that is by the time it is compared.
  static constexpr std::size_t kEnd = static_cast<std::size_t>(-1);

  TRNIDOM_IndexIterator(const List* list, std::size_t index) noexcept : m_list(list), m_index(index) {}
  bool isAtEnd() const { return m_index == kEnd || m_list->isAtEnd(m_index); }

  const List* m_list;
  std::size_t m_index;
};

#endif
