#include "TestSupport.h"

#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>

using namespace dxmd_test;
using Helper = TRNIDOM_Helper;

namespace {

/// An element with more children than are looked at one by one: `<k i="0"/>` and so on.
TRNIDOM_Element manyChildren() {
  std::string xml = "<a>";
  for (int i = 0; i < 40; ++i) xml += "<k i=\"" + std::to_string(i) + "\"/>";
  return parsed(xml + "</a>");
}

TRNIDOM_Element findByI(const TRNIDOM_Node& parent, const char* value) {
  return Helper::findOrCreateElementWithAttribute(parent, "k", "i", value);
}

}  // namespace

TEST(Find, ChildrenAndDescendantsByName) {
  const TRNIDOM_Element a = parsed("<a><b><c n='1'/></b><c n='2'/><c n='3'/></a>");
  EXPECT_EQ("2", Helper::findChildElement(a, "c").getAttribute("n").toUtf8());
  EXPECT_EQ("1", Helper::findFirstElement(a, "c").getAttribute("n").toUtf8());
  EXPECT_EQ("2", Helper::findElementWithAttribute(a, "c", "n", "2").getAttribute("n").toUtf8());
  EXPECT_TRUE(Helper::findChildElement(a, "a").isNull());
  EXPECT_TRUE(Helper::findFirstElement(a, "a").isNull());
  EXPECT_TRUE(Helper::findElementWithAttribute(a, "b", "n", "1").isNull());
  EXPECT_TRUE(Helper::findElementWithAttribute(a, "b", "n", "").isNull()) << "absent is not empty";
}

TEST(Find, BelowNullIsNull) {
  const TRNIDOM_Node null;
  EXPECT_TRUE(Helper::findChildElement(null, "a").isNull() && Helper::findFirstElement(null, "a").isNull());
  EXPECT_TRUE(Helper::findOrCreateElement(null, "a").isNull());
  EXPECT_TRUE(Helper::findOrCreateElementWithText(null, "a", "b").isNull());
  EXPECT_TRUE(Helper::findOrCreateElementWithAttribute(null, "a", "b", "c").isNull());
  EXPECT_TRUE(Helper::getElementText(null).empty());
}

TEST(Find, TextOfAnElementIsItsOwn) {
  I18NString text("old");
  Helper::getElementText(parsed("<a>x<b>no</b><!--no--><![CDATA[y]]>z</a>"), text);
  EXPECT_EQ("xyz", text.toUtf8());
  Helper::getElementText(parsed("<a><b>no</b></a>"), text);
  EXPECT_EQ("", text.toUtf8());
  EXPECT_EQ("", Helper::getElementText(parsed("<a>t</a>").getFirstChild()).toUtf8());
}

TEST(FindOrCreate, CreatesOnceAndFindsThereafter) {
  TRNIDOM_Document document = newDocument();
  TRNIDOM_Element root = Helper::findOrCreateElement(document, "root");
  EXPECT_EQ(root, Helper::findOrCreateElement(document, "root"));
  for (int i = 0; i < 2; ++i) {
    Helper::findOrCreateElementWithText(root, "line", "one");
    Helper::findOrCreateElementWithText(root, "line", "two");
    Helper::findOrCreateElementWithAttribute(root, "line", "n", "3");
    Helper::findOrCreateElement(root, "end");
  }
  expectXml("<root><line>one</line><line>two</line><line n=\"3\"/><end/></root>", document);
}

TEST(FindOrCreate, EmptyTextMatchesAndMakesAnElementWithoutText) {
  TRNIDOM_Element a = parsed("<a/>");
  TRNIDOM_Element line = Helper::findOrCreateElementWithText(a, "line", "");
  EXPECT_FALSE(line.hasChildNodes());
  EXPECT_EQ(line, Helper::findOrCreateElementWithText(a, "line", ""));
  EXPECT_NE(line, Helper::findOrCreateElementWithAttribute(a, "line", "n", "")) << "absent is not empty";
}

TEST(FindOrCreate, ComparesTextAsAWhole) {
  TRNIDOM_Element a = parsed("<a><l>one<![CDATA[two]]></l><l>one</l></a>");
  EXPECT_EQ(a.getFirstChild(), Helper::findOrCreateElementWithText(a, "l", "onetwo"));
  EXPECT_EQ(a.getLastChild(), Helper::findOrCreateElementWithText(a, "l", "one"));
  Helper::findOrCreateElementWithText(a, "l", "onet");
  EXPECT_EQ(3U, a.getElementsByTagName("l").getLength());
}

