#ifndef TOOLS_DXMD_JSON_JSONPARSER_H
#define TOOLS_DXMD_JSON_JSONPARSER_H

#include <string>

#include <tools/dxmd/json/Json.h>

namespace dxmd_tool {

/// Parses JSON. A key that an object has twice, and more than `kMaxJsonDepth` levels, are refused.
/// @param source  names the text in errors, which never show any of it but keys.
/// @throws JsonError
Json parseJson(const std::string& text, const std::string& source);

}  // namespace dxmd_tool

#endif
