#include "text/SipHash.h"

#include <exception>
#include <random>

namespace trnidom_detail {

const SipHash::Key& SipHash::key() noexcept {
  static const Key theKey = [] {
    // Where the system has nothing at random to give, an address must do.
    std::uint64_t words[2] = {reinterpret_cast<std::uintptr_t>(&theKey), 0x9E3779B97F4A7C15};
    try {
      std::random_device random;
      for (std::uint64_t& word : words) word ^= std::uint64_t{random()} << 32 | random();
    } catch (const std::exception&) {
    }
    return Key{words[0], words[1]};
  }();
  return theKey;
}

}  // namespace trnidom_detail
