#ifndef TOOLS_DXMD_KINDS_FAMILIES_H
#define TOOLS_DXMD_KINDS_FAMILIES_H

#include <vector>

#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

// The kinds of each family of helpers, in the order they are listed. Each function stands in the file of its name.

std::vector<Kind> modelActionsKinds();

}  // namespace dxmd_tool

#endif
