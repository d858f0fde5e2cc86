// Scanning with Xerces-C's well-formedness scanner, the fastest it has; see Scanner.h.

#include <trnidom/TRNIDOM_ParseError.h>
#include <xercesc/internal/WFXMLScanner.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>

#include "Scanner.h"

namespace trnidom_detail {

namespace {

class Scanner final : public xercesc::WFXMLScanner {
 public:
  using WFXMLScanner::WFXMLScanner;

 private:
  /// The scanner would skip it. "<!DOCTYPE" has been read by now.
  void scanDocTypeDecl() override {
    const XMLFileLoc length = xercesc::XMLString::stringLen(xercesc::XMLUni::fgDocTypeString);
    throw TRNIDOM_ParseError(static_cast<std::size_t>(getLocator()->getLineNumber()),
                             static_cast<std::size_t>(getLocator()->getColumnNumber() - length), kDoctypeRefused);
  }
};

}  // namespace

void scan(const xercesc::InputSource& source, xercesc::XMLDocumentHandler& handler, xercesc::XMLErrorReporter& reporter,
          xercesc::MemoryManager& memory) {
  xercesc::GrammarResolver grammars(nullptr, &memory);
  Scanner scanner(&handler, nullptr, nullptr, &reporter, nullptr, &grammars, &memory);
  scanner.setURIStringPool(grammars.getStringPool());
  scanner.setDoNamespaces(false);
  scanner.scanDocument(source);
}

}  // namespace trnidom_detail
