#include "Titled.h"

namespace dxmd_fuzz {

Titled titled(const std::string& input) {
  const std::size_t end = input.find('\n');
  return {input.substr(0, end), end != std::string::npos ? input.substr(end + 1) : ""};
}

}  // namespace dxmd_fuzz
