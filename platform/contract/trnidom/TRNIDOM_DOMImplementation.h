#ifndef TRNIDOM_TRNIDOM_DOMIMPLEMENTATION_H
#define TRNIDOM_TRNIDOM_DOMIMPLEMENTATION_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>

/// Makes documents, on any thread.
class TRNIDOM_DOMImplementation {
 public:
  /// The implementation, from any thread.
  static TRNIDOM_DOMImplementation getInstance();

  /// Makes a document.
  ///
  /// The helpers ask for ("", "requestDoc", null), create their root element in the document, and several append it to
  /// the document node. That must succeed although the document has been given a document element: the element named
  /// here gives way as long as it has neither child nor attribute (or is not made at all).
  /// @param namespaceURI   empty means no namespace.
  /// @param qualifiedName  name of the document element.
  /// @param doctype        the helpers give the null one.
  TRNIDOM_Document createDocument(const I18NString& namespaceURI, const I18NString& qualifiedName,
                                  const TRNIDOM_DocumentType& doctype) const;
};

#endif
