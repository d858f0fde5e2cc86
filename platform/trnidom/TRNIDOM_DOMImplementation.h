#ifndef TRNIDOM_TRNIDOM_DOMIMPLEMENTATION_H
#define TRNIDOM_TRNIDOM_DOMIMPLEMENTATION_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_Export.h>

/// Makes documents. Nothing needs to be initialised, whatever thread comes first.
class TRNIDOM_API TRNIDOM_DOMImplementation {
 public:
  /// The implementation; safe from any thread.
  static TRNIDOM_DOMImplementation getInstance();

  /// Makes a document, which lives as long as a handle into it.
  /// @param namespaceURI   namespace of the document element; empty means none.
  /// @param qualifiedName  name of the document element; empty makes a document without one.
  /// @param doctype        must be null.
  /// @throws TRNIDOM_DOMException `INVALID_CHARACTER_ERR` for a malformed name, `NAMESPACE_ERR` for one that does not
  ///         go with the namespace.
  TRNIDOM_Document createDocument(const I18NString& namespaceURI, const I18NString& qualifiedName,
                                  const TRNIDOM_DocumentType& doctype) const;
};

#endif
