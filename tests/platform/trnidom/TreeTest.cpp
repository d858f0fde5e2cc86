#include <map>
#include <string>

#include <utility>

#include "TestSupport.h"

#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>

using namespace dxmd_test;

namespace {

TRNIDOM_Document emptyDocument() {
  return TRNIDOM_DOMImplementation::getInstance().createDocument("", "", TRNIDOM_DocumentType());
}

TRNIDOM_Node childAt(const TRNIDOM_Node& parent, std::size_t index) {
  return parent.getChildNodes().item(index);
}

}  // namespace

TEST(Null, ReadingIsEmptyAllAlongAChain) {
  const TRNIDOM_Element null;
  EXPECT_TRUE(null.getFirstChild().getNextSibling().getParentNode().getLastChild().getPreviousSibling().isNull());
  EXPECT_TRUE(null.getOwnerDocument().getDocumentElement().isNull());
  EXPECT_EQ(0, null.getNodeType());
  EXPECT_TRUE(null.getNodeName().empty() && null.getNodeValue().empty() && null.getTagName().empty());
  EXPECT_TRUE(null.getAttribute("a").empty());
  EXPECT_FALSE(null.hasAttribute("a") || null.hasChildNodes());
  EXPECT_EQ(0U, null.getChildNodes().getLength() + null.getAttributes().getLength());
  EXPECT_TRUE(null.getElementsByTagName("a").item(0).isNull() && null.getAttributes().getNamedItem("a").isNull());
  EXPECT_TRUE(null.cloneNode(true).isNull());
  EXPECT_EQ("", xmlOf(null));
}

TEST(Null, ElementQuestionsToOtherNodesAreEmptyToo) {
  const TRNIDOM_Element text = parsed("<a x='1'>text</a>").getFirstChild();
  EXPECT_EQ("#text", text.getNodeName().toUtf8());
  EXPECT_TRUE(text.getTagName().empty() && text.getAttribute("x").empty());
  EXPECT_FALSE(text.hasAttribute("x"));
  EXPECT_EQ(0U, text.getElementsByTagName("*").getLength() + text.getAttributes().getLength());
  EXPECT_TRUE(TRNIDOM_Document(text).getDocumentElement().isNull());
}

TEST(Handles, KeepTheWholeDocumentAlive) {
  TRNIDOM_Node text;
  {
    TRNIDOM_Document document = emptyDocument();
    text = document.appendChild(document.createElement("a")).appendChild(document.createTextNode("kept"));
  }
  EXPECT_EQ("kept", text.getParentNode().getFirstChild().getNodeValue().toUtf8());
  EXPECT_EQ("<a>kept</a>", xmlOf(text.getOwnerDocument()));
}

TEST(Handles, MapsAndCursorsKeepItAliveToo) {
  TRNIDOM_NamedNodeMap map = parsed("<a x='1' y='2'/>").getAttributes();
  TRNIDOM_Node cursor = parsed("<a><b/><c/></a>").getFirstChild();
  cursor = cursor.getNextSibling();
  EXPECT_EQ("2", map.getNamedItem("y").getNodeValue().toUtf8());
  expectXml("<a><b/><c/></a>", cursor.getParentNode());
}

TEST(Handles, EqualMeansTheSameNode) {
  const TRNIDOM_Element a = parsed("<a><b/><b/></a>");
  EXPECT_EQ(a.getFirstChild(), a.getLastChild().getPreviousSibling());
  EXPECT_NE(a.getFirstChild(), a.getLastChild());
  EXPECT_NE(a, parsed("<a><b/><b/></a>"));
  EXPECT_EQ(TRNIDOM_Node(), a.getParentNode().getParentNode());
}

TEST(Handles, SelfAssignmentAndMovesKeepTheNode) {
  TRNIDOM_Node node = parsed("<a/>");
  TRNIDOM_Node& same = node;
  node = same;
  TRNIDOM_Node moved(std::move(node));
  EXPECT_EQ("<a/>", xmlOf(moved));
  EXPECT_TRUE(node.isNull());  // NOLINT: a moved-from handle is null
}

