#ifndef TRNIDOM_TRNIDOM_ELEMENT_H
#define TRNIDOM_TRNIDOM_ELEMENT_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Node.h>
#include <trnidom/TRNIDOM_NodeList.h>

/// A handle to an element.
///
/// Reading is total: asked of a null handle, or of a node that is no element, an element's question is answered by
/// null, empty or false.
class TRNIDOM_Element : public TRNIDOM_Node {
 public:
  /// The null handle. Does not throw.
  TRNIDOM_Element();

  /// Converts from any node without a check, keeping that node: a cursor can stand on a text node and be asked its
  /// name.
  TRNIDOM_Element(const TRNIDOM_Node& node);

  /// A document given where its element was meant is a mistake. Only the helpers' callers profit from this one.
  TRNIDOM_Element(const TRNIDOM_Document& document) = delete;

  /// The attribute's value; empty when it is absent.
  I18NString getAttribute(const I18NString& name) const;

  /// Whether there is such an attribute, also an empty one.
  bool hasAttribute(const I18NString& name) const;

  /// Adds the attribute or replaces its value. Throws the wrapper's exception for a malformed name, on a null handle
  /// and on a node that is no element.
  void setAttribute(const I18NString& name, const I18NString& value);

  /// The descendant elements of that name, at any depth, in document order.
  TRNIDOM_NodeList getElementsByTagName(const I18NString& name) const;
};

#endif
