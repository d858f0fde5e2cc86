#include <trnidom/TRNIDOM_DOMImplementation.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include "parse/XmlName.h"
#include "store/Document.h"
#include "store/Refusal.h"

using namespace trnidom_detail;

namespace {

constexpr Text kXmlNamespace = u"http://www.w3.org/XML/1998/namespace";
constexpr Text kXmlnsNamespace = u"http://www.w3.org/2000/xmlns/";

/// The namespace rules for a qualified name, which is an XML name.
void requireNamespace(Text uri, Text name) {
  const auto require = [](bool condition, const char* otherwise) {
    if (!condition) throw Refusal{TRNIDOM_DOMException::NAMESPACE_ERR, otherwise};
  };
  const std::size_t colon = name.find(u':');
  const Text prefix = colon == Text::npos ? Text() : name.substr(0, colon);
  const Text local = colon == Text::npos ? name : name.substr(colon + 1);
  const bool isQualified = colon == Text::npos || (colon != 0 && local.find(u':') == Text::npos && isXmlName(local));
  require(isQualified, "a malformed qualified name");
  require(prefix.empty() || !uri.empty(), "a prefix without a namespace");
  require(prefix != u"xml" || uri == kXmlNamespace, "the prefix \"xml\" in another namespace");
  require((prefix == u"xmlns" || name == u"xmlns") == (uri == kXmlnsNamespace),
          "\"xmlns\" and its namespace go together");
}

}  // namespace

TRNIDOM_DOMImplementation TRNIDOM_DOMImplementation::getInstance() {
  return {};
}

TRNIDOM_Document TRNIDOM_DOMImplementation::createDocument(const I18NString& namespaceURI,
                                                           const I18NString& qualifiedName,
                                                           const TRNIDOM_DocumentType&) const {
  TRNIDOM_Document made = newDocument();
  const Text uri = textOf(namespaceURI);
  const Text name = textOf(qualifiedName);
  attempt("createDocument", made, [&] {
    if (!name.empty()) {
      Access::document(made)->setPlaceholder(name);
      requireNamespace(uri, name);
    } else if (!uri.empty()) {
      throw Refusal{TRNIDOM_DOMException::NAMESPACE_ERR, "a namespace without a name"};
    }
  });
  return made;
}
