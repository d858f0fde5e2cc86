// Scanning through Xerces-C's public interface; see Scanner.h.

#include <trnidom/TRNIDOM_ParseError.h>
#include <xercesc/parsers/SAXParser.hpp>
#include <xercesc/sax/HandlerBase.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "Scanner.h"

namespace trnidom_detail {

namespace {

class Parser final : public xercesc::SAXParser {
 public:
  Parser(xercesc::XMLDocumentHandler& handler, xercesc::XMLErrorReporter& reporter, xercesc::MemoryManager& memory)
      : SAXParser(nullptr, &memory), m_reporter(reporter) {
    useScanner(xercesc::XMLUni::fgDGXMLScanner);
    setDoNamespaces(false);
    setValidationScheme(Val_Never);
    setLoadExternalDTD(false);
    setDisableDefaultEntityResolution(true);
    setErrorHandler(&m_place);  // without one, errors are not reported
    setDTDHandler(&m_place);    // without one, a DOCTYPE is not reported
    setDocumentHandler(&m_place);
    installAdvDocHandler(&handler);
  }

  void doctypeDecl(const xercesc::DTDElementDecl&, const XMLCh* const, const XMLCh* const, const bool,
                   const bool) override {
    throw TRNIDOM_ParseError(static_cast<std::size_t>(m_place.locator->getLineNumber()),
                             static_cast<std::size_t>(m_place.locator->getColumnNumber()), kDoctypeRefused);
  }

  void error(const unsigned int code, const XMLCh* const domain, const XMLErrorReporter::ErrTypes type,
             const XMLCh* const text, const XMLCh* const systemId, const XMLCh* const publicId, const XMLFileLoc line,
             const XMLFileLoc column) override {
    m_reporter.error(code, domain, type, text, systemId, publicId, line, column);
  }

 private:
  /// Remembers where the parser stands.
  struct Place final : xercesc::HandlerBase {
    void setDocumentLocator(const xercesc::Locator* const theLocator) override { locator = theLocator; }
    const xercesc::Locator* locator = nullptr;
  };

  xercesc::XMLErrorReporter& m_reporter;
  Place m_place;
};

}  // namespace

void scan(const xercesc::InputSource& source, xercesc::XMLDocumentHandler& handler, xercesc::XMLErrorReporter& reporter,
          xercesc::MemoryManager& memory) {
  Parser parser(handler, reporter, memory);
  parser.parse(source);
}

}  // namespace trnidom_detail
