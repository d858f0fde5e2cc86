#include "Checker.h"

#include <functional>
#include <set>
#include <string_view>
#include <utility>

#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <tools/dxmd/Detect.h>
#include <tools/dxmd/Input.h>
#include <tools/dxmd/capture/Capture.h>
#include <tools/dxmd/capture/Message.h>
#include <tools/dxmd/check/Tags.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/text/Words.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

std::string decodedFrom(const std::string& bytes, const char* encoding) {
  return I18NString(bytes.data(), encoding, static_cast<long>(bytes.size())).toUtf8();
}

/// A document that was parsed, in UTF-8 and without a byte order mark.
std::string utf8Of(std::string bytes) {
  static const std::pair<std::string, const char*> kStarts[] = {
      {{"\xFF\xFE\0\0", 4}, "UTF-32"}, {{"\0\0\xFE\xFF", 4}, "UTF-32"}, {"\xFF\xFE", "UTF-16"},
      {"\xFE\xFF", "UTF-16"},          {{"<\0", 2}, "UTF-16LE"},        {{"\0<", 2}, "UTF-16BE"}};
  for (const auto& [start, encoding] : kStarts)
    if (startsWith(bytes, start)) return decodedFrom(bytes, encoding);
  const std::string mark = "\xEF\xBB\xBF";
  if (startsWith(bytes, mark)) return bytes.substr(mark.size());
  const std::string declaration = bytes.substr(0, startsWith(bytes, "<?xml") ? bytes.find("?>") : 0);
  const std::size_t name = declaration.find("encoding");
  const std::size_t quote = declaration.find_first_of("\"'", name);
  if (name == std::string::npos || quote == std::string::npos) return bytes;
  const std::size_t end = declaration.find(declaration[quote], quote + 1);
  return decodedFrom(bytes, declaration.substr(quote + 1, end - quote - 1).c_str());
}

/// Adds why a file was refused; the message begins with the file's name.
void addRefusal(const ToolError& error, Finding place, Checked& checked) {
  const std::string message = error.what();
  const std::string start = checked.name + ": ";
  place.message = startsWith(message, start) ? message.substr(start.size()) : message;
  checked.status = error.status();
  checked.findings.push_back(std::move(place));
}

/// How many elements stand in front of it in its document.
std::size_t numberOf(const TRNIDOM_Element& element, TRNIDOM_Node node) {
  std::size_t number = 0;
  while (!(node == element)) {
    if (node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE) ++number;
    TRNIDOM_Node next = node.getFirstChild();
    for (; next.isNull(); node = node.getParentNode()) next = node.getNextSibling();
    node = std::move(next);
  }
  return number;
}

}  // namespace

/// A document that is well-formed, and the message in it.
class Checker::Document {
 public:
  using PlaceOf = std::function<Finding(std::size_t line, std::size_t column)>;

  /// @param placeOf  gives the place in the file of one in the document.
  /// @throws TRNIDOM_ParseError
  Document(std::string bytes, PlaceOf placeOf)
      : m_document(TRNIDOM_Parser::parseString(bytes)),
        m_text(utf8Of(std::move(bytes))),
        m_tags(m_text),
        m_placeOf(std::move(placeOf)),
        m_message(messageIn(m_document, &isMessageName)),
        m_number(numberOf(m_message, m_document.getDocumentElement())) {}
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document() = default;

  const TRNIDOM_Element& message() const { return m_message; }
  std::size_t depth() const { return m_tags.depth(); }

  /// The message as a document of its own, which declares the prefixes that are declared around it.
  std::string text(const SchemaNamespaces& namespaces) const {
    std::string text(m_tags.textOf(m_number));
    return text.insert(text.find_first_of(" \t\r\n/>"), declarations(namespaces));
  }

  Finding finding(const Misfit& misfit) const { return findings({misfit}).front(); }

