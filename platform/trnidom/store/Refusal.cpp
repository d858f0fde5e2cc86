#include "store/Refusal.h"

#include <iterator>

#include "text/Quote.h"

namespace trnidom_detail {

namespace {

const char* codeName(unsigned short code) noexcept {
  static constexpr const char* kNames[] = {
      "DOM error",          "INDEX_SIZE_ERR",           "DOMSTRING_SIZE_ERR",  "HIERARCHY_REQUEST_ERR",
      "WRONG_DOCUMENT_ERR", "INVALID_CHARACTER_ERR",    "NO_DATA_ALLOWED_ERR", "NO_MODIFICATION_ALLOWED_ERR",
      "NOT_FOUND_ERR",      "NOT_SUPPORTED_ERR",        "INUSE_ATTRIBUTE_ERR", "INVALID_STATE_ERR",
      "SYNTAX_ERR",         "INVALID_MODIFICATION_ERR", "NAMESPACE_ERR",       "INVALID_ACCESS_ERR"};
  return code < std::size(kNames) ? kNames[code] : kNames[0];
}

std::string kindOf(const Node* node) {
  switch (node->type) {
    case Node::kElement:
      return "element";
    case Node::kAttribute:
      return "attribute";
    case Node::kText:
      return "text";
    case Node::kCdata:
      return "CDATA section";
    case Node::kComment:
      return "comment";
    case Node::kInstruction:
      return "processing instruction";
    default:
      return "document";
  }
}

}  // namespace

std::string describe(const Node* node) {
  if (node == nullptr) return "a null node";
  std::string text = kindOf(node);
  if (const Name* name = nameOf(node)) text += ' ' + quotedName(name->utf8());
  const Node* parent = node->parent;
  if (!isElement(node) && parent != nullptr && isElement(parent)) text += " of " + describe(parent);
  return text;
}

void throwRefused(const Refusal& refusal, const char* operation, const Node* on) {
  throw TRNIDOM_DOMException(refusal.code, std::string(operation) + " on " + describe(on) + ": " + refusal.because +
                                               " (" + codeName(refusal.code) + ")");
}

}  // namespace trnidom_detail
