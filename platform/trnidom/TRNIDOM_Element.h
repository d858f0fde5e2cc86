#ifndef TRNIDOM_TRNIDOM_ELEMENT_H
#define TRNIDOM_TRNIDOM_ELEMENT_H

#include <utility>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_Node.h>
#include <trnidom/TRNIDOM_NodeList.h>

/// A handle to an element.
///
/// It converts from any node without a check and keeps that node, so that a cursor can stand on a text node and be
/// asked its name. Asked an element's question, a node that is no element answers null, empty or false.
///
/// Threads: as TRNIDOM_Node.
class TRNIDOM_API TRNIDOM_Element : public TRNIDOM_Node {
 public:
  /// The null handle.
  TRNIDOM_Element() noexcept = default;

  /// The same node, without a check.
  TRNIDOM_Element(const TRNIDOM_Node& node) noexcept : TRNIDOM_Node(node) {}  // NOLINT: implicit by design

  /// The same node, without a check; the other handle is null then.
  TRNIDOM_Element(TRNIDOM_Node&& node) noexcept : TRNIDOM_Node(std::move(node)) {}  // NOLINT: implicit by design

  /// A document is no element: `getDocumentElement()` was forgotten.
  TRNIDOM_Element(const TRNIDOM_Document& document) = delete;

  /// The element's name with its prefix; empty for a node that is no element.
  I18NString getTagName() const;

  /// The attribute's value; empty when it is absent.
  I18NString getAttribute(const I18NString& name) const;

  /// Whether there is such an attribute, also an empty one.
  bool hasAttribute(const I18NString& name) const;

  /// Adds the attribute or replaces its value.
  /// @throws TRNIDOM_DOMException on a null handle, on a node that is no element, for a malformed name, and for a value
  ///         with U+0000, which no DOM can hold.
  void setAttribute(const I18NString& attrName, const I18NString& attrValue);

  /// Does nothing when the attribute is absent.
  /// @throws TRNIDOM_DOMException on a null handle and on a node that is no element.
  void removeAttribute(const I18NString& name);

  /// The descendant elements of that name in document order, live; "*" stands for every name.
  TRNIDOM_NodeList getElementsByTagName(const I18NString& name) const;
};

#endif
