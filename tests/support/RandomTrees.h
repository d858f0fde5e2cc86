#ifndef TESTS_SUPPORT_RANDOMTREES_H
#define TESTS_SUPPORT_RANDOMTREES_H

#include <functional>

#include <trnidom/TRNIDOM_Element.h>

namespace dxmd_test {

/// The seed for random input, which is printed; the environment variable DXMD_TEST_SEED sets it.
unsigned printedSeed();

/// Hands the reader small random trees, each in a document of its own: elements, texts, comments and CDATA sections in
/// any order; now and then the handle is null or stands on a node that is no element. Each call must return or throw
/// TRNAssertError or TRNIDOM_DOMException.
///
/// Trees are made of the elements of the example and their attributes and texts, most of them as they are, so that a
/// reader finds things, in places where it does not expect them. The seed is `printedSeed`. A failure shows the tree.
void feedRandomTrees(const TRNIDOM_Element& example, const std::function<void(TRNIDOM_Element&)>& reader);

}  // namespace dxmd_test

#endif
