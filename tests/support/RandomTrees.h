#ifndef TESTS_SUPPORT_RANDOMTREES_H
#define TESTS_SUPPORT_RANDOMTREES_H

#include <functional>
#include <string>
#include <vector>

#include <trnidom/TRNIDOM_Element.h>

namespace dxmd_test {

/// The seed for random input, which is printed; the environment variable DXMD_TEST_SEED sets it.
unsigned printedSeed();

/// What random trees are made of: a reader's own names and texts, so that it finds things, in places where it does not
/// expect them.
struct TreeWords {
  std::vector<std::string> elements;
  std::vector<std::string> attributes;
  std::vector<std::string> texts;  ///< also the values of attributes; the empty text is always among them
};

/// The words of an example, as often as they stand in it.
TreeWords wordsOf(const TRNIDOM_Element& example);

/// Hands the reader small random trees, each in a document of its own: elements, texts, comments and CDATA sections in
/// any order; now and then the handle is null or stands on a node that is no element. Each call must return or throw
/// TRNAssertError or TRNIDOM_DOMException.
///
/// The seed is `printedSeed`. A failure shows the tree.
void feedRandomTrees(const TreeWords& words, const std::function<void(TRNIDOM_Element&)>& reader, int trees = 3000);

}  // namespace dxmd_test

#endif
