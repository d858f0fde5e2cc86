#include <trnidom/TRNIDOM_Parser.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>
#include <system_error>
#include <vector>

#include <trnidom/TRNIDOM_ParseError.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "Control.h"
#include "NodeOps.h"
#include "Scanner.h"
#include "Xerces.h"

using namespace trnidom_detail;
using namespace xercesc;

namespace {

/// The bytes of a document by the code units of their encoding, as the first of them tell it.
class CodeUnits {
 public:
  explicit CodeUnits(std::string_view bytes) : m_bytes(bytes) {
    const auto beginWith = [bytes](std::string_view first) { return bytes.substr(0, first.size()) == first; };
    using namespace std::string_view_literals;
    if (beginWith("\0\0\0<"sv) || beginWith("<\0\0\0"sv) || beginWith("\0\0\xFE\xFF"sv) || beginWith("\xFF\xFE\0\0"sv))
      m_width = 4;
    else if (beginWith("\0<"sv) || beginWith("<\0"sv) || beginWith("\xFE\xFF"sv) || beginWith("\xFF\xFE"sv))
      m_width = 2;
    m_isBigEndian = m_width != 1 && (beginWith("\0"sv) || beginWith("\xFE"sv));
  }

  std::size_t size() const { return m_bytes.size() / m_width; }
  bool isWhole() const { return m_bytes.size() % m_width == 0; }

  std::uint32_t operator[](std::size_t index) const {
    std::uint32_t unit = 0;
    for (std::size_t i = 0; i < m_width; ++i)
      unit = unit << 8 | static_cast<unsigned char>(m_bytes[index * m_width + (m_isBigEndian ? i : m_width - 1 - i)]);
    return unit;
  }

  bool areBytes() const { return m_width == 1; }

  /// The first U+0000, or the size.
  std::size_t firstNul() const {
    if (areBytes()) return std::min(m_bytes.find('\0'), size());
    std::size_t index = 0;
    while (index < size() && (*this)[index] != 0) ++index;
    return index;
  }

 private:
  std::string_view m_bytes;
  std::size_t m_width = 1;
  bool m_isBigEndian = false;
};

[[noreturn]] void refuse(const CodeUnits& units, std::size_t index, const char* because) {
  std::size_t line = 1;
  std::size_t column = 1;
  for (std::size_t i = 0; i < index; ++i) {
    if (units[i] == '\n') {
      ++line;
      column = 1;
    } else if ((units[i] & 0xC0) != 0x80) {  // further bytes of a character in UTF-8
      ++column;
    }
  }
  throw TRNIDOM_ParseError(line, column, because);
}

/// Where the first sequence begins that is no UTF-8, or the size.
std::size_t firstMalformed(const CodeUnits& units) {
  const auto lengthOf = [](std::uint32_t lead) -> std::size_t {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
  };
  for (std::size_t at = 0; at < units.size();) {
    const std::size_t length = lengthOf(units[at]);
    if (length == 0 || length > units.size() - at) return at;
    for (std::size_t i = 1; i < length; ++i)
      if ((units[at + i] & 0xC0) != 0x80) return at;
    at += length;
  }
  return units.size();
}

/// Builds the tree of what the scanner finds.
class Builder final : public XMLDocumentHandler, public XMLErrorReporter {
 public:
  Builder(Control& control, const CodeUnits& units)
      : m_units(units), m_names(control.names), m_document(control.document), m_parent(control.document) {}

  void startElement(const XMLElementDecl& declaration, const unsigned int, const XMLCh* const,
                    const RefVectorOf<XMLAttr>& attributes, const XMLSize_t count, const bool isEmpty,
                    const bool) override {
    const Text name = declaration.getFullName();
    DOMNode* element = known(name, [&](const XMLCh* kept) { return ops::newElement(m_document, name, kept); });
    for (XMLSize_t i = 0; i < count; ++i) {
      const XMLAttr* attribute = attributes.elementAt(i);
      const Text attributeName = attribute->getName();
      known(attributeName,
            [&](const XMLCh* kept) { return ops::addAttribute(element, attributeName, attribute->getValue(), kept); });
    }
    append(element);
    if (!isEmpty) m_parent = element;
  }

  void endElement(const XMLElementDecl&, const unsigned int, const bool, const XMLCh* const) override {
    flushText();
    m_parent = ops::parent(m_parent);
  }

  void docCharacters(const XMLCh* const text, const XMLSize_t length, const bool isCDATA) override {
    if (m_parent == m_document) return;
    if (isCDATA)
      append(ops::newCDATASection(m_document, {text, length}));
    else
      m_text.append(text, length);
  }

