#include "TestSupport.h"

#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>

using namespace dxmd_test;

namespace {

std::string namesOf(const TRNIDOM_NodeList& list) {
  std::string names;
  for (TRNIDOM_Node node : list) names += node.getNodeName().toUtf8() + " ";
  return names;
}

}  // namespace

TEST(Lists, HoldDescendantsInDocumentOrder) {
  const TRNIDOM_Element a = parsed("<a><b i='1'><b i='2'/></b>t<c><b i='3'/></c><b i='4'/></a>");
  std::string order;
  for (TRNIDOM_Element b : a.getElementsByTagName("b")) order += b.getAttribute("i").toUtf8();
  EXPECT_EQ("1234", order);
  EXPECT_EQ("b b c b b ", namesOf(a.getElementsByTagName("*")));
  EXPECT_EQ("a b b c b b ", namesOf(a.getOwnerDocument().getElementsByTagName("*")));
  EXPECT_EQ("b #text c b ", namesOf(a.getChildNodes()));
}

TEST(Lists, StayBelowTheirRoot) {
  const TRNIDOM_Element a = parsed("<a><b><x/></b><x/><x><x/></x></a>");
  EXPECT_EQ(1U, TRNIDOM_Element(a.getFirstChild()).getElementsByTagName("x").getLength());
  EXPECT_EQ(1U, TRNIDOM_Element(a.getLastChild()).getElementsByTagName("x").getLength());
  EXPECT_EQ(0U, a.getElementsByTagName("a").getLength());
}

TEST(Lists, FollowEveryChangeOfTheTree) {
  TRNIDOM_Element a = parsed("<a><b/></a>");
  TRNIDOM_Document document = a.getOwnerDocument();
  const TRNIDOM_NodeList list = a.getElementsByTagName("b");
  const TRNIDOM_NodeList children = a.getChildNodes();
  EXPECT_EQ(1U, list.getLength());
  TRNIDOM_Node c = a.insertBefore(document.createElement("c"), a.getFirstChild());
  TRNIDOM_Node inner = c.appendChild(document.createElement("b"));
  EXPECT_EQ(inner, list.item(0));
  EXPECT_EQ(2U, list.getLength());
  a.removeChild(c);
  EXPECT_EQ(1U, list.getLength());
  EXPECT_TRUE(list.item(1).isNull());
  EXPECT_EQ(1U, children.getLength());
}

TEST(Lists, FollowTheValueOfAnAttribute) {
  TRNIDOM_Element a = parsed("<a x='1'/>");
  TRNIDOM_Node x = a.getAttributes().getNamedItem("x");
  const TRNIDOM_NodeList children = x.getChildNodes();
  for (const char* value : {"9", "10"}) {
    x.appendChild(a.getOwnerDocument().createTextNode("2"));
    EXPECT_EQ(2U, children.getLength());
    if (*value == '9')
      a.setAttribute("x", value);
    else
      x.setNodeValue(value);
    EXPECT_EQ(1U, children.getLength());
    EXPECT_EQ(value, children.item(0).getNodeValue().toUtf8());
  }
}

TEST(Lists, OutliveEveryOtherHandle) {
  TRNIDOM_NodeList list = parsed("<a><b/><b/></a>").getElementsByTagName("b");
  TRNIDOM_NodeList copy;
  copy = list;
  list = TRNIDOM_NodeList();
  EXPECT_EQ(0U, list.getLength());
  EXPECT_EQ("b b ", namesOf(copy));
}

TEST(Lists, LoopsMaySetValuesAndAttributes) {
  TRNIDOM_Element a = parsed("<a><b>1</b><b>2</b></a>");
  for (TRNIDOM_Element b : a.getElementsByTagName("b")) {
    b.setAttribute("seen", b.getFirstChild().getNodeValue());
    b.getFirstChild().setNodeValue("x");
  }
  expectXml("<a><b seen=\"1\">x</b><b seen=\"2\">x</b></a>", a);
}

TEST(Lists, LoopsThatAppendVisitWhatTheyAppended) {
  TRNIDOM_Element a = parsed("<a><b/></a>");
  std::size_t visited = 0;
  for (TRNIDOM_Node b : a.getChildNodes())
    if (++visited < 5) a.appendChild(b.cloneNode(false));
  EXPECT_EQ(5U, visited);
}
