#include "TestSupport.h"

#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

using namespace dxmd_test;

namespace {

std::string indented(const std::string& xml, unsigned indent, bool declaration) {
  TRNIDOM_Writer::Options options;
  options.indent = indent;
  options.declaration = declaration;
  return TRNIDOM_Writer::toString(TRNIDOM_Parser::parseString(xml), options);
}

/// The error that writing the node ends in.
std::string unwritable(const TRNIDOM_Node& node) {
  try {
    return "written: " + xmlOf(node);
  } catch (const TRNIDOM_DOMException& error) {
    EXPECT_EQ(TRNIDOM_DOMException::INVALID_CHARACTER_ERR, error.code());
    return error.what();
  }
}

}  // namespace

TEST(Writer, TellsEmptyElementsFromEmptyTexts) {
  TRNIDOM_Element a = parsed("<a></a>");
  EXPECT_EQ("<a/>", xmlOf(a));
  a.appendChild(a.getOwnerDocument().createTextNode(""));
  EXPECT_EQ("<a></a>", xmlOf(a));
}

TEST(Writer, WritesAnyNodeAlone) {
  const TRNIDOM_Element a = parsed("<a x='&lt;'>&gt;<!--c & <d>--></a>");
  EXPECT_EQ("x=\"&lt;\"", xmlOf(a.getAttributes().item(0)));
  EXPECT_EQ("&gt;", xmlOf(a.getFirstChild()));
  EXPECT_EQ("<!--c & <d>-->", xmlOf(a.getLastChild()));
}

TEST(Writer, WhatItWritesReadsBackTheSame) {
  const I18NString odd("\t\n\r\n \"'<>&]]>\xC2\x85\xE2\x80\xA8\xC3\xA4\xF0\x9F\x98\x80\xF4\x8F\xBF\xBD\xEF\xBF\xBD");
  TRNIDOM_Element a = parsed("<a/>");
  a.setAttribute("x", odd);
  a.appendChild(a.getOwnerDocument().createTextNode(odd));
  const TRNIDOM_Element back = parsed(xmlOf(a));
  EXPECT_EQ(odd, back.getAttribute("x"));
  EXPECT_EQ(odd, back.getFirstChild().getNodeValue());
  EXPECT_EQ(xmlOf(a), xmlOf(back));
}

TEST(Writer, EscapesWhatParsersWouldChange) {
  TRNIDOM_Element a = parsed("<a/>");
  a.setAttribute("x", "\t\n\r<>&\"'");
  a.appendChild(a.getOwnerDocument().createTextNode("\t\n\r<>&\"']]>"));
  EXPECT_EQ("<a x=\"&#9;&#10;&#13;&lt;>&amp;&quot;'\">\t\n&#13;&lt;&gt;&amp;\"']]&gt;</a>", xmlOf(a));
}

TEST(Writer, NamesTheNodeThatXmlCannotHold) {
  TRNIDOM_Element a = parsed("<a><b/></a>");
  TRNIDOM_Document document = a.getOwnerDocument();
  TRNIDOM_Element b = a.getFirstChild();
  for (const char16_t unit : {u'\x01', u'\x1F', u'\xD800', u'\xDC00', u'\xFFFE', u'\xFFFF'}) {
    const char16_t text[] = {u's', unit, u't'};
    b.setAttribute("x", I18NString::fromUtf16(text, 3));
    EXPECT_EQ(0U, unwritable(a).find("toString on attribute \"x\" of element \"b\": it has a "));
    b.removeAttribute("x");
    b.appendChild(document.createTextNode(I18NString::fromUtf16(text, 2)));
    EXPECT_EQ(0U, unwritable(a).find("toString on text of element \"b\": it has a "));
    b.removeChild(b.getFirstChild());
  }
  EXPECT_EQ("<a><b/></a>", xmlOf(a));
}

TEST(Writer, RefusesWhatWouldEndItsOwnMarkup) {
  TRNIDOM_Element a = parsed("<a>t<?p x?></a>");
  TRNIDOM_Document document = a.getOwnerDocument();
  for (const char* comment : {"a--b", "-", "a-", "a\rb"})
    EXPECT_EQ(0U, unwritable(document.createComment(comment)).find("toString on comment: ")) << comment;
  for (const char* data : {"]]>", "a]]>b", "\r"})
    EXPECT_EQ(0U, unwritable(document.createCDATASection(data)).find("toString on CDATA section: ")) << data;
  for (const char* data : {"?>", "a?>", " a", "\r"}) {
    a.getLastChild().setNodeValue(data);
    EXPECT_EQ(0U, unwritable(a).find("toString on processing instruction \"p\" of element \"a\": ")) << data;
  }
}

TEST(Writer, IndentsButNeverInsideMixedContent) {
  EXPECT_EQ("<a>\n  <b>\n    <c/>\n  </b>\n  <d>text<e><f/></e></d>\n  <!--g-->\n</a>",
            indented("<a><b><c/></b><d>text<e><f/></e></d><!--g--></a>", 2, false));
  EXPECT_EQ("<a> <b><c/></b></a>", indented("<a> <b><c/></b></a>", 4, false));
}

TEST(Writer, BeginsWithTheDeclarationWhenAsked) {
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?><a/>", indented("<a/>", 0, true));
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!--b-->\n<a/>", indented("<!--b--><a/>", 2, true));
}
