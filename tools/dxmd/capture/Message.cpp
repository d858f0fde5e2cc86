#include "Message.h"

#include <cstddef>
#include <utility>

#include <trnidom/TRNIDOM_NamedNodeMap.h>

#include <tools/dxmd/text/Words.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

bool isWhite(const I18NString& text) {
  const char16_t* const units = text.c_str();
  for (std::size_t i = 0; i < text.length(); ++i)
    if (units[i] != u' ' && units[i] != u'\t' && units[i] != u'\r' && units[i] != u'\n') return false;
  return true;
}

bool isRemark(const TRNIDOM_Node& node) {
  return node.getNodeType() == TRNIDOM_Node::COMMENT_NODE ||
         node.getNodeType() == TRNIDOM_Node::PROCESSING_INSTRUCTION_NODE;
}

/// Whether the element has elements, comments or processing instructions, and beside them only white space.
bool isElementContent(const TRNIDOM_Node& element) {
  bool hasMarkup = false;
  for (TRNIDOM_Node child = element.getFirstChild(); !child.isNull() && !hasMarkup; child = child.getNextSibling())
    hasMarkup = child.getNodeType() == TRNIDOM_Node::ELEMENT_NODE || isRemark(child);
  if (!hasMarkup) return false;
  for (TRNIDOM_Node child = element.getFirstChild(); !child.isNull(); child = child.getNextSibling()) {
    if (child.getNodeType() == TRNIDOM_Node::CDATA_SECTION_NODE) return false;
    if (child.getNodeType() == TRNIDOM_Node::TEXT_NODE && !isWhite(child.getNodeValue())) return false;
  }
  return true;
}

/// The next node in document order that is not below this one; null behind the root.
TRNIDOM_Node nextAfter(TRNIDOM_Node node, const TRNIDOM_Node& root) {
  for (; node != root; node = node.getParentNode())
    if (TRNIDOM_Node next = node.getNextSibling(); !next.isNull()) return next;
  return {};
}

/// The prefix of a name with its colon; empty when there is none.
std::string prefixOf(const std::string& name) {
  return name.substr(0, name.find(':') + 1);
}

/// A copy of the element alone, without the prefix.
TRNIDOM_Element shortened(const TRNIDOM_Element& element, const std::string& prefix) {
  const auto withoutIt = [&](const I18NString& name) {
    const std::string text = name.toUtf8();
    return I18NString(startsWith(text, prefix) ? text.c_str() + prefix.size() : text.c_str());
  };
  TRNIDOM_Element copy = element.getOwnerDocument().createElement(withoutIt(element.getNodeName()));
  for (const TRNIDOM_Node attribute : element.getAttributes())
    copy.setAttribute(withoutIt(attribute.getNodeName()), attribute.getNodeValue());
  return copy;
}

/// What is in the envelope's body, or the element itself when it is no envelope of a message.
TRNIDOM_Element unwrapped(const TRNIDOM_Element& root, const std::function<bool(const std::string& name)>& isMessage) {
  const auto local = [](const TRNIDOM_Element& element) { return localName(element.getNodeName().toUtf8()); };
  if (lowerCase(local(root)) != "envelope") return root;
  TRNIDOM_Element body = firstChild(root);
  while (!body.isNull() && lowerCase(local(body)) != "body") body = nextSibling(body);
  // A call may stand around the message.
  constexpr int kMostWrappers = 3;
  for (int level = 0; level < kMostWrappers && !body.isNull(); ++level, body = firstChild(body))
    for (TRNIDOM_Element child = firstChild(body); !child.isNull(); child = nextSibling(child))
      if (isMessage(local(child))) return child;
  return root;
}

}  // namespace

std::string localName(const std::string& name) {
  return name.substr(name.find(':') + 1);
}

void dropIndentation(const TRNIDOM_Element& root, bool comments) {
  TRNIDOM_Node node = root;
  while (!node.isNull()) {
    const bool isKept = node.getNodeType() != TRNIDOM_Node::ELEMENT_NODE || !isElementContent(node) ||
                        TRNIDOM_Element(node).getAttribute("xml:space") == "preserve";
    if (isKept) {
      node = nextAfter(std::move(node), root);
      continue;
    }
    for (TRNIDOM_Node child = node.getFirstChild(); !child.isNull();) {
      TRNIDOM_Node next = child.getNextSibling();
      if (child.getNodeType() == TRNIDOM_Node::TEXT_NODE || (comments && isRemark(child))) node.removeChild(child);
      child = std::move(next);
    }
    TRNIDOM_Node first = node.getFirstChild();
    node = first.isNull() ? nextAfter(std::move(node), root) : std::move(first);
  }
}

TRNIDOM_Element withoutPrefix(const TRNIDOM_Element& element) {
  const std::string prefix = prefixOf(element.getNodeName().toUtf8());
  if (prefix.empty()) return element;
  TRNIDOM_Element root = shortened(element, prefix);
  // From the top down: to append what has no children yet takes no look at all that is above.
  TRNIDOM_Node parent = root;
  walk(
      element,
      [&](const TRNIDOM_Node& node) {
        if (node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE)
          parent = parent.appendChild(shortened(node, prefix));
        else
          parent.appendChild(node.cloneNode(false));
      },
      [&](const TRNIDOM_Node& node) {
        if (node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE) parent = parent.getParentNode();
      });
  element.getParentNode().replaceChild(root, element);
  return root;
}

TRNIDOM_Element messageIn(const TRNIDOM_Document& document,
                          const std::function<bool(const std::string& name)>& isMessage) {
  TRNIDOM_Element message = withoutPrefix(unwrapped(document.getDocumentElement(), isMessage));
  dropIndentation(message, true);
  return message;
}

}  // namespace dxmd_tool
