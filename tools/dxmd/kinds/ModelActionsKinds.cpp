#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

std::vector<Kind> modelActionsKinds() {
  return {};
}

}  // namespace dxmd_tool
