#include "Growth.h"

#include <set>
#include <string>

#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>

namespace dxmd_test {

namespace {

// U+E000, of private use: begins a text that may be any.
const I18NString kFree("\xEE\x80\x80");

bool isFree(const I18NString& text) {
  return !text.empty() && text.c_str()[0] == kFree.c_str()[0];
}

TRNIDOM_Element copyOf(const TRNIDOM_Element& example) {
  TRNIDOM_Document document =
      TRNIDOM_DOMImplementation::getInstance().createDocument("", "grown", TRNIDOM_DocumentType());
  return document.appendChild(document.importNode(example, true));
}

/// The element and those below it, in document order.
std::vector<TRNIDOM_Element> elementsOf(const TRNIDOM_Element& root) {
  std::vector<TRNIDOM_Element> all{root};
  for (const TRNIDOM_Node& node : root.getElementsByTagName("*")) all.emplace_back(node);
  return all;
}

/// The attributes and texts of one element.
std::vector<TRNIDOM_Node> textsOf(const TRNIDOM_Element& element) {
  std::vector<TRNIDOM_Node> all;
  for (const TRNIDOM_Node& attribute : element.getAttributes()) all.push_back(attribute);
  for (const TRNIDOM_Node& child : element.getChildNodes())
    if (child.getNodeType() == TRNIDOM_Node::TEXT_NODE) all.push_back(child);
  return all;
}

void repeat(TRNIDOM_Element place, const std::vector<I18NString>& keys) {
  TRNIDOM_Node parent = place.getParentNode();
  if (parent.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) return;
  for (const I18NString& key : keys) {
    const TRNIDOM_Element copy = parent.insertBefore(place.cloneNode(true), place);
    for (const TRNIDOM_Element& element : elementsOf(copy))
      for (TRNIDOM_Node text : textsOf(element))
        if (isFree(text.getNodeValue())) text.setNodeValue(key);
  }
}

void growEqual(TRNIDOM_Element place, std::size_t size) {
  repeat(place, std::vector<I18NString>(size, "same"));
}

void growDistinct(TRNIDOM_Element place, std::size_t size) {
  repeat(place, numbered(size));
}

void growColliding(TRNIDOM_Element place, std::size_t size) {
  repeat(place, colliding(size, 31));
}

void growNested(TRNIDOM_Element place, std::size_t size) {
  const TRNIDOM_Node original = place.cloneNode(true);
  for (; size > 0; --size) place = place.appendChild(original.cloneNode(true));
}

void growDeep(TRNIDOM_Element place, std::size_t size) {
  TRNIDOM_Node parent = place.getParentNode();
  if (parent.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) return;
  const auto unknown = [&] { return place.getOwnerDocument().createElement("x"); };
  TRNIDOM_Node innermost = unknown();
  parent.replaceChild(innermost, place);
  for (; size > 1; --size) innermost = innermost.appendChild(unknown());
  innermost.appendChild(place);
}

void growUnknown(TRNIDOM_Element place, std::size_t size) {
  for (const I18NString& name : numbered(size)) {
    place.setAttribute(name, "");
    place.appendChild(place.getOwnerDocument().createElement(name));
  }
}

void growLong(TRNIDOM_Element place, std::size_t size) {
  for (TRNIDOM_Node text : textsOf(place))
    if (isFree(text.getNodeValue())) text.setNodeValue(std::string(40 * size, 'x').c_str());
}

void growPieces(TRNIDOM_Element place, std::size_t size) {
  TRNIDOM_Document document = place.getOwnerDocument();
  for (; size > 0; --size) {
    place.appendChild(document.createTextNode("text"));
    place.appendChild(document.createComment("comment"));
    place.appendChild(document.createCDATASection("data"));
  }
}

}  // namespace

std::vector<I18NString> numbered(std::size_t count) {
  std::vector<I18NString> all;
  for (std::size_t i = 0; i < count; ++i) all.emplace_back(("n" + std::to_string(i)).c_str());
  return all;
}

std::vector<I18NString> colliding(std::size_t count, char factor) {
  const std::string pairs[] = {"ay", {'b', static_cast<char>('y' - factor)}};
  std::vector<I18NString> all;
  for (std::size_t i = 0; i < count; ++i) {
    std::string text;
    for (std::size_t bit = 0; bit < 16; ++bit) text += pairs[i >> bit & 1];
    all.emplace_back(text.c_str());
  }
  return all;
}

const std::vector<Growth>& allGrowths() {
  static const std::vector<Growth> all = {
      {"equal", growEqual}, {"distinct", growDistinct}, {"colliding", growColliding}, {"nested", growNested},
      {"deep", growDeep},   {"unknown", growUnknown},   {"long", growLong},           {"pieces", growPieces}};
  return all;
}

TRNIDOM_Element marked(const TRNIDOM_Element& example, const std::function<bool(TRNIDOM_Element)>& accepts) {
  TRNIDOM_Element copy = copyOf(example);
  for (const TRNIDOM_Element& element : elementsOf(copy))
    for (TRNIDOM_Node text : textsOf(element)) {
      const I18NString before = text.getNodeValue();
      text.setNodeValue(kFree + before);
      if (!accepts(copy)) text.setNodeValue(before);
    }
  return copy;
}

std::vector<TRNIDOM_Element> grown(const TRNIDOM_Element& marked, const Growth& growth, std::size_t size) {
  std::vector<TRNIDOM_Element> all;
  std::set<I18NString> names;
  const std::size_t places = elementsOf(marked).size();
  for (std::size_t i = 0; i < places; ++i) {
    const TRNIDOM_Element root = copyOf(marked);
    const TRNIDOM_Element place = elementsOf(root)[i];
    if (!names.insert(place.getNodeName()).second) continue;
    growth.grow(place, size);
    all.push_back(root);
  }
  return all;
}

}  // namespace dxmd_test
