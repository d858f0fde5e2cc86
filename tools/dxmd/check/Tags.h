#ifndef TOOLS_DXMD_CHECK_TAGS_H
#define TOOLS_DXMD_CHECK_TAGS_H

#include <cstddef>
#include <string_view>
#include <vector>

namespace dxmd_tool {

/// Where the elements of a document stand in its text. An element is known by its number in document order, from 0.
class Tags {
 public:
  /// @param text  UTF-8, which a parser accepted; must live as long.
  explicit Tags(std::string_view text);

  /// How many levels of elements there are.
  std::size_t depth() const { return m_depth; }

  /// From the start tag to the end tag, both included.
  std::string_view textOf(std::size_t element) const;

  struct Place {
    std::size_t line;    ///< from 1
    std::size_t column;  ///< of the start tag; from 1, in characters
  };
  /// Finds several places in one pass.
  /// @param elements  in ascending order.
  std::vector<Place> placesOf(const std::vector<std::size_t>& elements) const;

 private:
  struct Element {
    std::size_t begin;
    std::size_t end;
  };

  std::string_view m_text;
  std::vector<Element> m_elements;
  std::size_t m_depth = 0;
};

}  // namespace dxmd_tool

#endif
