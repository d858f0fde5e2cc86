#ifndef TRNIDOM_TRNIDOM_DOCUMENT_H
#define TRNIDOM_TRNIDOM_DOCUMENT_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Node.h>

/// A handle to a document. What it creates belongs to it and has no parent.
class TRNIDOM_Document : public TRNIDOM_Node {
 public:
  /// The null handle.
  TRNIDOM_Document();

  /// An element without attributes or children. Throws the wrapper's exception for a name that is none, and on a null
  /// document. A `:` in the name and an attribute named "xmlns" or "xmlns:xsi" have no meaning to the helpers, who
  /// write their prefixes as part of the names.
  TRNIDOM_Element createElement(const I18NString& tagName);

  /// A text node, also for an empty text. Throws the wrapper's exception on a null document.
  TRNIDOM_Node createTextNode(const I18NString& data);

  /// A copy of a node of any document; children go along when `deep`. The node itself is not changed.
  /// Null gives null on every document, also on a null one; a node on a null document throws the wrapper's exception.
  TRNIDOM_Node importNode(const TRNIDOM_Node& node, bool deep);
};

#endif
