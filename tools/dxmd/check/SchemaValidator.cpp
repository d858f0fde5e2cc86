#include "SchemaValidator.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <utility>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/framework/XMLValidityCodes.hpp>
#include <xercesc/parsers/SAX2XMLReaderImpl.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLEntityResolver.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/datatype/DatatypeValidator.hpp>
#include <xercesc/validators/schema/SchemaAttDef.hpp>
#include <xercesc/validators/schema/SchemaValidator.hpp>

#include <trn/I18NString.h>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/text/Words.h>

namespace dxmd_tool {

namespace {

namespace xml = xercesc;

static_assert(sizeof(XMLCh) == sizeof(char16_t));

std::string toUtf8(const XMLCh* text) {
  if (text == nullptr) return {};
  const auto* const units = reinterpret_cast<const char16_t*>(text);
  return I18NString::fromUtf16(units, std::char_traits<char16_t>::length(units)).toUtf8();
}

const XMLCh* toXMLCh(const I18NString& text) {
  return reinterpret_cast<const XMLCh*>(text.c_str());
}

/// Counts the uses of Xerces-C, which the first initialises and the last terminates.
class Platform {
 public:
  Platform() { xml::XMLPlatformUtils::Initialize(); }
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  ~Platform() { xml::XMLPlatformUtils::Terminate(); }
};

/// Runs what uses Xerces-C, whose exceptions are none of the standard's.
template <typename Action>
auto withStandardExceptions(const Action& action) {
  try {
    return action();
  } catch (const xml::OutOfMemoryException&) {
    throw std::bad_alloc();
  } catch (const xml::XMLException& error) {
    throw std::runtime_error("Xerces-C: " + toUtf8(error.getMessage()));
  }
}

/// UTF-8 as a file of that name.
/// @param bytes  must live as long, unless the source has adopted them.
std::unique_ptr<xml::InputSource> sourceOf(const char* bytes, std::size_t size, const I18NString& name,
                                           bool isAdopted) {
  const auto* const first = reinterpret_cast<const XMLByte*>(bytes);
  auto source = std::make_unique<xml::MemBufInputSource>(first, size, toXMLCh(name), isAdopted);
  source->setEncoding(xml::XMLUni::fgUTF8EncodingString);
  return source;
}

std::unique_ptr<xml::InputSource> sourceOf(const std::string& bytes, const I18NString& name) {
  return sourceOf(bytes.data(), bytes.size(), name, false);
}

std::unique_ptr<xml::InputSource> copiedSourceOf(const std::string& bytes, const I18NString& name) {
  auto copy = std::make_unique<XMLByte[]>(bytes.size());
  std::copy(bytes.begin(), bytes.end(), copy.get());
  auto source = sourceOf(reinterpret_cast<const char*>(copy.get()), bytes.size(), name, true);
  static_cast<void>(copy.release());
  return source;
}

std::string inAttribute(const std::string& text) {
  std::string escaped;
  for (const char character : text) {
    switch (character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += character;
    }
  }
  return '"' + escaped + '"';
}

void replaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

/// Reads the files of one folder and nothing else, and once they are read nothing at all.
class SchemaFiles final : public xml::XMLEntityResolver {
 public:
  SchemaFiles(std::string folder, SchemaNamespaces namespaces)
      : m_folder(std::move(folder)), m_namespaces(std::move(namespaces)) {}

  std::unique_ptr<xml::InputSource> open(const std::string& name) const {
    std::string text = readFile(m_folder + "/" + name);
    replaceAll(text, inAttribute(DXMD_QUERY_SERVICE_NAMESPACE), inAttribute(m_namespaces.queryService));
    replaceAll(text, inAttribute(DXMD_SERVICE_BUS_NAMESPACE), inAttribute(m_namespaces.serviceBus));
    return copiedSourceOf(text, name.c_str());
  }

  void close() { m_isClosed = true; }

  /// @return null to load nothing. What schemas include is in the folder "common".
  xml::InputSource* resolveEntity(xml::XMLResourceIdentifier* resource) override {
    if (m_isClosed || resource->getSchemaLocation() == nullptr) return nullptr;
    const std::string location = toUtf8(resource->getSchemaLocation());
    return open("common/" + location.substr(location.rfind('/') + 1)).release();
  }

