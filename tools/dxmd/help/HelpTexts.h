#ifndef TOOLS_DXMD_HELP_HELPTEXTS_H
#define TOOLS_DXMD_HELP_HELPTEXTS_H

#include <string>
#include <vector>

#include <tools/dxmd/ToolError.h>

namespace dxmd_tool {

// What help and manual page say beside the grammar. A line break is where help breaks the line.

/// What an exit status means.
struct StatusText {
  Status status;
  const char* meaning;
};

const std::vector<StatusText>& statusTexts();

extern const char* const kInputText;
extern const char* const kSecretsText;

/// Command lines to begin with.
const std::vector<const char*>& exampleTexts();

/// What the program's help ends with: all of these.
std::string helpFooter();

}  // namespace dxmd_tool

#endif
