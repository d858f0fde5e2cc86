#include "TestSupport.h"

#include <trn/TRNAssertError.h>
#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

namespace dxmd_test {

namespace {

std::string oneElementPerLine(std::string xml) {
  for (std::size_t at = 0; (at = xml.find("><", at)) != std::string::npos;) xml.insert(++at, "\n");
  return xml;
}

}  // namespace

TRNIDOM_Document newDocument() {
  return TRNIDOM_DOMImplementation::getInstance().createDocument("", "requestDoc", TRNIDOM_DocumentType());
}

TRNIDOM_Element parsed(const std::string& xml) {
  return TRNIDOM_Parser::parseString(xml).getDocumentElement();
}

std::pair<TRNIDOM_Element, TRNIDOM_Element> nestedDeep(const I18NString& elementName, const I18NString& name) {
  TRNIDOM_Document document = newDocument();
  TRNIDOM_Element root = document.createElement("r");
  TRNIDOM_Element innermost = root;
  for (int depth = 0; depth < 100'000; ++depth) {
    innermost = innermost.appendChild(document.createElement(elementName));
    if (!name.empty()) innermost.setAttribute("name", name);
  }
  return {root, innermost};
}

std::string utf16(const std::u16string& text, bool bigEndian) {
  std::string bytes;
  for (const char16_t unit : text) {
    const char low = static_cast<char>(unit & 0xFF);
    const char high = static_cast<char>(unit >> 8);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
  }
  return bytes;
}

std::string xmlOf(const TRNIDOM_Node& node) {
  return TRNIDOM_Writer::toString(node);
}

TRNIDOM_Element madeElement(const ActionHandlerBase& helper) {
  TRNIDOM_Element element;
  helper.Make(element);
  return element;
}

std::string made(const ActionHandlerBase& helper) {
  const TRNIDOM_Element element = madeElement(helper);
  const TRNIDOM_Element again = madeElement(helper);
  EXPECT_NE(element.getOwnerDocument(), again.getOwnerDocument());
  EXPECT_EQ(xmlOf(element), xmlOf(again));
  return xmlOf(element);
}

void take(ActionHandlerBase& helper, TRNIDOM_Element element) {
  helper.Take(element);
}

void take(ActionHandlerBase& helper, const std::string& xml) {
  take(helper, parsed(xml));
}

std::string inEnvelope(const std::string& command, const std::string& commandID, const std::string& requestID) {
  return R"(<command xmlns="urn:dxmd:query-service:api:1" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">)" +
         command + "<commandID value=\"" + commandID + "\"/><requestID value=\"" + requestID + "\"/></command>";
}

std::string inDXEnvelope(const std::string& command) {
  return inEnvelope("<dxCommand><source><model>m</model></source>" + command + "</dxCommand>");
}

void expectXml(const std::string& expected, const std::string& actual) {
  EXPECT_EQ(oneElementPerLine(expected), oneElementPerLine(actual));
}

void expectXml(const std::string& expected, const TRNIDOM_Node& actual) {
  expectXml(expected, xmlOf(actual));
}

void expectAssert(const std::string& text, const std::string& file, const std::function<void()>& action) {
  try {
    action();
    ADD_FAILURE() << "no assertion failed; expected " << text;
  } catch (const TRNAssertError& error) {
    EXPECT_EQ(text, error.getMessage().toUtf8());
    EXPECT_EQ(file, error.getLocation().getFile());
    EXPECT_EQ(0, error.getCode());
  }
}

}  // namespace dxmd_test
