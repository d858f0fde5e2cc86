#ifndef TOOLS_DXMD_CAPTURE_MESSAGE_H
#define TOOLS_DXMD_CAPTURE_MESSAGE_H

#include <functional>
#include <string>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

// Documents as people indented them and tools wrapped them, brought to the form that services send. Trees may be of any
// depth; the time is linear.

namespace dxmd_tool {

/// The name behind its prefix.
std::string localName(const std::string& name);

/// Removes white space between elements. An element that holds text beside white space stays as it is, with all below,
/// as does one marked xml:space="preserve"; the white space of an element that holds nothing else is its content.
/// @param comments  whether comments and processing instructions between elements are removed as well.
void dropIndentation(const TRNIDOM_Element& root, bool comments);

/// The element, or one that takes its place in the tree: the prefix of its name is taken from all names below that have
/// it, of elements and their attributes.
TRNIDOM_Element withoutPrefix(const TRNIDOM_Element& element);

/// The message in a document: what is in the body of a SOAP envelope, or the document element; without indentation
/// and prefix.
/// @param isMessage  tells by the name, without a prefix, whether an element is a message and not one more wrapper.
TRNIDOM_Element messageIn(const TRNIDOM_Document& document,
                          const std::function<bool(const std::string& name)>& isMessage);

}  // namespace dxmd_tool

#endif
