#include "Kind.h"

namespace dxmd_tool {

std::optional<std::string> KindOptions::value(const std::string& name) const {
  const auto found = m_values.find(name);
  if (found == m_values.end()) return std::nullopt;
  return found->second;
}

}  // namespace dxmd_tool
