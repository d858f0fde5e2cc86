#include "text/Text.h"

#include <cstdint>
#include <cstring>

namespace trnidom_detail {

// Four code units at a time, and once more the last four.
bool hasNul(Text text) noexcept {
  constexpr std::uint64_t kOnes = 0x0001000100010001;
  constexpr std::size_t kUnits = sizeof(kOnes) / sizeof(char16_t);
  if (text.size() < kUnits) {
    for (const char16_t unit : text)
      if (unit == 0) return true;
    return false;
  }
  std::uint64_t found = 0;
  const auto look = [&found](const char16_t* at) {
    std::uint64_t units;
    std::memcpy(&units, at, sizeof units);
    found |= (units - kOnes) & ~units;
  };
  const char16_t* const last = text.data() + text.size() - kUnits;
  for (const char16_t* at = text.data(); at < last; at += kUnits) look(at);
  look(last);
  return (found & kOnes << 15) != 0;
}

}  // namespace trnidom_detail
