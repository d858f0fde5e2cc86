#ifndef TRNIDOM_STORE_ARENA_H
#define TRNIDOM_STORE_ARENA_H

#include <cstddef>

namespace trnidom_detail {

/// The memory of one document: taken from the end of a block, and given back as a whole.
///
/// Blocks grow from 8 kB to 1 MB. Those given back are kept for the next document, up to a limit in all.
class Arena {
 public:
  static constexpr std::size_t kAlignment = alignof(void*);

  /// @param first  memory to begin with, which stays the caller's.
  Arena(void* first, std::size_t size) noexcept
      : m_at(static_cast<unsigned char*>(first)), m_end(static_cast<unsigned char*>(first) + size) {}
  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;
  ~Arena();

  /// Memory of that size, aligned for pointers.
  /// @throws std::bad_alloc
  void* allocate(std::size_t size) {
    const std::size_t aligned = (size + kAlignment - 1) & ~(kAlignment - 1);
    if (aligned < size || aligned > static_cast<std::size_t>(m_end - m_at)) return allocateInNewBlock(size);
    unsigned char* const memory = m_at;
    m_at += aligned;
    return memory;
  }

 private:
  struct Block;

  void* allocateInNewBlock(std::size_t size);
  Block* addBlock(std::size_t size);

  unsigned char* m_at;
  unsigned char* m_end;
  Block* m_blocks = nullptr;
  std::size_t m_nextSize = kFirstSize;

  static constexpr std::size_t kFirstSize = std::size_t{8} << 10;
  static constexpr std::size_t kLastSize = std::size_t{1} << 20;
};

}  // namespace trnidom_detail

#endif
