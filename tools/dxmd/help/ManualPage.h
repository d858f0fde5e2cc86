#ifndef TOOLS_DXMD_HELP_MANUALPAGE_H
#define TOOLS_DXMD_HELP_MANUALPAGE_H

#include <string>

#include <tools/dxmd/help/Grammar.h>

namespace dxmd_tool {

/// The manual page of the program, in the macros of man(7), with each verb, option, kind and exit status.
std::string manualPage(const GrammarCommand& program, const std::string& version);

}  // namespace dxmd_tool

#endif
