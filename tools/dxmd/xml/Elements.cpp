#include "Elements.h"

#include <algorithm>
#include <utility>

#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_Writer.h>

namespace dxmd_tool {

namespace {

bool isElementOf(const TRNIDOM_Node& node, const I18NString& name) {
  return node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE && (name.empty() || node.getNodeName() == name);
}

TRNIDOM_Element firstFrom(TRNIDOM_Node node, const I18NString& name) {
  while (!node.isNull() && !isElementOf(node, name)) node = node.getNextSibling();
  return node;
}

/// `query[2]`, or `query` where it is the only one of its name.
std::string step(const TRNIDOM_Node& node) {
  const I18NString name = node.getNodeName();
  std::size_t position = 1;
  for (TRNIDOM_Node before = node.getPreviousSibling(); !before.isNull(); before = before.getPreviousSibling())
    if (isElementOf(before, name)) ++position;
  const bool isOnly = position == 1 && nextSibling(node, name).isNull();
  return "/" + name.toUtf8() + (isOnly ? "" : "[" + std::to_string(position) + "]");
}

/// `"a" and "b"`
std::string joinedNames(const std::vector<std::string>& names) {
  std::string all;
  for (const std::string& name : names) all += (all.empty() ? "" : " and ") + inQuotes(name);
  return all;
}

}  // namespace

TRNIDOM_Element newElement(const I18NString& name) {
  return TRNIDOM_DOMImplementation::getInstance().createDocument("", name, TRNIDOM_DocumentType()).getDocumentElement();
}

TRNIDOM_Element appendElement(TRNIDOM_Element parent, const I18NString& name) {
  return parent.appendChild(parent.getOwnerDocument().createElement(name));
}

TRNIDOM_Element appendElement(TRNIDOM_Element parent, const I18NString& name, const I18NString& attrName,
                              const I18NString& attrValue) {
  TRNIDOM_Element element = appendElement(std::move(parent), name);
  element.setAttribute(attrName, attrValue);
  return element;
}

TRNIDOM_Element appendTextElement(TRNIDOM_Element parent, const I18NString& name, const I18NString& text) {
  TRNIDOM_Element element = appendElement(std::move(parent), name);
  if (!text.empty()) element.appendChild(element.getOwnerDocument().createTextNode(text));
  return element;
}

void setUnlessEmpty(TRNIDOM_Element element, const I18NString& attrName, const I18NString& attrValue) {
  if (!attrValue.empty()) element.setAttribute(attrName, attrValue);
}

TRNIDOM_Element firstChild(const TRNIDOM_Node& parent, const I18NString& name) {
  return firstFrom(parent.getFirstChild(), name);
}

TRNIDOM_Element nextSibling(const TRNIDOM_Node& node, const I18NString& name) {
  return firstFrom(node.getNextSibling(), name);
}

TRNIDOM_Element requiredChild(const TRNIDOM_Node& parent, const I18NString& name) {
  TRNIDOM_Element child = firstChild(parent, name);
  if (child.isNull()) refuse(parent, "the element " + inQuotes(name.toUtf8()) + " is missing");
  return child;
}

I18NString textOf(const TRNIDOM_Node& element) {
  return TRNIDOM_Helper::getElementText(element);
}

I18NString childText(const TRNIDOM_Node& parent, const I18NString& name) {
  return textOf(firstChild(parent, name));
}

std::vector<I18NString> nonEmptyChildTexts(const TRNIDOM_Node& parent, const I18NString& name) {
  std::vector<I18NString> texts;
  for (TRNIDOM_Element child = firstChild(parent, name); !child.isNull(); child = nextSibling(child, name)) {
    texts.push_back(textOf(child));
    if (texts.back().empty()) refuse(child, "must not be empty");
  }
  return texts;
}

std::optional<I18NString> attribute(const TRNIDOM_Element& element, const I18NString& name) {
  if (!element.hasAttribute(name)) return std::nullopt;
  return element.getAttribute(name);
}

void refuseNested(const TRNIDOM_Element& root, const I18NString& name) {
  // As long as none holds another, no two are searched that overlap.
  for (const TRNIDOM_Node outer : root.getElementsByTagName(name))
    if (const TRNIDOM_Element inner = TRNIDOM_Helper::findFirstElement(outer, name); !inner.isNull())
      refuse(inner, "it stands inside another " + inQuotes(name.toUtf8()));
}

void refuseHeldByMany(const TRNIDOM_Node& root, const std::vector<std::string>& holders,
                      const std::vector<std::string>& held) {
  // What ordinary documents list is no more than their elements; small ones may nest as they like.
  constexpr std::size_t kMost = 100000;
  constexpr std::size_t kMostForEach = 20;
  std::vector<std::size_t> open(holders.size(), 0);
  const auto openOf = [&](const TRNIDOM_Node& node) -> std::size_t* {
    if (node.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) return nullptr;
    const auto found = std::find(holders.begin(), holders.end(), node.getNodeName().toUtf8());
    return found == holders.end() ? nullptr : &open[static_cast<std::size_t>(found - holders.begin())];
  };
  std::size_t elements = 0;
  std::size_t listed = 0;
  walk(
      root,
      [&](const TRNIDOM_Node& node) {
        if (node.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) return;
        ++elements;
        if (std::find(held.begin(), held.end(), node.getNodeName().toUtf8()) != held.end()) {
          std::size_t times = 1;
          // Not larger than the bound, which keeps the product from wrapping round.
          for (const std::size_t count : open)
            if (count > 0) times = times > kMost / count ? kMost : times * count;
          listed += times;
          if (listed > kMost + kMostForEach * elements)
            refuse(node, "it belongs to each of the " + joinedNames(holders) +
                             " elements that it stands in, and they nest so deep that the result would be many times "
                             "larger than the document");
        }
        if (std::size_t* const count = openOf(node)) ++*count;
      },
      [&](const TRNIDOM_Node& node) {
        if (std::size_t* const count = openOf(node)) --*count;
      });
}

std::string xmlText(const TRNIDOM_Node& node, unsigned indent) {
  TRNIDOM_Writer::Options options;
  options.indent = indent;
  std::string xml = TRNIDOM_Writer::toString(node, options);
  if (xml.empty() || xml.back() != '\n') xml += '\n';
  return xml;
}

void walk(const TRNIDOM_Node& root, const std::function<void(TRNIDOM_Node&)>& enter,
          const std::function<void(const TRNIDOM_Node&)>& leave) {
  TRNIDOM_Node node = root.getFirstChild();
  while (!node.isNull()) {
    enter(node);
    TRNIDOM_Node next = node.getFirstChild();
    while (next.isNull() && node != root) {
      leave(node);
      next = node.getNextSibling();
      if (next.isNull()) node = node.getParentNode();
    }
    node = std::move(next);
  }
}

void refuse(const TRNIDOM_Node& at, const std::string& reason) {
  // Of a deep place the outermost and the innermost steps.
  constexpr std::size_t kMostAtEachEnd = 10;
  std::vector<TRNIDOM_Node> way;
  for (TRNIDOM_Node node = at; node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE; node = node.getParentNode())
    way.push_back(node);
  std::string path;
  for (std::size_t left = way.size(); left > 0; --left) {
    if (way.size() > 2 * kMostAtEachEnd && left == way.size() - kMostAtEachEnd) {
      path += "/...";
      left = kMostAtEachEnd;
    }
    path += step(way[left - 1]);
  }
  throw XmlError(path + ": " + reason);
}

void requireAttribute(const TRNIDOM_Element& element, const I18NString& attrName, const I18NString& value) {
  const I18NString found = element.getAttribute(attrName);
  if (found == value) return;
  refuse(element,
         inQuotes(attrName.toUtf8()) + " is " + inQuotes(found.toUtf8()) + ", not " + inQuotes(value.toUtf8()));
}

bool boolean(const TRNIDOM_Element& element, const I18NString& attrName) {
  const I18NString text = element.getAttribute(attrName);
  if (text == "true") return true;
  if (!text.empty() && text != "false")
    refuse(element, "\"" + attrName.toUtf8() + "\" is " + inQuotes(text.toUtf8()) + ", neither true nor false");
  return false;
}

}  // namespace dxmd_tool
