#ifndef TRNIDOM_TRNIDOM_NODELIST_H
#define TRNIDOM_TRNIDOM_NODELIST_H

#include <cstddef>
#include <iterator>

#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_Node.h>

namespace trnidom_detail {
struct ListRecord;
}

/// A live list of nodes, in document order.
///
/// The list follows every change of the tree. It is filled as far as it was asked for, `item` is O(1) thereafter, and
/// a whole loop costs time linear in the tree below its root, also when the loop sets values or attributes. A list
/// keeps its document alive. Iterating while changing the structure of the tree visits what stands at the next index.
class TRNIDOM_API TRNIDOM_NodeList {
 public:
  class iterator;
  using const_iterator = iterator;

  /// The empty list.
  TRNIDOM_NodeList() noexcept = default;
  TRNIDOM_NodeList(const TRNIDOM_NodeList& other) noexcept;
  TRNIDOM_NodeList(TRNIDOM_NodeList&& other) noexcept;
  TRNIDOM_NodeList& operator=(TRNIDOM_NodeList other) noexcept;
  ~TRNIDOM_NodeList();

  std::size_t getLength() const;

  /// The node at that index; null past the end.
  TRNIDOM_Node item(std::size_t index) const;

  iterator begin() const;
  iterator end() const;

 private:
  friend struct trnidom_detail::Access;
  explicit TRNIDOM_NodeList(trnidom_detail::ListRecord* record) noexcept : m_record(record) {}

  trnidom_detail::ListRecord* m_record = nullptr;
};

/// Walks a node list by index; valid as long as the list it came from.
class TRNIDOM_API TRNIDOM_NodeList::iterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = TRNIDOM_Node;
  using difference_type = std::ptrdiff_t;
  using pointer = const TRNIDOM_Node*;
  using reference = TRNIDOM_Node;

  TRNIDOM_Node operator*() const { return m_list->item(m_index); }
  iterator& operator++() noexcept {
    ++m_index;
    return *this;
  }
  iterator operator++(int) noexcept {
    iterator before(*this);
    ++m_index;
    return before;
  }

  /// Two iterators are equal at the same index; an iterator past the list's current end equals the end.
  friend bool operator==(const iterator& left, const iterator& right) { return left.equals(right); }
  friend bool operator!=(const iterator& left, const iterator& right) { return !left.equals(right); }

 private:
  friend class TRNIDOM_NodeList;
  iterator(const TRNIDOM_NodeList* list, std::size_t index) noexcept : m_list(list), m_index(index) {}
  bool equals(const iterator& other) const;

  const TRNIDOM_NodeList* m_list;
  std::size_t m_index;
};

#endif
