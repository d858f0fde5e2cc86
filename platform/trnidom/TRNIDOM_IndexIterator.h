#ifndef TRNIDOM_TRNIDOM_INDEXITERATOR_H
#define TRNIDOM_TRNIDOM_INDEXITERATOR_H

#include <cstddef>
#include <iterator>

#include <trnidom/TRNIDOM_Node.h>

/// Walks a live list or map by index; valid as long as the object it came from.
///
/// Two iterators are equal at the same index, and when both are at or past the current end.
template <typename List>
class TRNIDOM_IndexIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = TRNIDOM_Node;
  using difference_type = std::ptrdiff_t;
  using pointer = const TRNIDOM_Node*;
  using reference = TRNIDOM_Node;

  TRNIDOM_Node operator*() const { return m_list->item(m_index); }
  TRNIDOM_IndexIterator& operator++() noexcept {
    ++m_index;
    return *this;
  }
  TRNIDOM_IndexIterator operator++(int) noexcept {
    TRNIDOM_IndexIterator before(*this);
    ++m_index;
    return before;
  }

  friend bool operator==(const TRNIDOM_IndexIterator& left, const TRNIDOM_IndexIterator& right) {
    return left.m_index == right.m_index || (left.isAtEnd() && right.isAtEnd());
  }
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
