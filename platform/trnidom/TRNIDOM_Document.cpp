#include <trnidom/TRNIDOM_Document.h>

#include <trnidom/TRNIDOM_DOMException.h>

#include "store/Document.h"
#include "store/Refusal.h"

using namespace trnidom_detail;

namespace {

/// The document when the handle stands on it, or null.
Document* documentOf(const TRNIDOM_Node& handle) noexcept {
  const Node* node = Access::node(handle);
  return node != nullptr && node->type == trnidom_detail::Node::kDocument ? Access::document(handle) : nullptr;
}

Document* requireDocument(const TRNIDOM_Node& handle) {
  Document* document = documentOf(handle);
  if (document == nullptr)
    throw Refusal{handle.isNull() ? TRNIDOM_DOMException::INVALID_STATE_ERR : TRNIDOM_DOMException::NOT_SUPPORTED_ERR,
                  "there is no document"};
  return document;
}

TRNIDOM_Node newCharacterData(const char* operation, const TRNIDOM_Document& handle, Node::Type type,
                              const I18NString& data) {
  return attempt(operation, handle,
                 [&] { return Access::handle(requireDocument(handle)->newCharacterData(type, textOf(data)), handle); });
}

}  // namespace

TRNIDOM_Element TRNIDOM_Document::createElement(const I18NString& tagName) {
  return attempt("createElement", *this,
                 [&] { return Access::handle(requireDocument(*this)->newElement(textOf(tagName)), *this); });
}

TRNIDOM_Node TRNIDOM_Document::createTextNode(const I18NString& data) {
  return newCharacterData("createTextNode", *this, trnidom_detail::Node::kText, data);
}

TRNIDOM_Node TRNIDOM_Document::createComment(const I18NString& data) {
  return newCharacterData("createComment", *this, trnidom_detail::Node::kComment, data);
}

TRNIDOM_Node TRNIDOM_Document::createCDATASection(const I18NString& data) {
  return newCharacterData("createCDATASection", *this, trnidom_detail::Node::kCdata, data);
}

TRNIDOM_Node TRNIDOM_Document::importNode(const TRNIDOM_Node& node, bool deep) {
  if (node.isNull()) return {};
  return attempt("importNode", *this, [&] {
    Node* copy = requireDocument(*this)->copy(Access::node(node), deep);
    if (copy == nullptr)
      throw Refusal{TRNIDOM_DOMException::NOT_SUPPORTED_ERR, describe(Access::node(node)) + " cannot be imported"};
    return Access::handle(copy, *this);
  });
}

TRNIDOM_Element TRNIDOM_Document::getDocumentElement() const noexcept {
  const Document* document = documentOf(*this);
  return document != nullptr ? Access::handle(document->documentElement(), *this) : TRNIDOM_Node();
}

TRNIDOM_NodeList TRNIDOM_Document::getElementsByTagName(const I18NString& name) const {
  return documentOf(*this) != nullptr ? Access::descendantList(*this, name) : TRNIDOM_NodeList();
}
