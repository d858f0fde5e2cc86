#include "Kind.h"

#include <utility>

#include <tools/dxmd/json/Json.h>

namespace dxmd_tool {

Decoded::Decoded(Json json) : m_json(std::make_shared<Json>(std::move(json))) {}

Decoded::Decoded(TRNIDOM_Element element) : m_element(std::move(element)) {}

Decoded::Decoded(std::string text) : m_text(std::move(text)) {}

Decoded::Decoded(Print print) : m_print(std::move(print)) {}

std::optional<std::string> KindOptions::value(const std::string& name) const {
  const auto found = m_values.find(name);
  if (found == m_values.end()) return std::nullopt;
  return found->second;
}

Decoded runDecoded(const std::function<void(Shape&)>& run) {
  Json json = Json::object();
  runWriter(json, run);
  return json;
}

}  // namespace dxmd_tool
