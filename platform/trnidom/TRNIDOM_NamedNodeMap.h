#ifndef TRNIDOM_TRNIDOM_NAMEDNODEMAP_H
#define TRNIDOM_TRNIDOM_NAMEDNODEMAP_H

#include <cstddef>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_IndexIterator.h>
#include <trnidom/TRNIDOM_Node.h>

/// The attributes of an element, live.
class TRNIDOM_API TRNIDOM_NamedNodeMap {
 public:
  using iterator = TRNIDOM_IndexIterator<TRNIDOM_NamedNodeMap>;
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
  friend iterator;

  explicit TRNIDOM_NamedNodeMap(const TRNIDOM_Node& element) noexcept : m_element(element) {}
  bool isAtEnd(std::size_t index) const noexcept { return index >= getLength(); }

  TRNIDOM_Node m_element;
};

#endif
