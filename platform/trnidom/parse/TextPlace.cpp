#include "parse/TextPlace.h"

#include <cstdint>

namespace trnidom_detail {

namespace {

/// The number of bytes that the predicate holds for. Counts by blocks in a byte, which the compiler turns into vector
/// instructions.
template <typename Predicate>
std::size_t countIf(std::string_view text, Predicate predicate) noexcept {
  constexpr std::size_t kBlock = 128;
  std::size_t count = 0;
  for (; text.size() >= kBlock; text.remove_prefix(kBlock)) {
    std::uint8_t inBlock = 0;
    for (std::size_t i = 0; i < kBlock; ++i)
      inBlock = static_cast<std::uint8_t>(inBlock + (predicate(text[i]) ? 1 : 0));
    count += inBlock;
  }
  for (const char byte : text) count += predicate(byte) ? 1 : 0;
  return count;
}

/// The number of CRs that no LF follows.
std::size_t countOfLoneCr(std::string_view text) noexcept {
  std::size_t count = 0;
  for (std::size_t at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at + 1))
    if (at + 1 == text.size() || text[at + 1] != '\n') ++count;
  return count;
}

std::size_t countOfCharacters(std::string_view text) noexcept {
  return countIf(text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; });
}

}  // namespace

void TextPlace::advance(std::string_view text) noexcept {
  if (text.empty()) return;
  const bool endsWithCr = text.back() == '\r';
  if (m_isAfterCr && text.front() == '\n') text.remove_prefix(1);
  m_isAfterCr = endsWithCr;

  const std::size_t ended = countIf(text, [](char byte) { return byte == '\n'; }) + countOfLoneCr(text);
  if (ended != 0) {
    m_line += ended;
    m_column = 1;
    text.remove_prefix(text.find_last_of("\r\n") + 1);
  }
  m_column += countOfCharacters(text);
}

}  // namespace trnidom_detail
