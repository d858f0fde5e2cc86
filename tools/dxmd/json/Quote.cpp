#include "Quote.h"

#include <algorithm>
#include <cstddef>

#include <tools/dxmd/json/Json.h>

namespace dxmd_tool {

std::string inQuotes(const std::string& text) {
  constexpr std::size_t kLongest = 60;
  std::size_t end = std::min(text.size(), kLongest);
  while (end < text.size() && end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  const std::string shown = text.substr(0, end) + (end < text.size() ? "..." : "");
  return Json(shown).dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace dxmd_tool