 private:
  std::string m_folder;
  SchemaNamespaces m_namespaces;
  bool m_isClosed = false;
};

/// What a value of that type is, where it is not what it must be.
std::string refusalOf(const xml::DatatypeValidator* type, unsigned code) {
  if (code == xml::XMLExcepts::VALUE_NotIn_Enumeration && type != nullptr && type->getEnumString() != nullptr) {
    std::vector<std::string> texts;
    const xml::RefArrayVectorOf<XMLCh>& allowed = *type->getEnumString();
    for (XMLSize_t i = 0; i < allowed.size(); ++i) texts.push_back('"' + toUtf8(allowed.elementAt(i)) + '"');
    return "must be " + joined(texts, ", ", " or ");
  }
  if (code == xml::XMLExcepts::VALUE_LT_minLen) return "must not be empty";
  return "has a value that does not fit its type";
}

/// A message of the validator without what it quotes, which may be a secret, and may have quotes of its own.
std::string withoutQuoted(std::string message) {
  const std::size_t first = message.find('\'');
  if (first != std::string::npos) message.replace(first + 1, message.rfind('\'') - first - 1, "...");
  return message;
}

/// The validator, which also tells what it looks at: its errors do not.
class Validator final : public xml::SchemaValidator {
 public:
  /// What did not fit a content model.
  struct Content {
    bool fits = true;
    XMLSize_t children = 0;
    XMLSize_t failing = 0;  ///< the child that does not belong; their number when one is missing
    std::string model;
  };

  const Content& content() const { return m_content; }
  /// The attribute that is validated; null for the text of an element.
  const xml::SchemaAttDef* attribute() const { return m_attribute; }

  bool checkContent(xml::XMLElementDecl* const declaration, xml::QName** const children, XMLSize_t count,
                    XMLSize_t* failing) override {
    m_content = {xml::SchemaValidator::checkContent(declaration, children, count, failing), count, 0, {}};
    if (m_content.fits) return true;
    m_content.failing = *failing;
    m_content.model = toUtf8(declaration->getFormattedContentModel());
    return false;
  }

  void validateAttrValue(const xml::XMLAttDef* definition, const XMLCh* const value, bool isEarly,
                         const xml::XMLElementDecl* declaration) override {
    m_attribute = static_cast<const xml::SchemaAttDef*>(definition);
    xml::SchemaValidator::validateAttrValue(definition, value, isEarly, declaration);
    m_attribute = nullptr;
  }

 private:
  Content m_content;
  const xml::SchemaAttDef* m_attribute = nullptr;
};

/// An element that the reader is in.
struct OpenElement {
  std::size_t number;
  std::string name;
  bool isUnknown;                            ///< nothing is known of what belongs into it
  std::vector<std::size_t> children = {};    ///< their numbers
  std::vector<std::size_t> undeclared = {};  ///< of the children those that its type has not at all
};

/// Reads schemas, then documents, and collects what does not fit.
class Reader final : public xml::SAX2XMLReaderImpl {
 public:
  explicit Reader(xml::XMLGrammarPool* pool) : xml::SAX2XMLReaderImpl(xml::XMLPlatformUtils::fgMemoryManager, pool) {
    // Another scanner gives up at the first element of a namespace without a schema.
    setProperty(xml::XMLUni::fgXercesScannerName, const_cast<XMLCh*>(xml::XMLUni::fgSGXMLScanner));
    // It finds a schema without a namespace by a name for it alone, whatever that is.
    setProperty(xml::XMLUni::fgXercesSchemaExternalNoNameSpaceSchemaLocation,
                const_cast<XMLCh*>(xml::XMLUni::fgXMLString));
    setErrorHandler(&m_nobody);
    setContentHandler(&m_nobody);
    setFeature(xml::XMLUni::fgSAX2CoreValidation, true);
    setFeature(xml::XMLUni::fgXercesDynamic, false);
    setFeature(xml::XMLUni::fgXercesSchema, true);
    setFeature(xml::XMLUni::fgXercesSchemaFullChecking, true);
    setFeature(xml::XMLUni::fgXercesUseCachedGrammarInParse, true);
    setFeature(xml::XMLUni::fgXercesLoadSchema, false);
    setFeature(xml::XMLUni::fgXercesLoadExternalDTD, false);
    setFeature(xml::XMLUni::fgXercesDisableDefaultEntityResolution, true);
  }

