#ifndef TRNIDOM_SCANNER_H
#define TRNIDOM_SCANNER_H

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/framework/XMLDocumentHandler.hpp>
#include <xercesc/framework/XMLErrorReporter.hpp>
#include <xercesc/sax/InputSource.hpp>

namespace trnidom_detail {

/// Scans a document and tells the handler of each element, attribute and text. Nothing but the source is read.
///
/// There are two implementations, which the build option TRNIDOM_PUBLIC_XERCES chooses between: Scanner.cpp is
/// Xerces-C's well-formedness scanner, ScannerPublic.cpp its parser by the public interface.
/// @throws TRNIDOM_ParseError for a DOCTYPE; whatever handler and reporter throw.
void scan(const xercesc::InputSource& source, xercesc::XMLDocumentHandler& handler, xercesc::XMLErrorReporter& reporter,
          xercesc::MemoryManager& memory);

/// Why a document with a DOCTYPE is refused.
inline constexpr const char* kDoctypeRefused = "a document type declaration is not allowed";

}  // namespace trnidom_detail

#endif
