#include <trnidom/TRNIDOM_Document.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include "Changes.h"
#include "Control.h"
#include "ListRecord.h"
#include "NodeOps.h"
#include "Tree.h"
#include "Xerces.h"

using namespace trnidom_detail;
using xercesc::DOMNode;

namespace {

/// The document's control block; null when the handle is no document.
Control* documentOf(const TRNIDOM_Node& handle) noexcept {
  Control* control = Access::control(handle);
  return control != nullptr && Access::node(handle) == control->document ? control : nullptr;
}

Control* requireDocument(const char* tried, const TRNIDOM_Node& handle) {
  Control* control = documentOf(handle);
  if (control == nullptr) {
    const DOMNode* node = Access::node(handle);
    fail(node == nullptr ? TRNIDOM_DOMException::INVALID_STATE_ERR : TRNIDOM_DOMException::NOT_SUPPORTED_ERR, tried,
         node, "there is no document");
  }
  return control;
}

/// Makes a node of that content in the document.
TRNIDOM_Node make(const char* tried, const TRNIDOM_Node& handle, const I18NString& content,
                  DOMNode* (*operation)(xercesc::DOMDocument*, Text)) {
  Control* control = requireDocument(tried, handle);
  requireNoNul(textOf(content), tried, control->document);
  return guarded(tried, control->document,
                 [&] { return Access::handle(operation(control->document, textOf(content)), control); });
}

}  // namespace

TRNIDOM_Element TRNIDOM_Document::createElement(const I18NString& tagName) {
  static constexpr const char* kTried = "createElement";
  Control* control = requireDocument(kTried, *this);
  return Access::handle(newElement(kTried, control, tagName), control);
}

TRNIDOM_Node TRNIDOM_Document::createTextNode(const I18NString& data) {
  static constexpr const char* kTried = "createTextNode";
  Control* control = requireDocument(kTried, *this);
  return Access::handle(newText(kTried, control, data), control);
}

TRNIDOM_Node TRNIDOM_Document::createComment(const I18NString& data) {
  return make("createComment", *this, data, ops::newComment);
}

TRNIDOM_Node TRNIDOM_Document::createCDATASection(const I18NString& data) {
  return make("createCDATASection", *this, data, ops::newCDATASection);
}

TRNIDOM_Node TRNIDOM_Document::importNode(const TRNIDOM_Node& node, bool deep) {
  static constexpr const char* kTried = "importNode";
  if (node.isNull()) return {};
  Control* control = requireDocument(kTried, *this);
  const DOMNode* source = Access::node(node);
  DOMNode* copy = guarded(kTried, control->document, [&] { return copyTree(source, control->document, deep); });
  if (copy == nullptr)
    fail(TRNIDOM_DOMException::NOT_SUPPORTED_ERR, kTried, control->document, describe(source) + " cannot be imported");
  return Access::handle(copy, control);
}

TRNIDOM_Element TRNIDOM_Document::getDocumentElement() const noexcept {
  Control* control = documentOf(*this);
  return control != nullptr ? Access::handle(control->document->getDocumentElement(), control) : TRNIDOM_Node();
}

TRNIDOM_NodeList TRNIDOM_Document::getElementsByTagName(const I18NString& name) const {
  return documentOf(*this) != nullptr ? descendantList(*this, name) : TRNIDOM_NodeList();
}
