#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "TestSupport.h"

#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>

using namespace dxmd_test;

namespace {

/// Hands out a text, so many bytes at a time.
TRNIDOM_Parser::Source piecesOf(const std::string& text, std::size_t size) {
  return [&text, size, at = std::size_t{0}](char* buffer, std::size_t room) mutable {
    const std::size_t count = std::min({size, room, text.size() - at});
    std::copy_n(text.data() + at, count, buffer);
    at += count;
    return count;
  };
}

/// What is visited, each ended by "|", and then the document that is returned.
std::string visits(const std::string& xml, const char* name, std::size_t size = 1000) {
  std::string all;
  const TRNIDOM_Document rest =
      TRNIDOM_Parser::parseEach(piecesOf(xml, size), name, [&](const TRNIDOM_Element& element) {
        EXPECT_EQ(element, element.getOwnerDocument().getDocumentElement());
        all += xmlOf(element.getOwnerDocument()) + "|";
      });
  return all + xmlOf(rest);
}

}  // namespace

TEST(ParseEach, VisitsEachElementOfThatName) {
  const std::string xml =
      "<?p i?><a><r n='1'/><b>x<r n='2'>y<![CDATA[d]]><!--c--></r>z<s/></b><p:r/><r n='3'></r></a>\n<!--end-->";
  for (const std::size_t size : {1U, 7U, 1000U})
    EXPECT_EQ(
        "<r n=\"1\"/>|<r n=\"2\">y<![CDATA[d]]><!--c--></r>|<r n=\"3\"/>|"
        "<?p i?><a><b>xz<s/></b><p:r/></a><!--end-->",
        visits(xml, "r", size));
  EXPECT_EQ("<p:r/>|<a/>", visits("<a><p:r/></a>", "p:r"));
  EXPECT_EQ("<a><b/></a>", visits("<a><b/></a>", "r"));
  EXPECT_EQ("<a/>", visits("<a/>", "not a name"));
}

TEST(ParseEach, LeavesNestedElementsOfThatNameToTheOuterOne) {
  EXPECT_EQ("<r>1<r>2<r/></r></r>|<r/>|<a/>", visits("<a><r>1<r>2<r/></r></r><r/></a>", "r"));
}

TEST(ParseEach, VisitsTheDocumentElement) {
  EXPECT_EQ("<r><r/></r>|<?p i?><!--c-->", visits("<?p i?><r><r/></r><!--c-->", "r"));
}

TEST(ParseEach, JoinsTheCharactersAroundWhatItVisits) {
  const std::string xml = "<a>\n  <r/>\n  <r/>\n<b/> t<r/>u</a>";
  std::size_t count = 0;
  const TRNIDOM_Document rest =
      TRNIDOM_Parser::parseEach(piecesOf(xml, 3), "r", [&](const TRNIDOM_Element&) { ++count; });
  EXPECT_EQ(3U, count);
  const TRNIDOM_Element a = rest.getDocumentElement();
  EXPECT_EQ(3U, a.getChildNodes().getLength());
  EXPECT_EQ("\n  \n  \n", a.getFirstChild().getNodeValue().toUtf8());
  EXPECT_EQ(" tu", a.getLastChild().getNodeValue().toUtf8());
}

TEST(ParseEach, KeepsWhatTheVisitorKeeps) {
  std::vector<TRNIDOM_Element> kept;
  const std::string xml = "<a><r n='1'>x</r><r n='2'/></a>";
  TRNIDOM_Parser::parseEach(piecesOf(xml, 5), "r", [&](const TRNIDOM_Element& element) { kept.push_back(element); });
  ASSERT_EQ(2U, kept.size());
  kept[0].setAttribute("m", "2");
  EXPECT_EQ("<r m=\"2\" n=\"1\">x</r>", xmlOf(kept[0]));
  EXPECT_NE(kept[0].getOwnerDocument(), kept[1].getOwnerDocument());
}

TEST(ParseEach, EndsWithWhatSourceOrVisitorThrow) {
  const std::string xml = "<a><r/><r/><r/></a>";
  std::size_t count = 0;
  const auto failingVisit = [&](const TRNIDOM_Element&) {
    if (++count == 2) throw std::domain_error("visit");
  };
  EXPECT_THROW(TRNIDOM_Parser::parseEach(piecesOf(xml, 1000), "r", failingVisit), std::domain_error);
  EXPECT_EQ(2U, count);
  const auto failingSource = [&](char* buffer, std::size_t size) -> std::size_t {
    if (count++ != 2) throw 7;
    return xml.copy(buffer, std::min<std::size_t>(size, 10));
  };
  EXPECT_THROW(TRNIDOM_Parser::parseEach(failingSource, "r", [](const TRNIDOM_Element&) {}), int);
}

TEST(ParseEach, SaysWhatIsWrongBehindWhatItVisited) {
  std::string xml = "<a>\n";
  for (int i = 0; i < 100000; ++i) xml += "<r/>\n";
  std::size_t count = 0;
  try {
    TRNIDOM_Parser::parseEach(piecesOf(xml + "</b>", 10000), "r", [&](const TRNIDOM_Element&) { ++count; });
    ADD_FAILURE();
  } catch (const TRNIDOM_ParseError& error) {
    EXPECT_EQ(100002U, error.getLine());
    EXPECT_EQ(3U, error.getColumn());
  }
  EXPECT_EQ(100000U, count);
}

TEST(ParseEach, ReadsEveryEncoding) {
  const std::string latin = "<?xml version='1.0' encoding='windows-1252'?><a><r>\x80</r></a>";
  EXPECT_EQ("<r>\xE2\x82\xAC</r>|<a/>", visits(latin, "r", 1));
  const std::string wide("\xFF\xFE<\0r\0/\0>\0", 10);
  EXPECT_EQ("<r/>|", visits(wide, "r", 1));
  EXPECT_EQ("<\xC3\xA4/>|<a/>", visits("<a><\xC3\xA4/></a>", "\xC3\xA4", 1));
}

TEST(ParseEach, AsksNoMoreOfASourceThatHasEnded) {
  const std::string xml = "<a/>";
  bool hasEnded = false;
  TRNIDOM_Parser::parseEach(
      [&, at = std::size_t{0}](char* buffer, std::size_t) mutable {
        EXPECT_FALSE(hasEnded);
        hasEnded = at == xml.size();
        return hasEnded ? 0 : xml.copy(buffer, 1, at++);
      },
      "r", [](const TRNIDOM_Element&) {});
  EXPECT_TRUE(hasEnded);
}
