#ifndef TRNIDOM_TRNIDOM_HELPER_H
#define TRNIDOM_TRNIDOM_HELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_Node.h>

/// Finds elements below a node, and makes those that are missing.
///
/// Names, texts and values are compared exactly, as a whole. A null parent gives a null handle or empty text and
/// creates nothing. Finding or creating n distinct children under one parent costs O(n) in all, also where their keys
/// change or some are removed in between.
///
/// Threads: finding reads the document, which several threads may do at once; find-or-create changes it.
class TRNIDOM_API TRNIDOM_Helper {
 public:
  /// The first child element of that name, or null.
  static TRNIDOM_Element findChildElement(const TRNIDOM_Node& parent, const I18NString& name);

  /// The first descendant element of that name in document order, or null.
  static TRNIDOM_Element findFirstElement(const TRNIDOM_Node& parent, const I18NString& name);

  /// The first descendant element of that name, in document order, whose attribute has that value, or null.
  static TRNIDOM_Element findElementWithAttribute(const TRNIDOM_Node& parent, const I18NString& name,
                                                  const I18NString& attrName, const I18NString& attrValue);

  /// The first child element of that name; a new one appended to the parent when there is none.
  /// @throws TRNIDOM_DOMException when one is to be created and the name is no XML name or the parent can have no
  ///         children; so do the next two.
  static TRNIDOM_Element findOrCreateElement(const TRNIDOM_Node& parent, const I18NString& name);

  /// The first child element of that name whose whole text is the given one; a new one appended to the parent when
  /// there is none. An empty text adds no text node.
  static TRNIDOM_Element findOrCreateElementWithText(const TRNIDOM_Node& parent, const I18NString& name,
                                                     const I18NString& text);

  /// The first child element of that name whose attribute has that value; a new one appended to the parent when there
  /// is none.
  static TRNIDOM_Element findOrCreateElementWithAttribute(const TRNIDOM_Node& parent, const I18NString& name,
                                                          const I18NString& attrName, const I18NString& attrValue);

  /// The text and CDATA children, concatenated; empty when there are none.
  static I18NString getElementText(const TRNIDOM_Node& element);

  /// The same into `out`, replacing what it held.
  static void getElementText(const TRNIDOM_Node& element, I18NString& out);
};

#endif
