#include "index/AttributeIndexes.h"

#include <iterator>
#include <utility>

namespace trnidom_detail {

bool AttributeIndexes::placeAmongFirst(const Element* element, Text name, Place& place) noexcept {
  place = {nullptr, nullptr};
  int seen = 0;
  for (Attribute* at = element->firstAttribute; at != nullptr; at = at->following()) {
    if (seen++ == kFewAttributes) return false;
    const int order = at->name->text().compare(name);
    if (order == 0) place.found = at;
    if (order >= 0) return true;
    place.before = at;
  }
  return true;
}

AttributeIndexes::Place AttributeIndexes::place(Element* element, Text name) {
  auto found = m_indexes.find(element);
  if (found == m_indexes.end()) {
    Index made;
    for (Attribute* at = element->firstAttribute; at != nullptr; at = at->following())
      made.emplace_hint(made.end(), at->name->text(), at);
    found = m_indexes.emplace(element, std::move(made)).first;
    element->flags |= Node::kManyAttributes;
  }
  const Index& index = found->second;
  const auto at = index.lower_bound(name);
  const bool isThere = at != index.end() && at->first == name;
  return {isThere ? at->second : nullptr, at != index.begin() ? std::prev(at)->second : nullptr};
}

}  // namespace trnidom_detail
