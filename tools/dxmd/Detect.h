#ifndef TOOLS_DXMD_DETECT_H
#define TOOLS_DXMD_DETECT_H

#include <string>
#include <vector>

#include <trnidom/TRNIDOM_Element.h>

#include <tools/dxmd/Input.h>
#include <tools/dxmd/Kind.h>

// What kind of message a document is.

namespace dxmd_tool {

/// Whether some kind has that root, or a fault of SOAP.
bool isMessageName(const std::string& name);

/// The kinds that the document is of: by its root, by the command that it wraps, and by what it holds where several
/// kinds have its root or none has. An empty document of a root that several kinds have may be any of these.
std::vector<const Kind*> kindsOf(const TRNIDOM_Element& root);

/// The kind that the document is of. That a reply reports errors beside what it holds makes no other kind of it.
/// @param name  of the file.
/// @throws ToolError (unfit) when there is none, or several, which it lists; (reported) for a fault that no kind reads.
const Kind& kindOf(const TRNIDOM_Element& root, const std::string& name);

/// The kind of the message in a document that is read for it.
/// @param exact  whether all that is around the message counts.
/// @throws ToolError
const Kind& kindIn(const Input& input, bool exact);

/// Refuses a document that is not of the kind, and says what it is.
/// @throws ToolError (unfit), or (reported) when it is a reply that reports errors.
void checkKind(const Kind& kind, const TRNIDOM_Element& root, const std::string& name);

/// The errors that a reply reports, as one line without secrets; empty when there are none.
std::string errorsReportedBy(const TRNIDOM_Element& root);

}  // namespace dxmd_tool

#endif
