#ifndef DXMD_CORE_DOM_H
#define DXMD_CORE_DOM_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Node.h>

// The small steps that every helper writes and reads with.
//
// Each `append...` creates what it appends in the parent's own document and returns it; the parent must not be null.

namespace dxmd {

/// Appends an element to the parent.
TRNIDOM_Element appendElement(TRNIDOM_Element& parent, const I18NString& name);

/// Appends an element with one attribute.
TRNIDOM_Element appendElement(TRNIDOM_Element& parent, const I18NString& name, const I18NString& attrName,
                              const I18NString& attrValue);

/// Appends an element with the attribute "value".
TRNIDOM_Element appendValueElement(TRNIDOM_Element& parent, const I18NString& name, const I18NString& value);

/// Appends an element that holds one text node, also when the text is empty.
TRNIDOM_Element appendTextElement(TRNIDOM_Element& parent, const I18NString& name, const I18NString& text);

/// Appends a text node to the parent, also when the text is empty.
void appendText(TRNIDOM_Element& parent, const I18NString& text);

/// Appends a deep copy of a node of any document.
TRNIDOM_Node appendImported(TRNIDOM_Element& parent, const TRNIDOM_Node& node);

/// Lets a part of a helper write itself and appends what it hands back.
/// @param part  anything with a `doMake` that builds and hands back.
template <typename Part>
TRNIDOM_Element appendMade(TRNIDOM_Element& parent, TRNIDOM_Document& doc, const Part& part) {
  TRNIDOM_Element element;
  part.doMake(doc, element);
  return parent.appendChild(element);
}

/// Sets the "value" attribute of the parent's child of that name, which is created when missing.
TRNIDOM_Element setChildValue(TRNIDOM_Element& parent, const I18NString& name, const I18NString& value);

/// "true" or "false".
const I18NString& toText(bool value);

/// The node's first child when that is a text node, else null.
TRNIDOM_Node firstText(const TRNIDOM_Node& parent);

/// Replaces the text by that of the parent's first child element of that name; without one the text stays as it was.
void readChildText(const TRNIDOM_Node& parent, const I18NString& name, I18NString& text);

/// Whether the node is an element; a null handle is none.
inline bool isElement(const TRNIDOM_Node& node) {
  return node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE;
}

/// Whether the node is a text node; a null handle is none.
inline bool isText(const TRNIDOM_Node& node) {
  return node.getNodeType() == TRNIDOM_Node::TEXT_NODE;
}

}  // namespace dxmd

#endif
