#ifndef BENCH_RAWXERCES_H
#define BENCH_RAWXERCES_H

#include <memory>
#include <string>

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>

/// Xerces-C's public interface, as its samples use it.
namespace bench::raw {

/// Initialises Xerces-C for the rest of the process.
inline void initialize() {
  static const bool done = (xercesc::XMLPlatformUtils::Initialize(), true);
  static_cast<void>(done);
}

struct Release {
  void operator()(xercesc::DOMDocument* document) const { document->release(); }
};
using Document = std::unique_ptr<xercesc::DOMDocument, Release>;

inline Document newDocument(const char16_t* root) {
  initialize();
  return Document(
      xercesc::DOMImplementationRegistry::getDOMImplementation(u"Core")->createDocument(nullptr, root, nullptr));
}

inline xercesc::DOMElement* append(xercesc::DOMNode* parent, const char16_t* name) {
  xercesc::DOMElement* element = parent->getOwnerDocument()->createElement(name);
  parent->appendChild(element);
  return element;
}

inline xercesc::DOMElement* append(xercesc::DOMNode* parent, const char16_t* name, const char16_t* attribute,
                                   const char16_t* value) {
  xercesc::DOMElement* element = append(parent, name);
  element->setAttribute(attribute, value);
  return element;
}

inline xercesc::DOMElement* appendText(xercesc::DOMNode* parent, const char16_t* name, const char16_t* text) {
  xercesc::DOMElement* element = append(parent, name);
  element->appendChild(element->getOwnerDocument()->createTextNode(text));
  return element;
}

}  // namespace bench::raw

#endif
