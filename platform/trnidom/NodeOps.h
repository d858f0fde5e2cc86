#ifndef TRNIDOM_NODEOPS_H
#define TRNIDOM_NODEOPS_H

#include <cstddef>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include "Text.h"

/// What the wrapper does with single nodes of Xerces-C's DOM: everything whose cost counts.
///
/// There are two implementations, which the build option TRNIDOM_PUBLIC_XERCES chooses between: NodeOps.cpp works on
/// Xerces-C's node objects directly, NodeOpsPublic.cpp through its public interface. Both give the same tree.
///
/// Nothing here checks: names are valid, texts have no NUL, links make no cycle. What makes or changes text may throw
/// xercesc::OutOfMemoryException and then changed nothing; the rest does not throw.
namespace trnidom_detail::ops {

using xercesc::DOMDocument;
using xercesc::DOMNode;

// Reading.

/// The parent of a child node; null for one without, and for an attribute or a document.
DOMNode* parent(const DOMNode* node) noexcept;
DOMNode* firstChild(const DOMNode* node) noexcept;
DOMNode* lastChild(const DOMNode* node) noexcept;
DOMNode* previousSibling(const DOMNode* node) noexcept;
DOMNode* nextSibling(const DOMNode* node) noexcept;

/// The first element of that name among the children of a node, or the siblings after one, or null.
DOMNode* firstElement(const DOMNode* parent, NameMatcher& named) noexcept;
DOMNode* nextElement(const DOMNode* node, NameMatcher& named) noexcept;

const XMLCh* name(const DOMNode* node) noexcept;

/// The value of a text, CDATA section, comment or processing instruction. An attribute's value may have to be put
/// together in the document's memory, so this may run out of memory for an attribute of several children.
Text value(const DOMNode* node);

/// The attribute of an element, or null.
DOMNode* attribute(const DOMNode* element, Text name) noexcept;

/// The value of that attribute, as `value` has it; its data is null when there is none.
Text attributeValue(const DOMNode* element, Text name);
std::size_t attributeCount(const DOMNode* element) noexcept;
DOMNode* attributeAt(const DOMNode* element, std::size_t index) noexcept;

/// The element that an attribute belongs to, or null.
DOMNode* ownerElement(const DOMNode* attribute) noexcept;

// Making nodes without a parent.

/// @param kept  the same name where the document keeps it, if that is known: the name of another of its nodes.
DOMNode* newElement(DOMDocument* document, Text name, const XMLCh* kept = nullptr);
DOMNode* newText(DOMDocument* document, Text data);
DOMNode* newComment(DOMDocument* document, Text data);
DOMNode* newCDATASection(DOMDocument* document, Text data);
DOMNode* newProcessingInstruction(DOMDocument* document, Text target, Text data);
DOMNode* newAttribute(DOMDocument* document, Text name, Text value);

// Changing.

/// Appends a node without a parent to an element.
void append(DOMNode* element, DOMNode* child) noexcept;

/// Inserts a node without a parent before a child of the parent, or at the end when that is null.
void link(DOMNode* parent, DOMNode* child, DOMNode* before) noexcept;

void unlink(DOMNode* parent, DOMNode* child) noexcept;

/// Adds an attribute to an element that has none of that name, and gives it.
DOMNode* addAttribute(DOMNode* element, Text name, Text value, const XMLCh* kept = nullptr);

/// Takes an attribute off its element.
void removeAttribute(DOMNode* element, DOMNode* attribute) noexcept;

/// Sets the value of a text, CDATA section, comment, processing instruction or attribute. A handle to an attribute's
/// only text stays valid and sees the new value.
void setValue(DOMNode* node, Text value);

}  // namespace trnidom_detail::ops

#endif
