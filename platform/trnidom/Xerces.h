#ifndef TRNIDOM_XERCES_H
#define TRNIDOM_XERCES_H

#include <new>
#include <string>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>

#include "Text.h"

namespace trnidom_detail {

/// Initialises Xerces-C the first time, whatever thread comes first.
void initializeXerces();

/// What a node is called in error texts: its kind and name, never its value.
std::string describe(const xercesc::DOMNode* node);

/// Throws the DOM exception that says what was tried on which node, and why it cannot be.
/// @param tried  name of the operation.
/// @param on     the node it was tried on; may be null.
[[noreturn]] void fail(unsigned short code, const char* tried, const xercesc::DOMNode* on, const std::string& because);

/// The same for what Xerces-C refused.
[[noreturn]] void fail(const xercesc::DOMException& error, const char* tried, const xercesc::DOMNode* on);
[[noreturn]] void fail(const xercesc::XMLException& error, const char* tried, const xercesc::DOMNode* on);

/// Runs an action on a node; whatever Xerces-C throws leaves it as TRNIDOM_DOMException or std::bad_alloc.
template <typename Action>
decltype(auto) guarded(const char* tried, const xercesc::DOMNode* on, Action&& action) {
  try {
    return action();
  } catch (const xercesc::OutOfMemoryException&) {
    throw std::bad_alloc();
  } catch (const xercesc::DOMException& error) {
    fail(error, tried, on);
  } catch (const xercesc::XMLException& error) {
    fail(error, tried, on);
  }
}

/// Throws INVALID_CHARACTER_ERR unless the text is an XML name.
void requireName(Text name, const char* tried, const xercesc::DOMNode* on);

/// Throws INVALID_CHARACTER_ERR for a text with U+0000, where the DOM would end it.
void requireNoNul(Text text, const char* tried, const xercesc::DOMNode* on);

}  // namespace trnidom_detail

#endif