TEST(Handles, ToAttributesSurviveTheirRemoval) {
  TRNIDOM_Element a = parsed("<a x='1'/>");
  TRNIDOM_Node attribute = a.getAttributes().getNamedItem("x");
  TRNIDOM_Node text = attribute.getFirstChild();
  a.setAttribute("x", "2");
  EXPECT_EQ("2", text.getNodeValue().toUtf8());
  a.removeAttribute("x");
  a.setAttribute("y", "3");
  EXPECT_EQ("x", attribute.getNodeName().toUtf8());
  EXPECT_EQ("2", text.getNodeValue().toUtf8());
}

TEST(Structure, NodesAreMovedFromWhereTheyStood) {
  TRNIDOM_Element a = parsed("<a><b><c/></b><d/></a>");
  TRNIDOM_Node b = a.getFirstChild();
  a.getLastChild().appendChild(b.getFirstChild());
  expectXml("<a><b/><d><c/></d></a>", a);
  a.appendChild(b);
  expectXml("<a><d><c/></d><b/></a>", a);
  a.insertBefore(b, a.getFirstChild());
  expectXml("<a><b/><d><c/></d></a>", a);
}

TEST(Structure, InsertingAndReplacing) {
  TRNIDOM_Element a = parsed("<a><b/><c/></a>");
  TRNIDOM_Document document = a.getOwnerDocument();
  TRNIDOM_Node c = childAt(a, 1);
  a.insertBefore(document.createElement("x"), c);
  a.insertBefore(document.createElement("y"), TRNIDOM_Node());
  expectXml("<a><b/><x/><c/><y/></a>", a);
  EXPECT_EQ(c, a.replaceChild(document.createTextNode("t"), c));
  EXPECT_TRUE(c.getParentNode().isNull());
  expectXml("<a><b/><x/>t<y/></a>", a);
  EXPECT_EQ("b", a.removeChild(a.getFirstChild()).getNodeName().toUtf8());
  expectXml("<a><x/>t<y/></a>", a);
}

TEST(Structure, PuttingANodeWhereItIsChangesNothing) {
  TRNIDOM_Element a = parsed("<a><b/><c/><d/></a>");
  TRNIDOM_Node c = childAt(a, 1);
  a.insertBefore(c, c);
  a.insertBefore(c, c.getNextSibling());
  a.replaceChild(c, c);
  a.appendChild(a.getLastChild());
  expectXml("<a><b/><c/><d/></a>", a);
  a.replaceChild(c, c.getNextSibling());
  expectXml("<a><b/><c/></a>", a);
  a.replaceChild(c, c.getPreviousSibling());
  expectXml("<a><c/></a>", a);
}

TEST(Structure, SiblingsAndParentsAgree) {
  const TRNIDOM_Element a = parsed("<a><b/>t<!--c--></a>");
  TRNIDOM_Node b = a.getFirstChild();
  EXPECT_TRUE(b.getPreviousSibling().isNull());
  EXPECT_EQ(TRNIDOM_Node::TEXT_NODE, b.getNextSibling().getNodeType());
  EXPECT_EQ(TRNIDOM_Node::COMMENT_NODE, a.getLastChild().getNodeType());
  EXPECT_TRUE(a.getLastChild().getNextSibling().isNull());
  EXPECT_EQ(a, a.getLastChild().getParentNode());
  EXPECT_EQ(TRNIDOM_Node::DOCUMENT_NODE, a.getParentNode().getNodeType());
  EXPECT_TRUE(a.getParentNode().getOwnerDocument().isNull());
}

TEST(Attributes, AreAddedReplacedAndRemoved) {
  TRNIDOM_Element a = parsed("<a/>");
  a.setAttribute("n", "1");
  a.setAttribute("b", "");
  a.setAttribute("n", "a longer value than before, and another one");
  expectXml("<a b=\"\" n=\"a longer value than before, and another one\"/>", a);
  EXPECT_TRUE(a.hasAttribute("b"));
  EXPECT_FALSE(a.hasAttribute(I18NString::fromUtf16(u"b\0x", 3)));
  a.removeAttribute("b");
  a.removeAttribute("absent");
  EXPECT_FALSE(a.hasAttribute("b"));
  EXPECT_TRUE(a.getAttribute("b").empty());
}

