#ifndef TRNIDOM_INDEX_ATTRIBUTEINDEXES_H
#define TRNIDOM_INDEX_ATTRIBUTEINDEXES_H

#include <map>
#include <unordered_map>

#include "store/Node.h"
#include "text/Text.h"

namespace trnidom_detail {

/// Finds attributes of elements that have many. The first ones are looked at one by one; an element with more has an
/// index, made on first use, which `Document` tells of every attribute that comes or goes.
class AttributeIndexes {
 public:
  /// So many attributes are looked at one by one before an index pays.
  static constexpr int kFewAttributes = 16;

  /// Where an attribute is, or would be.
  struct Place {
    Attribute* found;   ///< or null
    Attribute* before;  ///< the last one whose name precedes, or null
  };

  AttributeIndexes() = default;
  AttributeIndexes(const AttributeIndexes&) = delete;
  AttributeIndexes& operator=(const AttributeIndexes&) = delete;

  /// Looks at the first attributes. False when there are more and the place is not among the first.
  static bool placeAmongFirst(const Element* element, Text name, Place& place) noexcept;

  /// Looks the place up in the element's index.
  /// @throws std::bad_alloc
  Place place(Element* element, Text name);

  /// To be told before an attribute comes, which then may not fail to come.
  /// @throws std::bad_alloc
  void adding(const Element* element, Attribute* attribute) {
    if (element->has(Node::kManyAttributes))
      m_indexes.find(element)->second.emplace(attribute->name->text(), attribute);
  }

  /// To be told before an attribute goes.

  void removing(const Element* element, const Attribute* attribute) noexcept {
    if (element->has(Node::kManyAttributes)) m_indexes.find(element)->second.erase(attribute->name->text());
  }

 private:
  using Index = std::map<Text, Attribute*>;

  std::unordered_map<const Element*, Index> m_indexes;
};

}  // namespace trnidom_detail

#endif
