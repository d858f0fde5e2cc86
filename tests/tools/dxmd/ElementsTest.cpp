#include <tools/dxmd/xml/Elements.h>

#include <gtest/gtest.h>

#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

std::string refusalAt(const TRNIDOM_Node& node) {
  try {
    refuse(node, "no");
  } catch (const XmlError& error) {
    return error.what();
  }
}

}  // namespace

TEST(Elements, RefusalCountsElementsOfTheSameName) {
  TRNIDOM_Element root = parsed("<a>x<b/><c/><b><d/></b></a>");
  EXPECT_EQ("/a: no", refusalAt(root));
  EXPECT_EQ("/a/b[2]/d: no", refusalAt(requiredChild(nextSibling(requiredChild(root, "c")), "d")));
}

TEST(Elements, RefusalOfADeepPlaceShowsBothEndsOfItsPath) {
  TRNIDOM_Element deepest = newElement("root");
  for (int level = 2; level <= 20; ++level) deepest = appendElement(deepest, "a");
  const std::string tenth = "/a/a/a/a/a/a/a/a/a/a";
  EXPECT_EQ("/root/a/a/a/a/a/a/a/a/a" + tenth + ": no", refusalAt(deepest));
  for (int level = 21; level <= 100000; ++level) deepest = appendElement(deepest, "a");
  EXPECT_EQ("/root/a/a/a/a/a/a/a/a/a/..." + tenth + ": no", refusalAt(deepest));
}
