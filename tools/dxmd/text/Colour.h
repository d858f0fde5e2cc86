#ifndef TOOLS_DXMD_TEXT_COLOUR_H
#define TOOLS_DXMD_TEXT_COLOUR_H

#include <string>
#include <string_view>

namespace dxmd_tool {

/// JSON in a terminal's colours: keys, texts, and other values. A part of JSON will do that cuts no string, and no key
/// from its colon.
std::string coloured(std::string_view json);

}  // namespace dxmd_tool

#endif
