#ifndef TOOLS_DXMD_HELP_BASHCOMPLETION_H
#define TOOLS_DXMD_HELP_BASHCOMPLETION_H

#include <string>

#include <tools/dxmd/help/Grammar.h>

namespace dxmd_tool {

/// The script that has bash, of version 4 or later, complete the program's verbs, kinds, options and their values. It
/// needs nothing else to be loaded.
std::string bashCompletion(const GrammarCommand& program);

}  // namespace dxmd_tool

#endif