  /// @param misfits  in the order of their elements, which are counted from the message.
  std::vector<Finding> findings(const std::vector<Misfit>& misfits) const {
    std::vector<std::size_t> elements;
    elements.reserve(misfits.size());
    for (const Misfit& misfit : misfits) elements.push_back(m_number + misfit.element);
    const std::vector<Tags::Place> places = m_tags.placesOf(elements);
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < misfits.size(); ++i) {
      const std::string_view tag = m_tags.textOf(elements[i]);
      const std::string name(tag.substr(1, tag.find_first_of(" \t\r\n/>") - 1));
      Finding& finding = findings.emplace_back(m_placeOf(places[i].line, places[i].column));
      finding.message = inQuotes(name) + " " + misfits[i].reason;
    }
    return findings;
  }

 private:
  std::string declarations(const SchemaNamespaces& namespaces) const {
    const TRNIDOM_Element declared = newElement("n");
    std::set<std::string> known;
    const auto declare = [&](const std::string& name, const I18NString& uri, bool isInMessage) {
      if (known.insert(name).second && !isInMessage) TRNIDOM_Element(declared).setAttribute(name.c_str(), uri);
    };
    for (TRNIDOM_Node node = m_message; node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE; node = node.getParentNode())
      for (const TRNIDOM_Node attribute : node.getAttributes()) {
        const std::string name = attribute.getNodeName().toUtf8();
        if (name == "xmlns" || startsWith(name, "xmlns:")) declare(name, attribute.getNodeValue(), node == m_message);
      }
    // A part of a message has the prefixes of the whole.
    declare("xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance", false);
    declare("xmlns:bus", namespaces.serviceBus.c_str(), false);
    const std::string xml = TRNIDOM_Writer::toString(declared);
    return xml.substr(2, xml.size() - 4);
  }

  TRNIDOM_Document m_document;
  std::string m_text;
  Tags m_tags;
  PlaceOf m_placeOf;
  TRNIDOM_Element m_message;
  std::size_t m_number;
};

Checker::Checker(std::string folder, SchemaNamespaces namespaces)
    : m_folder(std::move(folder)), m_namespaces(std::move(namespaces)) {}

Checked Checker::check(const std::string& file, std::istream& in, const OnRead& onRead, const Kind* asked) {
  Checked checked;
  checked.name = file == "-" ? "standard input" : file;
  std::string bytes;
  Capture capture;
  try {
    capture = captured(inputOf(file, in, onRead).source, checked.name);
    bytes = readSource(capture.source);
  } catch (const ToolError& error) {
    addRefusal(error, {0, 0, {}}, checked);
    return checked;
  }
  const auto placeOf = [&](std::size_t line, std::size_t column) {
    return Finding{line + capture.lines, column + (line == 1 ? capture.columns : 0), {}};
  };
  try {
    refusalsNamed(checked.name, [&] {
      const Document document(std::move(bytes), placeOf);
      checked.isWellFormed = true;
      checkMessage(document, asked, checked);
    });
  } catch (const ToolError& error) {
    if (error.status() == kStatusFile) throw;
    addRefusal(error, {0, 0, {}}, checked);
  } catch (const TRNIDOM_ParseError& error) {
    Finding& finding = checked.findings.emplace_back(placeOf(error.getLine(), error.getColumn()));
    finding.message = "not well-formed: " + error.getReason();
    checked.status = kStatusSyntax;
  }
  return checked;
}

void Checker::checkMessage(const Document& document, const Kind* asked, Checked& checked) {
  if (document.depth() > SchemaValidator::kDeepest) {
    checked.status = kStatusUnfit;
    return checked.findings.push_back(document.finding(
        {0, "is not checked: its document has more than " + std::to_string(SchemaValidator::kDeepest) + " levels"}));
  }
  try {
    std::vector<const Kind*> kinds{asked};
    if (asked != nullptr)
      checkKind(*asked, document.message(), checked.name);
    else
      kinds = kindsOf(document.message());
    const std::string text = document.text(m_namespaces);
    std::vector<Misfit> misfits;
    for (const Kind* kind : kinds) {
      misfits = validatorOf(*kind).validate(text);
      checked.kind = kind;
      if (misfits.empty()) return;
    }
    // Of several kinds it may be meant for any, and of none it is refused.
    if (kinds.size() != 1) {
      checked.kind = nullptr;
      checked.kind = &kindOf(document.message(), checked.name);
      misfits = validatorOf(*checked.kind).validate(text);
    }
    checked.status = kStatusUnfit;
    checked.findings = document.findings(misfits);
  } catch (const ToolError& error) {
    if (error.status() == kStatusFile) throw;
    addRefusal(error, document.finding({0, ""}), checked);
  }
}

SchemaValidator& Checker::validatorOf(const Kind& kind) {
  std::unique_ptr<SchemaValidator>& validator = m_validators[kind.name];
  if (!validator) validator = std::make_unique<SchemaValidator>(m_folder, kind.name, m_namespaces);
  return *validator;
}

}  // namespace dxmd_tool