TEST(Attributes, AreSortedHoweverMany) {
  TRNIDOM_Element a = parsed("<a/>");
  std::map<std::string, std::string> expected;
  for (int i = 40; i > 0; --i) {
    const std::string name = "n" + std::to_string(i * 7 % 41);
    a.setAttribute(name.c_str(), std::to_string(i).c_str());
    expected[name] = std::to_string(i);
    if (i % 5 == 0) a.removeAttribute("n3");
  }
  expected.erase("n3");
  a.removeAttribute("n3");
  std::size_t at = 0;
  for (const auto& [name, value] : expected) {
    EXPECT_EQ(name.c_str(), a.getAttributes().item(at++).getNodeName());
    EXPECT_EQ(value.c_str(), a.getAttribute(name.c_str()));
  }
  EXPECT_EQ(at, a.getAttributes().getLength());
}

TEST(Attributes, AreNodesOfAMap) {
  TRNIDOM_Element a = parsed("<a y='2' x='1'/>");
  std::string all;
  for (TRNIDOM_Node attribute : a.getAttributes()) all += attribute.getNodeName().toUtf8() + ",";
  EXPECT_EQ("x,y,", all);
  TRNIDOM_Node x = a.getAttributes().getNamedItem("x");
  x.setNodeValue("changed");
  EXPECT_EQ("changed", a.getAttribute("x").toUtf8());
  EXPECT_TRUE(x.getParentNode().isNull());
  EXPECT_TRUE(a.getAttributes().item(2).isNull());
  x.appendChild(a.getOwnerDocument().createTextNode(" twice"));
  EXPECT_EQ("changed twice", a.getAttribute("x").toUtf8());
}

TEST(Values, AreSetOnNodesThatHaveOne) {
  TRNIDOM_Element a = parsed("<a>t<!--c--><![CDATA[d]]><?p i?></a>");
  for (TRNIDOM_Node child : a.getChildNodes()) child.setNodeValue("new");
  a.setNodeValue("ignored");
  a.getParentNode().setNodeValue("ignored");
  expectXml("<a>new<!--new--><![CDATA[new]]><?p new?></a>", a);
  EXPECT_TRUE(a.getNodeValue().empty());
}

TEST(Copies, BelongToTheirDocumentAndStandAlone) {
  TRNIDOM_Element a = parsed("<a x='1'><b>t</b><!--c--><![CDATA[d]]></a>");
  expectXml("<a x=\"1\"/>", a.cloneNode(false));
  TRNIDOM_Node clone = a.cloneNode(true);
  EXPECT_TRUE(clone.getParentNode().isNull());
  TRNIDOM_Document other = emptyDocument();
  TRNIDOM_Node imported = other.appendChild(other.importNode(a, true));
  EXPECT_EQ(other, imported.getOwnerDocument());
  a.removeChild(a.getFirstChild());
  for (const TRNIDOM_Node& copy : {clone, imported}) expectXml("<a x=\"1\"><b>t</b><!--c--><![CDATA[d]]></a>", copy);
}

