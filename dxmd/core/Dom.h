#ifndef DXMD_CORE_DOM_H
#define DXMD_CORE_DOM_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Node.h>

// The small steps that every helper writes with. How they read is in <dxmd/core/Nodes.h>.
//
// Each `append...` creates what it appends in the parent's own document and returns it, so that calls chain; it throws
// the wrapper's exception for a null parent. What nothing can be there yet for is appended; find-or-create, of
// TRNIDOM_Helper, is for what merges with what is there.

namespace dxmd {

/// Appends an element.
TRNIDOM_Element appendElement(const TRNIDOM_Node& parent, const I18NString& name);

/// Appends an element with one attribute.
TRNIDOM_Element appendElement(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& attrName,
                              const I18NString& attrValue);

/// Appends an element with the attribute "value".
TRNIDOM_Element appendValueElement(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& value);

/// Appends an element that holds the text; for an empty text it holds nothing, as find-or-create has it.
TRNIDOM_Element appendElementWithText(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& text);

/// Appends an element that holds one text node, also when the text is empty.
TRNIDOM_Element appendElementWithTextNode(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& text);

/// Appends a text node, also when the text is empty.
void appendText(const TRNIDOM_Node& parent, const I18NString& text);

/// Appends a deep copy of a node of any document.
TRNIDOM_Node appendImported(const TRNIDOM_Node& parent, const TRNIDOM_Node& node);

/// Lets a part of a helper write itself and appends what it hands back.
/// @param part  anything with a `doMake` that builds and hands back.
template <typename Part>
TRNIDOM_Element appendMade(const TRNIDOM_Node& parent, TRNIDOM_Document& doc, const Part& part) {
  TRNIDOM_Element element;
  part.doMake(doc, element);
  return TRNIDOM_Node(parent).appendChild(element);
}

/// Sets the "value" attribute of the parent's first child element of that name, which is created when missing.
TRNIDOM_Element setChildValue(const TRNIDOM_Node& parent, const I18NString& name, const I18NString& value);

/// "true" or "false".
const I18NString& toText(bool value);

}  // namespace dxmd

#endif
