#ifndef TOOLS_DXMD_JSON_QUOTE_H
#define TOOLS_DXMD_JSON_QUOTE_H

#include <string>

namespace dxmd_tool {

/// The text between quotes for an error text: on one line, without secrets, cut when long.
std::string inQuotes(const std::string& text);

}  // namespace dxmd_tool

#endif
