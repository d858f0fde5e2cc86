#ifndef TOOLS_DXMD_JSON_JSON_H
#define TOOLS_DXMD_JSON_JSON_H

#include <cstddef>

#include <trn/I18NString.h>
#include <nlohmann/json.hpp>

#include <tools/dxmd/json/JsonFwd.h>

namespace dxmd_tool {

/// JSON nested deeper is refused, on reading and on writing: the functions that walk it recurse.
constexpr std::size_t kMaxJsonDepth = 500;

}  // namespace dxmd_tool

/// A text as a JSON value, so that `json["name"] = helper.GetName()` is all it takes; lists of texts follow.
template <typename BasicJson>
void to_json(BasicJson& json, const I18NString& text) {
  json = text.toUtf8();
}

#endif
