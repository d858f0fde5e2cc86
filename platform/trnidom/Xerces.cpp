#include "Xerces.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>

#include <trnidom/TRNIDOM_DOMException.h>
#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/util/PanicHandler.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "NodeOps.h"

namespace trnidom_detail {

namespace {

using xercesc::DOMNode;

const char* codeName(unsigned short code) noexcept {
  static constexpr const char* kNames[] = {
      "DOM error",          "INDEX_SIZE_ERR",           "DOMSTRING_SIZE_ERR",  "HIERARCHY_REQUEST_ERR",
      "WRONG_DOCUMENT_ERR", "INVALID_CHARACTER_ERR",    "NO_DATA_ALLOWED_ERR", "NO_MODIFICATION_ALLOWED_ERR",
      "NOT_FOUND_ERR",      "NOT_SUPPORTED_ERR",        "INUSE_ATTRIBUTE_ERR", "INVALID_STATE_ERR",
      "SYNTAX_ERR",         "INVALID_MODIFICATION_ERR", "NAMESPACE_ERR",       "INVALID_ACCESS_ERR"};
  return code < std::size(kNames) ? kNames[code] : kNames[0];
}

std::string quoted(Text name) {
  return '"' + stringOf(name).toUtf8() + '"';
}

/// " of element "x"", for a node that is named by where it stands.
std::string ofElement(const DOMNode* element) {
  if (element == nullptr || element->getNodeType() != DOMNode::ELEMENT_NODE) return {};
  return " of " + describe(element);
}

/// Xerces-C would end the process.
struct Panic final : xercesc::PanicHandler {
  void panic(const PanicReasons) override { throw std::bad_alloc(); }
};

/// Looks at four code units at a time, and once more at the last four.
bool hasNul(Text text) noexcept {
  constexpr std::uint64_t kOnes = 0x0001000100010001;
  constexpr std::size_t kUnits = sizeof(kOnes) / sizeof(char16_t);
  if (text.size() < kUnits) return text.find(u'\0') != Text::npos;
  std::uint64_t found = 0;
  const auto look = [&found](const char16_t* at) {
    std::uint64_t units;
    std::memcpy(&units, at, sizeof units);
    found |= (units - kOnes) & ~units;
  };
  const char16_t* const last = text.data() + text.size() - kUnits;
  for (const char16_t* at = text.data(); at < last; at += kUnits) look(at);
  look(last);
  return (found & kOnes << 15) != 0;
}

}  // namespace

// Xerces-C cannot be started again once memory ran out while it started, so that is made unlikely.
void initializeXerces() {
  static const bool started = [] {
    constexpr std::size_t kNeeded = std::size_t{1} << 20;
    ::operator delete(::operator new(kNeeded));
    try {
      static Panic panic;
      xercesc::XMLPlatformUtils::Initialize(xercesc::XMLUni::fgXercescDefaultLocale, nullptr, &panic);
      return true;
    } catch (const std::bad_alloc&) {
      return false;
    } catch (const xercesc::OutOfMemoryException&) {
      return false;
    }
  }();
  if (!started) throw std::bad_alloc();
}

std::string describe(const DOMNode* node) {
  if (node == nullptr) return "a null node";
  switch (node->getNodeType()) {
    case DOMNode::ELEMENT_NODE:
      return "element " + quoted(ops::name(node));
    case DOMNode::ATTRIBUTE_NODE:
      return "attribute " + quoted(ops::name(node)) + ofElement(ops::ownerElement(node));
    case DOMNode::TEXT_NODE:
      return "text" + ofElement(ops::parent(node));
    case DOMNode::CDATA_SECTION_NODE:
      return "CDATA section" + ofElement(ops::parent(node));
    case DOMNode::COMMENT_NODE:
      return "comment" + ofElement(ops::parent(node));
    case DOMNode::PROCESSING_INSTRUCTION_NODE:
      return "processing instruction " + quoted(ops::name(node)) + ofElement(ops::parent(node));
    case DOMNode::DOCUMENT_NODE:
      return "document";
    default:
      return "node " + quoted(ops::name(node));
  }
}

void fail(unsigned short code, const char* tried, const DOMNode* on, const std::string& because) {
  throw TRNIDOM_DOMException(code,
                             std::string(tried) + " on " + describe(on) + ": " + because + " (" + codeName(code) + ")");
}

void fail(const xercesc::DOMException& error, const char* tried, const DOMNode* on) {
  fail(static_cast<unsigned short>(error.code), tried, on, "the DOM refuses it");
}

void fail(const xercesc::XMLException& error, const char* tried, const DOMNode* on) {
  fail(TRNIDOM_DOMException::INVALID_STATE_ERR, tried, on, stringOf(textOf(error.getMessage())).toUtf8());
}

void requireName(Text name, const char* tried, const DOMNode* on) {
  if (!xercesc::XMLChar1_0::isValidName(name.data(), name.size()))
    fail(TRNIDOM_DOMException::INVALID_CHARACTER_ERR, tried, on, quoted(name) + " is no XML name");
}

void requireNoNul(Text text, const char* tried, const DOMNode* on) {
  if (hasNul(text)) fail(TRNIDOM_DOMException::INVALID_CHARACTER_ERR, tried, on, "the text has the character U+0000");
}

}  // namespace trnidom_detail
