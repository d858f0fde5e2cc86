#include "TestSupport.h"

#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_Writer.h>

using namespace dxmd_test;

// A document a million elements deep overflows the stack of whatever recurses.
TEST(Depth, IsTheSendersChoice) {
  constexpr std::size_t kDepth = 1000000;
  std::string xml;
  for (std::size_t i = 0; i < kDepth; ++i) xml += "<a>";
  xml += "deep";
  for (std::size_t i = 0; i < kDepth; ++i) xml += "</a>";

  const TRNIDOM_Element root = parsed(xml);
  EXPECT_EQ(kDepth - 1, root.getElementsByTagName("a").getLength());
  EXPECT_TRUE(TRNIDOM_Helper::findFirstElement(root, "absent").isNull());
  EXPECT_TRUE(TRNIDOM_Helper::getElementText(root).empty());
  EXPECT_EQ(xml, xmlOf(root.cloneNode(true)));
  TRNIDOM_Document other = newDocument();
  other.appendChild(other.importNode(root, true));
  EXPECT_EQ(xml, xmlOf(other));
  TRNIDOM_Node bottom = root;
  for (TRNIDOM_Node below = root; !below.isNull(); below = below.getFirstChild()) bottom = below;
  bottom.getParentNode().removeChild(bottom);  // the text
  TRNIDOM_Writer::Options indented;
  indented.indent = 1;
  EXPECT_GT(250 * kDepth, TRNIDOM_Writer::toString(root, indented).size());
}

TEST(Depth, BuildsFromEitherEnd) {
  TRNIDOM_Document document = newDocument();
  TRNIDOM_Node top = document.createElement("a");
  TRNIDOM_Node bottom = top;
  for (int i = 0; i < 100000; ++i) {
    bottom = bottom.appendChild(document.createElement("a"));
    TRNIDOM_Node above = document.createElement("a");
    above.appendChild(top);
    top = above;
  }
  document.appendChild(top);
  EXPECT_EQ(200001U, document.getElementsByTagName("a").getLength());
}
