#ifndef TRNIDOM_TRNIDOM_NAMEDNODEMAP_H
#define TRNIDOM_TRNIDOM_NAMEDNODEMAP_H

#include <cstddef>
#include <cstdint>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_IndexIterator.h>
#include <trnidom/TRNIDOM_Node.h>

/// The attributes of an element, live, in the order of their names by UTF-16 code unit.
///
/// The map knows where it stands, so that a whole loop costs time linear in the number of attributes.
///
/// Threads: asking for an attribute by index moves the map on, so that one map is used by one thread at a time.
class TRNIDOM_API TRNIDOM_NamedNodeMap {
 public:
  using iterator = TRNIDOM_IndexIterator<TRNIDOM_NamedNodeMap>;  ///< what `begin` gives
  using const_iterator = iterator;                               ///< the same: no node is changed through one

  /// The empty map.
  TRNIDOM_NamedNodeMap() = default;

  /// The number of attributes; 0 for a node that is no element.
  std::size_t getLength() const noexcept;

  /// The attribute at that index; null past the end.
  TRNIDOM_Node item(std::size_t index) const noexcept;

  /// The attribute of that name, or null.
  TRNIDOM_Node getNamedItem(const I18NString& name) const;

  /// For a range-based loop; valid as long as the map.
  iterator begin() const;

  /// The end, wherever that is by the time it is compared.
  iterator end() const;

 private:
  friend struct trnidom_detail::Access;
  friend iterator;

  explicit TRNIDOM_NamedNodeMap(const TRNIDOM_Node& element) : m_element(element) {}
  bool isAtEnd(std::size_t index) const noexcept { return index >= getLength(); }
  void refresh() const noexcept;

  TRNIDOM_Node m_element;

  // Where the map stands: an attribute and its index, as of a version of the document.
  mutable trnidom_detail::Node* m_node = nullptr;
  mutable std::size_t m_index = 0;
  mutable std::size_t m_length = 0;
  mutable std::uint64_t m_version = static_cast<std::uint64_t>(-1);
};

#endif
