#ifndef TESTS_FUZZ_TARGET_H
#define TESTS_FUZZ_TARGET_H

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

// Each target's only function, called with one input after the other. An exception that leaves it is a finding.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace dxmd_fuzz {

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
  return std::string(reinterpret_cast<const char*>(data), size);
}

/// Makes a finding of what does not hold.
inline void require(bool holds, const std::string& what) {
  if (!holds) throw std::logic_error(what);
}

/// The bytes of an input as choices.
class Choices {
 public:
  Choices(const std::uint8_t* data, std::size_t size) : m_next(data), m_end(data + size) {}

  bool isEmpty() const { return m_next == m_end; }

  /// A number below `limit`, which is not 0; 0 when the bytes are used up.
  std::size_t operator()(std::size_t limit) {
    std::size_t number = 0;
    for (std::size_t most = limit - 1; most > 0 && m_next != m_end; most >>= 8) number = number << 8 | *m_next++;
    return number % limit;
  }

 private:
  const std::uint8_t* m_next;
  const std::uint8_t* m_end;
};

}  // namespace dxmd_fuzz

#endif
