#ifndef TRNIDOM_TRNIDOM_NODELIST_H
#define TRNIDOM_TRNIDOM_NODELIST_H

#include <cstddef>

#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_IndexIterator.h>
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
  using iterator = TRNIDOM_IndexIterator<TRNIDOM_NodeList>;
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
  friend iterator;

  explicit TRNIDOM_NodeList(trnidom_detail::ListRecord* record) noexcept : m_record(record) {}
  bool isAtEnd(std::size_t index) const;

  trnidom_detail::ListRecord* m_record = nullptr;
};

#endif
