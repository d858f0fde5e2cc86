#ifndef TOOLS_DXMD_JSON_SECRETNAMES_H
#define TOOLS_DXMD_JSON_SECRETNAMES_H

#include <string_view>

namespace dxmd_tool {

/// Whether a value under that name is a secret: one in which "password", "passwd", "pwd", "passport" or "ticket"
/// occurs, in whatever case.
bool isSecretName(std::string_view name);

}  // namespace dxmd_tool

#endif