  /// @return what is wrong with the schema; empty when nothing is.
  std::string load(const xml::InputSource& schema) {
    const xml::Grammar* const grammar = loadGrammar(schema, xml::Grammar::SchemaGrammarType, true);
    if (grammar == nullptr && m_schemaError.empty()) m_schemaError = "it has no content";
    if (grammar != nullptr) m_namespace = toUtf8(grammar->getTargetNamespace());
    // Only now: it can read no schemas. The reader says that it adopts it, and never deletes it.
    m_validator = std::make_unique<Validator>();
    setValidator(m_validator.get());
    return m_schemaError;
  }

  std::vector<Misfit> read(const xml::InputSource& document) {
    m_misfits.clear();
    m_open.clear();
    m_started = 0;
    m_isUnknown = false;
    parse(document);
    std::stable_sort(m_misfits.begin(), m_misfits.end(),
                     [](const Misfit& one, const Misfit& other) { return one.element < other.element; });
    return std::move(m_misfits);
  }

  // From the scanner. It reports errors of a start tag in front of it, those of content in front of the end, and an end
  // for empty elements too.

  void startElement(const xml::XMLElementDecl& declaration, unsigned int uri, const XMLCh* const prefix,
                    const xml::RefVectorOf<xml::XMLAttr>&, XMLSize_t, bool, bool) override {
    const std::string local = toUtf8(declaration.getBaseName());
    if (m_open.empty()) startRoot(toUtf8(getURIText(uri)));
    const bool isUnknown = m_isUnknown || isInUnknown();
    if (!m_open.empty()) m_open.back().children.push_back(m_started);
    m_open.push_back({m_started, *prefix == 0 ? local : toUtf8(prefix) + ":" + local, isUnknown});
    m_isUnknown = false;
    ++m_started;
  }

  void endElement(const xml::XMLElementDecl&, unsigned int, bool, const XMLCh* const) override {
    for (const std::size_t child : m_open.back().undeclared) add(child, kMisplaced);
    m_open.pop_back();
  }

  void error(unsigned int code, const XMLCh* const domain, xml::XMLErrorReporter::ErrTypes, const XMLCh* const text,
             const XMLCh* const, const XMLCh* const, XMLFileLoc, XMLFileLoc) override {
    if (m_validator == nullptr && m_schemaError.empty()) m_schemaError = toUtf8(text);
    if (m_validator == nullptr || isInUnknown()) return;
    if (xml::XMLString::equals(domain, xml::XMLUni::fgValidityDomain))
      addValidity(static_cast<xml::XMLValid::Codes>(code), toUtf8(text));
    else if (xml::XMLString::equals(domain, xml::XMLUni::fgExceptDomain))
      addDatatype(code);
    else if (code == xml::XMLErrs::UnknownPrefix)
      add(m_started, "the prefix " + quoted(toUtf8(text)) + " is not declared");
    else
      add(m_started, withoutQuoted(toUtf8(text)));
  }

 private:
  static constexpr const char* kMisplaced = "does not belong here";

  bool isInUnknown() const { return !m_open.empty() && m_open.back().isUnknown; }

  /// The number of the element whose content is validated.
  std::size_t current() const { return m_open.empty() ? 0 : m_open.back().number; }

  void add(std::size_t element, const std::string& reason) { m_misfits.push_back({element, reason}); }

  void addValidity(xml::XMLValid::Codes code, const std::string& text) {
    switch (code) {
      case xml::XMLValid::ElementNotDefined:
      case xml::XMLValid::ElementNotQualified:
      case xml::XMLValid::ElementNotUnQualified:
        m_isUnknown = true;
        if (m_open.empty()) return add(0, "is not the root element that its schema has");
        return m_open.back().undeclared.push_back(m_started);
      case xml::XMLValid::GrammarNotFound:  // for the namespace of the type
      case xml::XMLValid::BadXsiType:
      case xml::XMLValid::NonDerivedXsiType:
      case xml::XMLValid::NoAbstractInXsiType:
        m_isUnknown = true;
        return add(m_started, "\"xsi:type\" names no type that it may have");
      case xml::XMLValid::RequiredAttrNotProvided:
        return add(m_started, "the attribute " + quoted(text) + " is missing");
      case xml::XMLValid::AttNotDefinedForElement:
        return add(m_started, "has no attribute " + quoted(text));
      case xml::XMLValid::NotSameAsFixedValue:
        return add(m_started, "the attribute " + quoted(text) + " must be " + lastQuoted(text));
      case xml::XMLValid::ElementNotValidForContent:
      case xml::XMLValid::NotEnoughElemsForCM:
      case xml::XMLValid::EmptyNotValidForContent:
        return addContent();
      case xml::XMLValid::NoCharDataInCM:
        return add(current(), "holds text, where only elements may stand");
      case xml::XMLValid::FixedDifferentFromActual:
        return add(current(), "has another text than it must have");
      default:
        return add(current(), withoutQuoted(text));
    }
  }

