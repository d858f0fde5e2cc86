#include "Quote.h"

#include <algorithm>
#include <cstddef>

#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/text/Escape.h>

namespace dxmd_tool {

std::string inQuotes(const std::string& text) {
  constexpr std::size_t kLongest = 60;
  // A secret may go on behind the cut, but what is far behind it cannot matter.
  const std::string masked = shownText(text.substr(0, 8 * kLongest));
  std::size_t end = std::min(masked.size(), kLongest);
  while (end < masked.size() && end > 0 && (static_cast<unsigned char>(masked[end]) & 0xC0) == 0x80) --end;
  std::string quoted;
  appendJsonString(quoted, masked.substr(0, end) + (end < masked.size() ? "..." : ""));
  return quoted;
}

}  // namespace dxmd_tool
