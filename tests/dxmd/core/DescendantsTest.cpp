#include <dxmd/core/Descendants.h>

#include <vector>

#include "RandomTrees.h"
#include "TestSupport.h"

using dxmd::Descendants;
using namespace dxmd_test;

namespace {

const I18NString kNames[] = {"a", "b", "c"};

void expectSame(const TRNIDOM_NodeList& expected, const Descendants::Range& range) {
  ASSERT_EQ(expected.getLength(), static_cast<std::size_t>(range.end() - range.begin()));
  EXPECT_EQ(expected.item(0), range.first());
  std::size_t i = 0;
  for (const Descendants::Found& found : range) EXPECT_EQ(expected.item(i++), found.element);
}

}  // namespace

TEST(Descendants, AreThoseThatASearchBelowEachElementFinds) {
  feedRandomTrees(parsed("<a><b/><c>text</c></a>"), [](TRNIDOM_Element& tree) {
    const Descendants all(tree, {kNames[0], kNames[1], kNames[2]});
    for (std::size_t name = 0; name < 3; ++name) {
      const Descendants::Range found = all.below(all.root(), name);
      expectSame(tree.getElementsByTagName(kNames[name]), found);
      for (const Descendants::Found& ancestor : found)
        for (std::size_t inner = 0; inner < 3; ++inner)
          expectSame(ancestor.element.getElementsByTagName(kNames[inner]), all.below(ancestor, inner));
    }
  });
}
