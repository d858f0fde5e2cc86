#include <trnidom/TRNIDOM_DOMImplementation.h>

#include <trnidom/TRNIDOM_DOMException.h>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "Control.h"
#include "NodeOps.h"
#include "Xerces.h"

using namespace trnidom_detail;

namespace {

constexpr const char* kTried = "createDocument";

/// The namespace rules for a qualified name, which is an XML name.
void requireNamespace(Text uri, Text name, const xercesc::DOMDocument* document) {
  const auto require = [&](bool condition, const char* otherwise) {
    if (!condition) fail(TRNIDOM_DOMException::NAMESPACE_ERR, kTried, document, otherwise);
  };
  const std::size_t colon = name.find(u':');
  const Text prefix = colon == Text::npos ? Text() : name.substr(0, colon);
  const Text local = colon == Text::npos ? name : name.substr(colon + 1);
  const bool wellFormed = !local.empty() && local.find(u':') == Text::npos && colon != 0;
  require(wellFormed && xercesc::XMLChar1_0::isValidNCName(local.data(), local.size()), "a malformed qualified name");
  require(prefix.empty() || !uri.empty(), "a prefix without a namespace");
  require(prefix != u"xml" || uri == xercesc::XMLUni::fgXMLURIName, "the prefix \"xml\" in another namespace");
  require((prefix == u"xmlns" || name == u"xmlns") == (uri == xercesc::XMLUni::fgXMLNSURIName),
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
  Control* control = Access::control(made);
  const Text uri = textOf(namespaceURI);
  const Text name = textOf(qualifiedName);
  if (name.empty()) {
    if (!uri.empty())
      fail(TRNIDOM_DOMException::NAMESPACE_ERR, kTried, control->document, "a namespace without a name");
    return made;
  }
  requireName(name, kTried, control->document);
  requireNamespace(uri, name, control->document);
  guarded(kTried, control->document, [&] {
    control->placeholder = ops::newElement(control->document, name);
    ops::link(control->document, control->placeholder, nullptr);
  });
  return made;
}