  /// Xerces-C may not mind the namespace of a root whose name it knows.
  void startRoot(const std::string& uri) {
    if (uri == m_namespace) return;
    const auto named = [](const std::string& name) {
      return name.empty() ? "no namespace" : "namespace " + inQuotes(name);
    };
    m_misfits = {{0, "is in " + named(uri) + ", and must be in " + named(m_namespace)}};
    m_isUnknown = true;
  }

  void addContent() {
    const Validator::Content& content = m_validator->content();
    OpenElement& parent = m_open.back();
    const std::string model = content.model == "EMPTY" ? "is empty" : "holds " + content.model;
    if (content.failing >= parent.children.size()) return add(parent.number, "is not complete: it " + model);
    const std::size_t child = parent.children[content.failing];
    std::vector<std::size_t>& undeclared = parent.undeclared;
    undeclared.erase(std::remove(undeclared.begin(), undeclared.end(), child), undeclared.end());
    add(child, std::string(kMisplaced) + ": " + inQuotes(parent.name) + " " + model);
  }

  void addDatatype(unsigned code) {
    const xml::SchemaAttDef* const attribute = m_validator->attribute();
    if (attribute == nullptr) return add(current(), refusalOf(m_validator->getCurrentDatatypeValidator(), code));
    const std::string name = toUtf8(attribute->getAttName()->getLocalPart());
    add(m_started, "the attribute " + inQuotes(name) + " " + refusalOf(attribute->getDatatypeValidator(), code));
  }

  /// The name in a message of the validator: what it quotes first.
  static std::string quoted(const std::string& message) {
    const std::size_t begin = message.find('\'') + 1;
    return inQuotes(message.substr(begin, message.find('\'', begin) - begin));
  }

  /// The value that the schema requires: what the message quotes last.
  static std::string lastQuoted(const std::string& message) {
    const std::size_t end = message.rfind('\'');
    const std::size_t begin = message.rfind('\'', end - 1) + 1;
    return inQuotes(message.substr(begin, end - begin));
  }

  std::unique_ptr<Validator> m_validator;
  xml::DefaultHandler m_nobody;  ///< without handlers the scanner reports nothing
  std::string m_schemaError;
  std::string m_namespace;  ///< that the schema is for
  std::vector<Misfit> m_misfits;
  std::vector<OpenElement> m_open;
  bool m_isUnknown = false;   ///< whether nothing is known of the element that starts next
  std::size_t m_started = 0;  ///< the number of the element that starts next
};

}  // namespace

class SchemaValidator::Engine {
 public:
  Engine(const std::string& folder, const std::string& schema, const SchemaNamespaces& namespaces)
      : m_files(folder, namespaces), m_reader(&m_pool) {
    const std::string name = schema + ".xsd";
    m_reader.setXMLEntityResolver(&m_files);
    const std::string error = m_reader.load(*m_files.open(name));
    if (!error.empty()) throw ToolError(kStatusFile, folder + "/" + name + ": no schema: " + error);
    m_files.close();
    m_pool.lockPool();
  }

  std::vector<Misfit> validate(const std::string& document) { return m_reader.read(*sourceOf(document, "document")); }

 private:
  Platform m_platform;
  SchemaFiles m_files;
  xml::XMLGrammarPoolImpl m_pool;
  Reader m_reader;
};

SchemaValidator::SchemaValidator(const std::string& folder, const std::string& schema,
                                 const SchemaNamespaces& namespaces)
    : m_engine(withStandardExceptions([&] { return std::make_unique<Engine>(folder, schema, namespaces); })) {}

SchemaValidator::~SchemaValidator() = default;

std::vector<Misfit> SchemaValidator::validate(const std::string& document) {
  return withStandardExceptions([&] { return m_engine->validate(document); });
}

}  // namespace dxmd_tool
