#include <functional>
#include <string>
#include <vector>

#include "TestSupport.h"

#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_ParseError.h>

using namespace dxmd_test;

namespace {

using Error = TRNIDOM_DOMException;

/// Runs the action, which must fail with that code and leave the document as it was. Gives the error's text.
std::string refused(unsigned short code, const TRNIDOM_Node& document, const std::function<void()>& action) {
  const std::string before = xmlOf(document);
  std::string what;
  try {
    action();
    ADD_FAILURE() << "nothing was thrown; expected code " << code;
  } catch (const Error& error) {
    EXPECT_EQ(code, error.code()) << error.what();
    what = error.what();
  }
  EXPECT_EQ(before, xmlOf(document));
  return what;
}

struct Errors : testing::Test {
  TRNIDOM_Element a = parsed("<a x='1'><b>t</b></a>");
  TRNIDOM_Document document = a.getOwnerDocument();
  TRNIDOM_Element b = a.getFirstChild();
  TRNIDOM_Node text = b.getFirstChild();
  TRNIDOM_Element null;
};

}  // namespace

TEST_F(Errors, ChangingThroughNullThrows) {
  TRNIDOM_Document nowhere;
  refused(Error::INVALID_STATE_ERR, document, [&] { null.appendChild(b); });
  refused(Error::INVALID_STATE_ERR, document, [&] { null.setAttribute("a", ""); });
  refused(Error::INVALID_STATE_ERR, document, [&] { null.removeAttribute("a"); });
  refused(Error::INVALID_STATE_ERR, document, [&] { null.setNodeValue(""); });
  refused(Error::INVALID_STATE_ERR, document, [&] { null.removeChild(b); });
  refused(Error::INVALID_STATE_ERR, document, [&] { nowhere.createElement("a"); });
  refused(Error::INVALID_STATE_ERR, document, [&] { nowhere.createTextNode("a"); });
  refused(Error::INVALID_STATE_ERR, document, [&] { nowhere.importNode(b, true); });
}

TEST_F(Errors, ElementAndDocumentWorkOnOtherNodesThrows) {
  refused(Error::NOT_SUPPORTED_ERR, document, [&] { TRNIDOM_Element(text).setAttribute("a", ""); });
  refused(Error::NOT_SUPPORTED_ERR, document, [&] { TRNIDOM_Element(text).removeAttribute("a"); });
  refused(Error::NOT_SUPPORTED_ERR, document, [&] { TRNIDOM_Document(a).createComment("a"); });
  refused(Error::NOT_SUPPORTED_ERR, document, [&] { document.importNode(document, true); });
}

TEST_F(Errors, TreesStayTrees) {
  refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { a.appendChild(null); });
  refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { a.appendChild(a); });
  refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { b.appendChild(a); });
  refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { text.appendChild(document.createTextNode("")); });
  refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { a.appendChild(document); });
  refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { a.appendChild(a.getAttributes().item(0)); });
  refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { document.appendChild(document.createTextNode(" ")); });
  refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { document.appendChild(document.createElement("second")); });
  refused(Error::HIERARCHY_REQUEST_ERR, document,
          [&] { a.getAttributes().item(0).appendChild(document.createElement("e")); });
}

TEST_F(Errors, PlaceholdersWithContentAreReal) {
  for (const char* filled : {"child", "attribute"}) {
    TRNIDOM_Document scratch = newDocument();
    TRNIDOM_Element element = scratch.getDocumentElement();
    if (*filled == 'c')
      element.appendChild(scratch.createTextNode("t"));
    else
      element.setAttribute("a", "");
    refused(Error::HIERARCHY_REQUEST_ERR, scratch, [&] { scratch.appendChild(scratch.createElement("second")); });
  }
}

TEST_F(Errors, NodesOfOtherDocumentsAndPlacesAreRefused) {
  TRNIDOM_Node foreign = parsed("<f/>");
  refused(Error::WRONG_DOCUMENT_ERR, document, [&] { a.appendChild(foreign); });
  refused(Error::WRONG_DOCUMENT_ERR, document, [&] { a.insertBefore(foreign, b); });
  refused(Error::WRONG_DOCUMENT_ERR, document, [&] { a.replaceChild(foreign, b); });
  refused(Error::NOT_FOUND_ERR, document, [&] { a.insertBefore(document.createElement("c"), text); });
  refused(Error::NOT_FOUND_ERR, document, [&] { a.replaceChild(document.createElement("c"), text); });
  refused(Error::NOT_FOUND_ERR, document, [&] { a.removeChild(text); });
  refused(Error::NOT_FOUND_ERR, document, [&] { a.removeChild(null); });
  refused(Error::NOT_FOUND_ERR, document, [&] { a.removeChild(foreign); });
}

