#include "FailingNew.h"

#include <functional>
#include <vector>

#include "TestSupport.h"

#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>

using namespace dxmd_test;

namespace {

const char* const kLong = "a text that is too long to be kept inside of the object that stands for it";

}  // namespace

TEST(OutOfMemory, Building) {
  const I18NString text(kLong);
  EXPECT_LT(0U, withEachAllocationFailing([&] {
              TRNIDOM_Document document = newDocument();
              TRNIDOM_Element root = document.appendChild(document.createElement("root"));
              for (int i = 0; i < 100; ++i) {
                TRNIDOM_Element child = TRNIDOM_Helper::appendElement(root, "child");
                child.setAttribute("long", text);
                child.setAttribute("long", text + text);
                TRNIDOM_Helper::appendText(child, text);
                child.getFirstChild().setNodeValue(text + text);
                child.appendChild(document.createComment(text));
              }
              root.replaceChild(root.cloneNode(true), root.getFirstChild());
            }));
}

TEST(OutOfMemory, Parsing) {
  std::string xml = "<?xml version='1.0' encoding='UTF-8'?><a x='1'>";
  for (int i = 0; i < 20; ++i)
    xml += "<b" + std::to_string(i) + " y='" + kLong + "'>text<![CDATA[data]]><!--c--><?p i?></b" + std::to_string(i) +
           ">";
  xml += "</a>";
  const std::string latin = "<?xml version='1.0' encoding='windows-1252'?><a>\xE4</a>";
  EXPECT_LT(0U, withEachAllocationFailing([&] { TRNIDOM_Parser::parseString(xml); }));
  EXPECT_LT(0U, withEachAllocationFailing([&] { TRNIDOM_Parser::parseString(latin); }));
}

TEST(OutOfMemory, RefusingToParse) {
  for (const char* xml : {"<a><b></a>", "<!DOCTYPE a><a/>", "", "<a>&b;</a>"})
    EXPECT_LT(0U, withEachAllocationFailing([&] {
                try {
                  TRNIDOM_Parser::parseString(xml);
                } catch (const TRNIDOM_ParseError&) {
                }
              }))
        << xml;
}

TEST(OutOfMemory, Copying) {
  std::string xml = "<a x='1'><!--c--><![CDATA[d]]>";
  for (int i = 0; i < 2000; ++i) xml += "<b" + std::to_string(i) + " y='2'>" + kLong + "</b" + std::to_string(i) + ">";
  const TRNIDOM_Element source = parsed(xml + "</a>");
  EXPECT_LT(0U, withEachAllocationFailing([&] {
              TRNIDOM_Document document = newDocument();
              document.appendChild(document.importNode(source, true));
            }));
}

TEST(OutOfMemory, ReadingAndWriting) {
  const TRNIDOM_Element root = parsed("<a x='" + std::string(kLong) + "'><b>text<![CDATA[data]]></b><b/></a>");
  const std::string before = xmlOf(root);
  EXPECT_LT(0U, withEachAllocationFailing([&] {
              const I18NString value = root.getAttribute("x");
              for (TRNIDOM_Element b : root.getElementsByTagName("b")) TRNIDOM_Helper::getElementText(b);
              xmlOf(root);
            }));
  EXPECT_EQ(before, xmlOf(root));
}

TEST(OutOfMemory, FindingOrCreatingAmongMany) {
  EXPECT_LT(
      0U, withEachAllocationFailing([&] {
        TRNIDOM_Element root = newDocument().getDocumentElement();
        for (int i = 0; i < 80; ++i) {
          const I18NString key(std::to_string(i).c_str());
          TRNIDOM_Helper::findOrCreateElementWithText(root, "text", key);
          TRNIDOM_Helper::findOrCreateElementWithAttribute(root, "attribute", "key", key).setAttribute("key", "x");
        }
      }));
}

// A change that memory was lacking for has not happened, not even by half.
TEST(OutOfMemory, TreesStayAsTheyWere) {
  TRNIDOM_Element root = parsed("<a x='short'><b>short</b></a>");
  const I18NString text(std::string(1000000, 'x').c_str());
  const std::string before = xmlOf(root);
  for (const auto& change : std::vector<std::function<void()>>{
           [&] { root.setAttribute("x", text); }, [&] { root.setAttribute("new", text); },
           [&] { root.getFirstChild().getFirstChild().setNodeValue(text); },
           [&] { TRNIDOM_Helper::appendText(root, text); },
           [&] { TRNIDOM_Helper::appendElement(root, "b", "x", text); },
           [&] { TRNIDOM_Helper::findOrCreateElementWithText(root, "b", text); },
           [&] { TRNIDOM_Helper::findOrCreateElementWithAttribute(root, "b", "x", text); }}) {
    EXPECT_TRUE(failsWithoutMemory(change));
    EXPECT_TRUE(before == xmlOf(root));
  }
}
