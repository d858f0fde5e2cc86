#ifndef TOOLS_DXMD_JSON_JSONFWD_H
#define TOOLS_DXMD_JSON_JSONFWD_H

#include <nlohmann/json_fwd.hpp>

namespace dxmd_tool {

/// JSON whose members keep their order.
using Json = nlohmann::ordered_json;

}  // namespace dxmd_tool

#endif
