#ifndef TOOLS_DXMD_REGISTRY_H
#define TOOLS_DXMD_REGISTRY_H

#include <string>
#include <vector>

#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

/// Every kind, family by family.
const std::vector<Kind>& allKinds();

/// The kind of that name, in whatever case.
/// @throws ToolError (usage) that lists the kinds.
const Kind& findKind(const std::string& name);

}  // namespace dxmd_tool

#endif
