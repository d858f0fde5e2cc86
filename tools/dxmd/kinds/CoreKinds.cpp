#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

std::vector<Kind> coreKinds() {
  return {};
}

}  // namespace dxmd_tool
