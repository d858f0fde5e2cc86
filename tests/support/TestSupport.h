#ifndef TESTS_SUPPORT_TESTSUPPORT_H
#define TESTS_SUPPORT_TESTSUPPORT_H

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>
#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Node.h>

#include <dxmd/core/ActionHandlerBase.h>

/// What keeps a test case at three to eight lines.
namespace dxmd_test {

/// The namespaces that the library began with, before the test program set its own.
struct Namespaces {
  I18NString queryService;
  I18NString serviceBus;
};
extern const Namespaces builtNamespaces;

/// A new document with a placeholder element, as helpers get it.
TRNIDOM_Document newDocument();

/// The document element of the parsed text.
TRNIDOM_Element parsed(const std::string& xml);

/// A new "r" with elements nested in each other, a hundred thousand deep, and the innermost of them.
/// @param name  the attribute "name" of each; none when empty.
std::pair<TRNIDOM_Element, TRNIDOM_Element> nestedDeep(const I18NString& elementName, const I18NString& name = "");

/// The text as bytes of UTF-16, without a byte order mark of its own.
std::string utf16(const std::u16string& text, bool bigEndian);

/// The node as compact XML.
std::string xmlOf(const TRNIDOM_Node& node);

/// The element that the helper's `Make` hands back.
TRNIDOM_Element madeElement(const ActionHandlerBase& helper);

/// What the helper's `Make` hands back, as compact XML: the same at each call, in a document of its own.
std::string made(const ActionHandlerBase& helper);

/// Has the helper take the element, or the document element of the parsed text.
void take(ActionHandlerBase& helper, TRNIDOM_Element element);
void take(ActionHandlerBase& helper, const std::string& xml);

/// A helper, made from the arguments, that took the document element of the parsed text.
template <typename Helper, typename... Args>
std::unique_ptr<Helper> taken(const std::string& xml, const Args&... args) {
  auto helper = std::make_unique<Helper>(args...);
  take(*helper, xml);
  return helper;
}

/// What a getter that fills a text in, and says whether there is one, made of the text "untouched"; "no, " comes first
/// when there is none.
template <typename Helper, typename Getter, typename... Args>
std::string filled(Helper& helper, Getter getter, const Args&... args) {
  I18NString text("untouched");
  const bool found = (helper.*getter)(args..., text);
  return (found ? "" : "no, ") + text.toUtf8();
}

/// The command in its envelope, with the identifiers that commands have by default, or others.
std::string inEnvelope(const std::string& command, const std::string& commandID = "DXCommand",
                       const std::string& requestID = "DXRequest");

/// The modelling command in its envelope, for a model that goes by "m".
std::string inDXEnvelope(const std::string& command);

/// Compares two compact XML texts; a difference is printed element by element.
void expectXml(const std::string& expected, const std::string& actual);
void expectXml(const std::string& expected, const TRNIDOM_Node& actual);

/// Runs the action, which must fail the assertion of exactly that text in that source file.
void expectAssert(const std::string& text, const std::string& file, const std::function<void()>& action);

}  // namespace dxmd_test

#endif
