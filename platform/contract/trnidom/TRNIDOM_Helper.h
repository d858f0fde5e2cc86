#ifndef TRNIDOM_TRNIDOM_HELPER_H
#define TRNIDOM_TRNIDOM_HELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Node.h>

/// Finds elements below a node, and makes those that are missing.
///
/// Names, texts and values are compared exactly, as a whole. A null parent gives a null handle or empty text and
/// creates nothing. None of these recurses over the tree.
class TRNIDOM_Helper {
 public:
  /// The first child element of that name, or null.
  static TRNIDOM_Element findChildElement(const TRNIDOM_Node& parent, const I18NString& name);

  /// The first descendant element of that name in document order, or null.
  static TRNIDOM_Element findFirstElement(const TRNIDOM_Node& parent, const I18NString& name);

  /// The first descendant element of that name, in document order, whose attribute has that value, or null.
  static TRNIDOM_Element findElementWithAttribute(const TRNIDOM_Node& parent, const I18NString& name,
                                                  const I18NString& attrName, const I18NString& attrValue);

  // Each of these gives the first child element that matches; when there is none, it creates one in the parent's
  // document and appends it as the parent's last child. Finding or creating n children under one parent, one after the
  // other, should cost O(n) in all: 100,000 lines of a file are an ordinary document.

  /// Matches on the name alone.
  static TRNIDOM_Element findOrCreateElement(const TRNIDOM_Node& parent, const I18NString& name);

  /// Matches on name and text together, so that different texts give siblings and a text written twice gives one
  /// element. The text is the only child of the element created; an empty text creates none.
  static TRNIDOM_Element findOrCreateElementWithText(const TRNIDOM_Node& parent, const I18NString& name,
                                                     const I18NString& text);

  /// Matches on name and attribute together.
  static TRNIDOM_Element findOrCreateElementWithAttribute(const TRNIDOM_Node& parent, const I18NString& name,
                                                          const I18NString& attrName, const I18NString& attrValue);

  /// The text and CDATA children, concatenated; empty when there are none.
  static I18NString getElementText(const TRNIDOM_Node& element);

  /// The same into `out`, replacing what it held.
  static void getElementText(const TRNIDOM_Node& element, I18NString& out);
};

#endif