TEST(FindOrCreate, FailureLeavesTheParentAlone) {
  TRNIDOM_Element a = parsed("<a/>");
  EXPECT_THROW(Helper::findOrCreateElement(a, "not a name"), TRNIDOM_DOMException);
  EXPECT_THROW(Helper::findOrCreateElementWithAttribute(a, "b", "not a name", ""), TRNIDOM_DOMException);
  EXPECT_FALSE(a.hasChildNodes());
}

TEST(FindAmongMany, TheFirstOfEqualChildrenWins) {
  TRNIDOM_Element a = manyChildren();
  TRNIDOM_Element found = findByI(a, "30");
  TRNIDOM_Element later = a.appendChild(found.cloneNode(true));
  EXPECT_EQ(found, findByI(a, "30"));
  a.removeChild(found);
  EXPECT_EQ(later, findByI(a, "30"));
  TRNIDOM_Element earlier = a.insertBefore(found, a.getFirstChild());
  EXPECT_EQ(earlier, findByI(a, "30"));
}

TEST(FindAmongMany, ChangedKeysAreFoundUnderTheNewOne) {
  TRNIDOM_Element a = manyChildren();
  TRNIDOM_Element found = findByI(a, "30");
  found.setAttribute("i", "new");
  EXPECT_EQ(found, findByI(a, "new"));
  TRNIDOM_Element made = findByI(a, "30");
  EXPECT_EQ(made, a.getLastChild());
  found.getAttributes().getNamedItem("i").setNodeValue("30");
  EXPECT_EQ(found, findByI(a, "30")) << "it stands before the one just made";
  found.removeAttribute("i");
  EXPECT_EQ(made, findByI(a, "30"));
}

TEST(FindAmongMany, ChangedTextsAreFoundUnderTheNewOne) {
  TRNIDOM_Element a = manyChildren();
  TRNIDOM_Document document = a.getOwnerDocument();
  TRNIDOM_Element one = Helper::findOrCreateElementWithText(a, "k", "one");
  EXPECT_EQ(one, Helper::findOrCreateElementWithText(a, "k", "one"));
  one.appendChild(document.createTextNode("two"));
  EXPECT_EQ(one, Helper::findOrCreateElementWithText(a, "k", "onetwo"));
  one.removeChild(one.getFirstChild());
  EXPECT_EQ(one, Helper::findOrCreateElementWithText(a, "k", "two"));
  one.getFirstChild().setNodeValue("three");
  EXPECT_EQ(one, Helper::findOrCreateElementWithText(a, "k", "three"));
  EXPECT_NE(one, Helper::findOrCreateElementWithText(a, "k", "two"));
  TRNIDOM_Node late = a.appendChild(document.createElement("k"));
  late.appendChild(document.createTextNode("late"));
  EXPECT_EQ(late, Helper::findOrCreateElementWithText(a, "k", "late"));
}

TEST(FindAmongMany, ChildrenThatMovedAwayAreNotFound) {
  TRNIDOM_Element a = manyChildren();
  TRNIDOM_Element found = findByI(a, "30");
  TRNIDOM_Element b = a.appendChild(a.getOwnerDocument().createElement("b"));
  b.appendChild(found);
  EXPECT_NE(found, findByI(a, "30"));
  EXPECT_EQ(found, findByI(b, "30"));
}

TEST(FindAmongMany, CopiesHaveChildrenOfTheirOwn) {
  TRNIDOM_Element a = manyChildren();
  TRNIDOM_Element found = findByI(a, "30");
  TRNIDOM_Element clone = a.cloneNode(true);
  TRNIDOM_Element inClone = findByI(clone, "30");
  EXPECT_NE(found, inClone);
  EXPECT_EQ(clone, inClone.getParentNode());
  inClone.setAttribute("i", "x");
  EXPECT_EQ(found, findByI(a, "30"));
}

TEST(FindAmongMany, TheFirstOfEqualChildrenIsFoundHoweverManyCameBefore) {
  TRNIDOM_Element a = manyChildren();
  TRNIDOM_Document document = a.getOwnerDocument();
  const auto append = [&] {
    TRNIDOM_Element k = document.createElement("k");
    k.setAttribute("i", "same");
    return TRNIDOM_Element(a.appendChild(k));
  };
  TRNIDOM_Element first = append();
  TRNIDOM_Element second = append();
  EXPECT_EQ(first, findByI(a, "same"));
  first.setAttribute("i", "other");
  append();
  EXPECT_EQ(second, findByI(a, "same"));
  first.setAttribute("i", "same");
  EXPECT_EQ(first, findByI(a, "same"));
}
