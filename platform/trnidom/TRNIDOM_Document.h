#ifndef TRNIDOM_TRNIDOM_DOCUMENT_H
#define TRNIDOM_TRNIDOM_DOCUMENT_H

#include <utility>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Export.h>
#include <trnidom/TRNIDOM_Node.h>
#include <trnidom/TRNIDOM_NodeList.h>

/// A handle to a document.
///
/// The document element that `TRNIDOM_DOMImplementation::createDocument` made is a placeholder as long as it has
/// neither child nor attribute: the first other element appended to the document takes its place, and handles to it
/// stay valid and are then detached. Appending beside a real document element is `HIERARCHY_REQUEST_ERR`.
///
/// Creating on a null document throws TRNIDOM_DOMException, as does a malformed name, and a text with U+0000, which no
/// DOM can hold (`INVALID_CHARACTER_ERR`). What is created belongs to this document and has no parent.
///
/// Threads: as TRNIDOM_Node.
class TRNIDOM_API TRNIDOM_Document : public TRNIDOM_Node {
 public:
  /// The null handle.
  TRNIDOM_Document() noexcept = default;

  /// The same node, without a check; a node that is no document has no document element and creates nothing.
  TRNIDOM_Document(const TRNIDOM_Node& node) noexcept : TRNIDOM_Node(node) {}  // NOLINT: implicit by design

  /// The same node, without a check; the other handle is null then.
  TRNIDOM_Document(TRNIDOM_Node&& node) noexcept : TRNIDOM_Node(std::move(node)) {}  // NOLINT: implicit by design

  /// An element without attributes or children. A prefix is part of the name and needs no declaration.
  /// @throws TRNIDOM_DOMException `INVALID_CHARACTER_ERR` for a name that XML does not allow, `INVALID_STATE_ERR` on a
  ///         null document, `NOT_SUPPORTED_ERR` on a node that is no document.
  TRNIDOM_Element createElement(const I18NString& tagName);

  /// A text node, also for an empty text.
  /// @throws TRNIDOM_DOMException `INVALID_CHARACTER_ERR` for U+0000; on a null handle as `createElement`.
  TRNIDOM_Node createTextNode(const I18NString& data);

  /// A comment. What XML cannot have in one, such as "--", is refused when it is written.
  /// @throws TRNIDOM_DOMException as `createTextNode`.
  TRNIDOM_Node createComment(const I18NString& data);

  /// A CDATA section, whose text counts as the element's.
  /// @throws TRNIDOM_DOMException as `createTextNode`.
  TRNIDOM_Node createCDATASection(const I18NString& data);

  /// A copy of a node of any document, belonging to this one; children go along when `deep`. Null gives null.
  /// @throws TRNIDOM_DOMException `NOT_SUPPORTED_ERR` for a document, which cannot be imported, and on a node that is
  ///         none; `INVALID_STATE_ERR` on a null document.
  TRNIDOM_Node importNode(const TRNIDOM_Node& node, bool deep);

  /// The document's element; null when it has none yet.
  TRNIDOM_Element getDocumentElement() const noexcept;

  /// The elements of that name in document order, live; "*" stands for every name.
  TRNIDOM_NodeList getElementsByTagName(const I18NString& name) const;
};

#endif
