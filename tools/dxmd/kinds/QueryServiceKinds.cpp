#include "QueryServiceKinds.h"

#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

std::vector<Kind> queryServiceKinds() {
  return {dataSourceFaultKind(), parameterValueItemKind()};
}

}  // namespace dxmd_tool
