#ifndef TRNIDOM_TRNIDOM_NODELIST_H
#define TRNIDOM_TRNIDOM_NODELIST_H

#include <cstddef>
#include <cstdint>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_IndexIterator.h>
#include <trnidom/TRNIDOM_Node.h>

namespace trnidom_detail {
struct Name;
}

/// A live list of nodes, in document order.
///
/// The list follows every change of the tree. It knows where it stands: `item` goes on from there, forward or backward,
/// so that a whole loop costs time linear in the tree below its root, also when the loop sets values or attributes, or
/// appends to a node whose children the list holds. A list keeps its document alive. Iterating while changing the
/// structure of the tree visits what stands at the next index.
///
/// Threads: asking a list moves it on, so that one list is used by one thread at a time.
class TRNIDOM_API TRNIDOM_NodeList {
 public:
  using iterator = TRNIDOM_IndexIterator<TRNIDOM_NodeList>;  ///< what `begin` gives
  using const_iterator = iterator;                           ///< the same: no node is changed through one

  /// The empty list.
  TRNIDOM_NodeList() = default;

  /// The number of nodes, counted again when the tree has changed.
  std::size_t getLength() const;

  /// The node at that index; null past the end.
  TRNIDOM_Node item(std::size_t index) const;

  /// For a range-based loop; valid as long as the list.
  iterator begin() const;

  /// The end, wherever that is by the time it is compared.
  iterator end() const;

 private:
  friend struct trnidom_detail::Access;
  friend iterator;

  enum Kind : unsigned char { kChildren, kElementsByName, kAllElements };

  TRNIDOM_NodeList(const TRNIDOM_Node& root, Kind kind, const I18NString& name);

  bool isAtEnd(std::size_t index) const;
  trnidom_detail::Node* at(std::size_t index) const;
  void start() const;
  trnidom_detail::Node* next(trnidom_detail::Node* node) const noexcept;
  trnidom_detail::Node* previous(trnidom_detail::Node* node) const noexcept;
  bool isWanted(const trnidom_detail::Node* node) const noexcept;

  TRNIDOM_Node m_root;
  I18NString m_name;
  Kind m_kind = kChildren;

  // Where the list stands: a node and its index, as of a version of the document.
  mutable trnidom_detail::Node* m_node = nullptr;
  mutable std::size_t m_index = 0;
  mutable const trnidom_detail::Name* m_wanted = nullptr;
  mutable std::uint64_t m_nodeVersion = kNoVersion;
  mutable std::size_t m_length = 0;
  mutable std::uint64_t m_lengthVersion = kNoVersion;

  static constexpr std::uint64_t kNoVersion = static_cast<std::uint64_t>(-1);
};

#endif
