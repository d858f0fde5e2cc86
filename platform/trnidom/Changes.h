#ifndef TRNIDOM_CHANGES_H
#define TRNIDOM_CHANGES_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Node.h>
#include <xercesc/dom/DOMNode.hpp>

#include "Text.h"

namespace trnidom_detail {

struct Control;

/// A node on its way to a place among a parent's children: checked as a whole first, then put there without a way to
/// fail.
class Insertion {
 public:
  /// @param replaced  a child that will have gone by then; may be null.
  /// @throws TRNIDOM_DOMException with the W3C's code when the node cannot be a child of the parent.
  Insertion(const char* tried, const TRNIDOM_Node& parent, const TRNIDOM_Node& child,
            const xercesc::DOMNode* replaced = nullptr);

  /// Takes the node from where it stands and inserts it before a child of the parent, which is not the node itself, or
  /// at the end when that is null.
  void run(xercesc::DOMNode* before) noexcept;

 private:
  void settleDocumentElement(const char* tried, const xercesc::DOMNode* replaced);

  Control* m_control;
  xercesc::DOMNode* m_parent;
  xercesc::DOMNode* m_child;
  xercesc::DOMNode* m_displaced = nullptr;
};

/// Takes a child from its parent.
void removeChildNode(Control* control, xercesc::DOMNode* parent, xercesc::DOMNode* child) noexcept;

/// A new element of the document. Checks the name.
xercesc::DOMNode* newElement(const char* tried, Control* control, const I18NString& name);

/// A new text of the document. Checks the text.
xercesc::DOMNode* newText(const char* tried, Control* control, const I18NString& text);

/// Gives an element an attribute that it does not have. Checks the name and the value.
void addAttribute(const char* tried, Control* control, xercesc::DOMNode* element, Text name, Text value);

/// Sets the value of a node other than an element or document; an attribute's children become one text. Checks the
/// text.
void setValue(const char* tried, Control* control, xercesc::DOMNode* node, Text value);

/// Appends a node of the parent's document that was just made: it has no parent, and the parent is not below it.
TRNIDOM_Node appendNew(const char* tried, const TRNIDOM_Node& parent, xercesc::DOMNode* child);

}  // namespace trnidom_detail

#endif
