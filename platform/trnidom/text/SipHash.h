#ifndef TRNIDOM_TEXT_SIPHASH_H
#define TRNIDOM_TEXT_SIPHASH_H

#include <cstddef>
#include <cstdint>

#include "text/Text.h"

namespace trnidom_detail {

/// SipHash-1-3 of UTF-16, keyed by what this process drew at random, so that nobody can make texts that collide. Texts
/// added one after the other hash as their concatenation.
class SipHash {
 public:
  SipHash() noexcept : SipHash(key()) {}

  void add(Text text) noexcept {
    const char16_t* at = text.data();
    std::size_t left = text.size();
    m_length += left;
    for (; m_filled != 0 && left != 0; --left) addUnit(*at++);
    for (; left >= kUnits; left -= kUnits, at += kUnits) {
      mix(at[0] | std::uint64_t{at[1]} << 16 | std::uint64_t{at[2]} << 32 | std::uint64_t{at[3]} << 48);
    }
    for (; left != 0; --left) addUnit(*at++);
  }

  /// Adds a number; texts before it and after it do not run together.
  void add(std::size_t number) noexcept {
    flush();
    mix(number);
  }

  std::size_t value() noexcept {
    flush();
    mix(m_length);
    m_v2 ^= 0xFF;
    for (int i = 0; i < 3; ++i) round();
    return static_cast<std::size_t>(m_v0 ^ m_v1 ^ m_v2 ^ m_v3);
  }

 private:
  struct Key {
    std::uint64_t first;
    std::uint64_t second;
  };

  static constexpr std::size_t kUnits = sizeof(std::uint64_t) / sizeof(char16_t);

  /// Drawn on first use.
  static const Key& key() noexcept;

  explicit SipHash(const Key& key) noexcept
      : m_v0(key.first ^ 0x736F6D6570736575),
        m_v1(key.second ^ 0x646F72616E646F6D),
        m_v2(key.first ^ 0x6C7967656E657261),
        m_v3(key.second ^ 0x7465646279746573) {}

  static std::uint64_t rotated(std::uint64_t value, unsigned bits) noexcept {
    return value << bits | value >> (64 - bits);
  }

  void round() noexcept {
    m_v0 += m_v1;
    m_v2 += m_v3;
    m_v1 = rotated(m_v1, 13) ^ m_v0;
    m_v3 = rotated(m_v3, 16) ^ m_v2;
    m_v0 = rotated(m_v0, 32);
    m_v2 += m_v1;
    m_v0 += m_v3;
    m_v1 = rotated(m_v1, 17) ^ m_v2;
    m_v3 = rotated(m_v3, 21) ^ m_v0;
    m_v2 = rotated(m_v2, 32);
  }

  void mix(std::uint64_t word) noexcept {
    m_v3 ^= word;
    round();
    m_v0 ^= word;
  }

  void addUnit(char16_t unit) noexcept {
    m_tail |= std::uint64_t{unit} << (16 * m_filled);
    if (++m_filled == kUnits) flush();
  }

  void flush() noexcept {
    if (m_filled == 0) return;
    mix(m_tail);
    m_tail = 0;
    m_filled = 0;
  }

  std::uint64_t m_v0;
  std::uint64_t m_v1;
  std::uint64_t m_v2;
  std::uint64_t m_v3;
  std::uint64_t m_tail = 0;
  std::size_t m_filled = 0;
  std::size_t m_length = 0;
};

}  // namespace trnidom_detail

#endif