TEST(Copies, KeepTheSeveralTextsOfAnAttribute) {
  TRNIDOM_Element a = parsed("<a x='1' y='3'/>");
  TRNIDOM_Node x = a.getAttributes().getNamedItem("x");
  x.appendChild(a.getOwnerDocument().createTextNode("2"));
  TRNIDOM_Node y = a.getAttributes().getNamedItem("y");
  y.removeChild(y.getFirstChild());
  TRNIDOM_Document other = emptyDocument();
  for (const TRNIDOM_Node& copy :
       {x.cloneNode(false), other.importNode(x, false), a.cloneNode(false).getAttributes().getNamedItem("x"),
        other.importNode(a, true).getAttributes().getNamedItem("x")}) {
    ASSERT_EQ(2U, copy.getChildNodes().getLength());
    EXPECT_EQ("1", childAt(copy, 0).getNodeValue().toUtf8());
    EXPECT_EQ("2", childAt(copy, 1).getNodeValue().toUtf8());
    EXPECT_EQ("12", copy.getNodeValue().toUtf8());
  }
  EXPECT_FALSE(a.cloneNode(true).getAttributes().getNamedItem("y").hasChildNodes());
  expectXml("<a x=\"12\" y=\"\"/>", a.cloneNode(true));
}

TEST(Copies, OfWholeDocumentsAreDocuments) {
  TRNIDOM_Node document = parsed("<?p i?><a><b/></a>").getParentNode();
  TRNIDOM_Node clone = document.cloneNode(true);
  EXPECT_NE(clone.getLastChild().getOwnerDocument(), document);
  expectXml("<?p i?><a><b/></a>", clone);
  EXPECT_FALSE(document.cloneNode(false).hasChildNodes());
  EXPECT_TRUE(emptyDocument().importNode(TRNIDOM_Node(), true).isNull());
}

TEST(Placeholder, GivesWayToTheFirstElementAppended) {
  TRNIDOM_Document document = newDocument();
  TRNIDOM_Element placeholder = document.getDocumentElement();
  document.appendChild(document.createElement("real"));
  EXPECT_EQ("<real/>", xmlOf(document));
  EXPECT_TRUE(placeholder.getParentNode().isNull());
  EXPECT_EQ("requestDoc", placeholder.getNodeName().toUtf8());
}

TEST(Placeholder, GivesWayWhereverTheElementGoes) {
  TRNIDOM_Document document = newDocument();
  TRNIDOM_Node placeholder = document.getDocumentElement();
  TRNIDOM_Node comment = document.insertBefore(document.createComment("c"), placeholder);
  document.insertBefore(document.createElement("real"), placeholder);
  expectXml("<!--c--><real/>", document);
  document = newDocument();
  comment = document.appendChild(document.createComment("c"));
  document.replaceChild(document.createElement("real"), comment);
  expectXml("<real/>", document);
  document = newDocument();
  document.replaceChild(document.createElement("real"), document.getDocumentElement());
  expectXml("<real/>", document);
}

TEST(Placeholder, RemainsUsableOnceItGaveWay) {
  TRNIDOM_Element placeholder;
  {
    TRNIDOM_Document document = newDocument();
    placeholder = document.getDocumentElement();
    document.appendChild(document.createElement("real"));
  }
  EXPECT_TRUE(placeholder.getNextSibling().isNull() && placeholder.getPreviousSibling().isNull());
  TRNIDOM_Document document = placeholder.getOwnerDocument();
  placeholder.setAttribute("x", "1");
  placeholder.appendChild(document.createTextNode("t"));
  document.getDocumentElement().appendChild(placeholder);
  expectXml("<real><requestDoc x=\"1\">t</requestDoc></real>", document);
}

TEST(Placeholder, LeavesAnElementBesideItUnattached) {
  TRNIDOM_Document document = newDocument();
  TRNIDOM_Node beside = document.createElement("beside");
  EXPECT_TRUE(beside.getParentNode().isNull());
  expectXml("<requestDoc/>", document);
}

TEST(Document, CanBeMadeWithoutAnElement) {
  TRNIDOM_Document document = emptyDocument();
  EXPECT_TRUE(document.getDocumentElement().isNull());
  EXPECT_EQ("#document", document.getNodeName().toUtf8());
  TRNIDOM_Node a = document.appendChild(document.createElement("a"));
  document.appendChild(document.createComment("c"));
  document.appendChild(a);
  expectXml("<!--c--><a/>", document);
  EXPECT_EQ(a, document.getDocumentElement());
  document.removeChild(a);
  EXPECT_TRUE(document.getDocumentElement().isNull());
}
