#ifndef TRNIDOM_TRNIDOM_NAMEDNODEMAP_H
#define TRNIDOM_TRNIDOM_NAMEDNODEMAP_H

#include <cstddef>
#include <iterator>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_Node.h>

/// The attributes of an element, live.
class TRNIDOM_API TRNIDOM_NamedNodeMap {
 public:
  class iterator;
  using const_iterator = iterator;

  /// The empty map.
  TRNIDOM_NamedNodeMap() noexcept = default;

  std::size_t getLength() const noexcept;

  /// The attribute at that index; null past the end. The order is the DOM's own.
  TRNIDOM_Node item(std::size_t index) const noexcept;

  /// The attribute of that name, or null.
  TRNIDOM_Node getNamedItem(const I18NString& name) const noexcept;

  iterator begin() const;
  iterator end() const;

 private:
  friend struct trnidom_detail::Access;
  explicit TRNIDOM_NamedNodeMap(const TRNIDOM_Node& element) noexcept : m_element(element) {}

  TRNIDOM_Node m_element;
};

/// Walks a map by index; valid as long as the map it came from.
class TRNIDOM_API TRNIDOM_NamedNodeMap::iterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = TRNIDOM_Node;
  using difference_type = std::ptrdiff_t;
  using pointer = const TRNIDOM_Node*;
  using reference = TRNIDOM_Node;

  TRNIDOM_Node operator*() const { return m_map->item(m_index); }
  iterator& operator++() noexcept {
    ++m_index;
    return *this;
  }
  iterator operator++(int) noexcept {
    iterator before(*this);
    ++m_index;
    return before;
  }
  friend bool operator==(const iterator& left, const iterator& right) noexcept { return left.m_index == right.m_index; }
  friend bool operator!=(const iterator& left, const iterator& right) noexcept { return left.m_index != right.m_index; }

 private:
  friend class TRNIDOM_NamedNodeMap;
  iterator(const TRNIDOM_NamedNodeMap* map, std::size_t index) noexcept : m_map(map), m_index(index) {}

  const TRNIDOM_NamedNodeMap* m_map;
  std::size_t m_index;
};

#endif
