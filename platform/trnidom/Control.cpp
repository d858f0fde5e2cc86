#include "Control.h"

#include <memory>

#include <xercesc/dom/DOMImplementation.hpp>

#include "Xerces.h"

namespace trnidom_detail {

void DocumentControl::release() noexcept {
  delete static_cast<Control*>(this);
}

// The document and its nodes are not deleted one by one: all of them live in the document's memory and go with it.
Control::Control() : document(xercesc::DOMImplementation::getImplementation()->createDocument(&memory)) {}

TRNIDOM_Document newDocument() {
  return guarded("createDocument", nullptr, [] {
    initializeXerces();
    auto control = std::make_unique<Control>();
    TRNIDOM_Document document = Access::handle(control->document, control.get());
    static_cast<void>(control.release());
    return document;
  });
}

}  // namespace trnidom_detail