  void docComment(const XMLCh* const text) override { append(ops::newComment(m_document, text)); }

  void docPI(const XMLCh* const target, const XMLCh* const data) override {
    append(ops::newProcessingInstruction(m_document, target, data));
  }

  void XMLDecl(const XMLCh* const version, const XMLCh* const encoding, const XMLCh* const,
               const XMLCh* const) override {
    if (Text(version) != XMLUni::fgVersion1_0) throw TRNIDOM_ParseError(1, 1, "only XML 1.0 is supported");
    m_isUtf8 = XMLString::stringLen(encoding) == 0 || XMLString::compareIStringASCII(encoding, u"UTF-8") == 0;
  }

  void error(const unsigned int code, const XMLCh* const domain, const ErrTypes type, const XMLCh* const text,
             const XMLCh* const, const XMLCh* const, const XMLFileLoc line, const XMLFileLoc column) override {
    if (type == ErrType_Warning) return;
    // What the scanner says of malformed bytes is where it had read to, or that the input ends.
    if (m_isUtf8 && m_units.areBytes() &&
        (XMLString::equals(domain, XMLUni::fgExceptDomain) || code == XMLErrs::EndedWithTagsOnStack)) {
      const std::size_t malformed = firstMalformed(m_units);
      if (malformed != m_units.size()) refuse(m_units, malformed, "malformed UTF-8");
    }
    throw TRNIDOM_ParseError(static_cast<std::size_t>(line), static_cast<std::size_t>(column),
                             stringOf(textOf(text)).toUtf8());
  }

  // White space outside the document element is no node.
  void ignorableWhitespace(const XMLCh* const, const XMLSize_t, const bool) override {}
  void startDocument() override {}
  void endDocument() override {}
  void resetDocument() override {}
  void resetErrors() override {}
  void startEntityReference(const XMLEntityDecl&) override {}
  void endEntityReference(const XMLEntityDecl&) override {}

 private:
  /// Makes a node of that name, which it hands to `make` where the document keeps it when that is known.
  template <typename Make>
  DOMNode* known(Text name, Make make) {
    const XMLCh* kept = m_names.find(name);
    DOMNode* node = make(kept);
    if (kept == nullptr) m_names.add(ops::name(node));
    return node;
  }

  void append(DOMNode* node) {
    flushText();
    if (m_parent == m_document)
      ops::link(m_document, node, nullptr);
    else
      ops::append(m_parent, node);
  }

  /// A run of characters may arrive in pieces.
  void flushText() {
    if (m_text.empty()) return;
    ops::append(m_parent, ops::newText(m_document, m_text));
    m_text.clear();
  }

  const CodeUnits& m_units;
  bool m_isUtf8 = true;
  KnownNames& m_names;
  DOMDocument* m_document;
  DOMNode* m_parent;
  std::u16string m_text;
};

/// The scanner takes U+0000 for the end of the input and leaves out a character that is cut short there.
void requireWholeCharacters(const CodeUnits& units) {
  const std::size_t nul = units.firstNul();
  if (nul != units.size()) refuse(units, nul, "U+0000 is no character of XML");
  const bool endsInMarkupOrSpace = units.size() == 0 || units[units.size() - 1] < 0x80;
  if (!units.isWhole() || !endsInMarkupOrSpace)
    refuse(units, units.size(), "the input does not end as a document does");
}

}  // namespace

TRNIDOM_Document TRNIDOM_Parser::parseString(const std::string& bytes) {
  const CodeUnits units(bytes);
  requireWholeCharacters(units);
  TRNIDOM_Document made = newDocument();
  Control* control = Access::control(made);
  try {
    DocumentMemory memory;
    const MemBufInputSource source(reinterpret_cast<const XMLByte*>(bytes.data()), bytes.size(), u"document", false,
                                   &memory);
    Builder builder(*control, units);
    scan(source, builder, builder, memory);
  } catch (const OutOfMemoryException&) {
    throw std::bad_alloc();
  } catch (const XMLException& error) {
    throw TRNIDOM_ParseError(0, 0, stringOf(textOf(error.getMessage())).toUtf8());
  }
  return made;
}

TRNIDOM_Document TRNIDOM_Parser::parseFile(const std::string& path) {
  const auto unreadable = [&path] {
    return TRNIDOM_ParseError(0, 0, "cannot read \"" + path + "\": " + std::generic_category().message(errno));
  };
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
  if (file == nullptr) throw unreadable();
  std::string bytes;
  std::vector<char> buffer(std::size_t{1} << 16);
  while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file.get()))
    bytes.append(buffer.data(), count);
  if (std::ferror(file.get()) != 0) throw unreadable();
  return parseString(bytes);
}