TEST_F(Errors, MalformedNamesAreRefused) {
  const I18NString nul = I18NString::fromUtf16(u"a\0b", 3);
  for (const I18NString& name : {I18NString(""), I18NString("1a"), I18NString("a b"), I18NString("<a>"), nul}) {
    refused(Error::INVALID_CHARACTER_ERR, document, [&] { document.createElement(name); });
    refused(Error::INVALID_CHARACTER_ERR, document, [&] { a.setAttribute(name, ""); });
  }
}

TEST_F(Errors, TextIsNeverCutAtANul) {
  for (const std::u16string& units :
       {std::u16string(u"a\0b", 3), std::u16string(40, u'a') + u'\0', std::u16string(9, u'\0')}) {
    const I18NString nul = I18NString::fromUtf16(units.data(), units.size());
    refused(Error::INVALID_CHARACTER_ERR, document, [&] { document.createTextNode(nul); });
    refused(Error::INVALID_CHARACTER_ERR, document, [&] { text.setNodeValue(nul); });
    refused(Error::INVALID_CHARACTER_ERR, document, [&] { a.setAttribute("x", nul); });
  }
}

TEST_F(Errors, DocumentNamesMustGoWithTheirNamespace) {
  const auto create = [](const char* uri, const char* name) {
    return xmlOf(TRNIDOM_DOMImplementation::getInstance().createDocument(uri, name, TRNIDOM_DocumentType()));
  };
  EXPECT_EQ("<p:a/>", create("urn:x", "p:a"));
  for (const char* name : {"1", "a b", "<", "a\xC3\x97"})
    refused(Error::INVALID_CHARACTER_ERR, document, [&] { create("", name); });
  refused(Error::INVALID_CHARACTER_ERR, document,
          [&] { document.createElement(I18NString::fromUtf16(u"a\xD800", 2)); });
  for (const char* name : {"p:a", "xml:a", ":a", "a:", "a:b:c"})
    refused(Error::NAMESPACE_ERR, document, [&] { create("", name); });
  refused(Error::NAMESPACE_ERR, document, [&] { create("urn:x", "xml:a"); });
  refused(Error::NAMESPACE_ERR, document, [&] { create("urn:x", "xmlns"); });
  refused(Error::NAMESPACE_ERR, document, [&] { create("urn:x", ""); });
}

TEST_F(Errors, SayWhatWasTriedOnWhichNodeButNoValue) {
  EXPECT_EQ("appendChild on text of element \"b\": element \"a\" cannot be its child (HIERARCHY_REQUEST_ERR)",
            refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { text.appendChild(a); }));
  EXPECT_EQ("setAttribute on element \"a\": \"b c\" is no XML name (INVALID_CHARACTER_ERR)",
            refused(Error::INVALID_CHARACTER_ERR, document, [&] { a.setAttribute("b c", "secret"); }));
  EXPECT_EQ("createElement on a null node: there is no document (INVALID_STATE_ERR)",
            refused(Error::INVALID_STATE_ERR, document, [&] { TRNIDOM_Document().createElement("a"); }));
}

TEST_F(Errors, AreKeptByCopies) {
  std::vector<Error> kept;
  for (const char* name : {"1", "2"}) {
    try {
      document.createElement(name);
    } catch (const Error& error) {
      kept.push_back(error);
    }
  }
  ASSERT_EQ(2U, kept.size());
  kept.front() = kept.back();
  EXPECT_STREQ("createElement on document: \"2\" is no XML name (INVALID_CHARACTER_ERR)", kept.front().what());

  TRNIDOM_ParseError first(1, 2, "first");
  const TRNIDOM_ParseError second(3, 4, "second");
  const TRNIDOM_ParseError copy(second);
  first = copy;
  EXPECT_EQ(3U, first.getLine());
  EXPECT_STREQ("3:4: second", first.what());
}

TEST_F(Errors, NameTheWholeNameOrItsBeginning) {
  const std::string nul =
      refused(Error::INVALID_CHARACTER_ERR, document, [&] { a.setAttribute(I18NString::fromUtf16(u"b\0c", 3), ""); });
  EXPECT_EQ("setAttribute on element \"a\": \"b\\u{0}c\" is no XML name (INVALID_CHARACTER_ERR)", nul);
  const std::string huge(10000000, 'n');
  const std::string what =
      refused(Error::INVALID_CHARACTER_ERR, document, [&] { document.createElement((huge + " ").c_str()); });
  EXPECT_GT(1000U, what.size());
  TRNIDOM_Node element = document.createElement(huge.c_str());
  EXPECT_GT(1000U, refused(Error::HIERARCHY_REQUEST_ERR, document, [&] { element.appendChild(element); }).size());
}
