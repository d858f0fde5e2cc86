#ifndef TESTS_SUPPORT_GROWTH_H
#define TESTS_SUPPORT_GROWTH_H

#include <cstddef>
#include <functional>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

namespace dxmd_test {

/// As many texts, "n0" and so on.
std::vector<I18NString> numbered(std::size_t count);

/// As many texts that the hash h = h * factor + c, which Java (31), many libraries (33) and ICU (37) have, does not
/// tell apart.
std::vector<I18NString> colliding(std::size_t count, char factor);

/// How a document grows that is meant to cost its reader much.
struct Growth {
  const char* name;
  /// Grows the document at the element by about `size`.
  void (*grow)(TRNIDOM_Element place, std::size_t size);
};

/// More of what there is, equal, distinct or of colliding keys; nested in itself or deep in something unknown; unknown
/// attributes and elements; long texts, and texts of many pieces.
const std::vector<Growth>& allGrowths();

/// A copy of the example in which texts are marked that may be any: those that shapes change.
/// @param accepts  whether a document is read.
TRNIDOM_Element marked(const TRNIDOM_Element& example, const std::function<bool(TRNIDOM_Element)>& accepts);

/// The marked example, grown by the shape in one place after the other: at the first element of each name.
std::vector<TRNIDOM_Element> grown(const TRNIDOM_Element& marked, const Growth& growth, std::size_t size);

}  // namespace dxmd_test

#endif
