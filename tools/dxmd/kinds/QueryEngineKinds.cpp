#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

std::vector<Kind> queryEngineKinds() {
  return {};
}

}  // namespace dxmd_tool
