#include "Description.h"

namespace dxmd_tool {

const DescribedKey* DescribedRecord::find(std::string_view name) const {
  for (const DescribedKey& key : keys)
    if (key.name == name) return &key;
  return nullptr;
}

}  // namespace dxmd_tool
