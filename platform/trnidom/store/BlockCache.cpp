#include "store/BlockCache.h"

#include <array>
#include <cstdint>
#include <mutex>
#include <new>

#include <sys/mman.h>
#include <unistd.h>

// The address sanitizer is to see each document's memory come and go.
#if defined(__SANITIZE_ADDRESS__)
#define TRNIDOM_KEEPS_NO_BLOCKS
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TRNIDOM_KEEPS_NO_BLOCKS
#endif
#endif

namespace trnidom_detail::blocks {

namespace {

/// Blocks that documents gave back, by powers of two.
class Cache {
 public:
  void* take(std::size_t size) {
    if (const std::size_t shelf = shelfOf(size); shelf != kShelves) {
      const std::lock_guard<std::mutex> lock(m_mutex);
      if (Kept* kept = m_shelves[shelf]) {
        m_shelves[shelf] = kept->next;
        m_bytes -= size;
        return kept;
      }
    }
    void* block = ::operator new(size);
    if (size >= kLargeBlock) fill(block, size);
    return block;
  }

  void giveBack(void* block, std::size_t size) noexcept {
    if (const std::size_t shelf = shelfOf(size); shelf != kShelves) {
      const std::lock_guard<std::mutex> lock(m_mutex);
      if (m_bytes + size <= kLimit) {
        m_shelves[shelf] = new (block) Kept{m_shelves[shelf]};
        m_bytes += size;
        return;
      }
    }
    ::operator delete(block);
  }

 private:
  struct Kept {
    Kept* next;
  };

  static constexpr std::size_t kSmallest = std::size_t{4} << 10;
  static constexpr std::size_t kShelves = 9;  // 4 kB to 1 MB
  static constexpr std::size_t kLargeBlock = std::size_t{256} << 10;
#if defined(TRNIDOM_KEEPS_NO_BLOCKS)
  static constexpr std::size_t kLimit = 0;
#else
  static constexpr std::size_t kLimit = std::size_t{32} << 20;
#endif

  /// Blocks of another size go to the system.
  static std::size_t shelfOf(std::size_t size) noexcept {
    for (std::size_t shelf = 0; shelf != kShelves; ++shelf)
      if (size == kSmallest << shelf) return shelf;
    return kShelves;
  }

  /// Has the system back a new block with pages at once, which costs less than a fault for each: a document fills its
  /// blocks from end to end. Where that is not possible the pages come one by one.
  static void fill(void* block, std::size_t size) noexcept {
#if defined(MADV_POPULATE_WRITE)
    static const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t before = -reinterpret_cast<std::uintptr_t>(block) % page;
    if (size < before) return;
    madvise(static_cast<unsigned char*>(block) + before, (size - before) / page * page, MADV_POPULATE_WRITE);
#else
    static_cast<void>(block);
    static_cast<void>(size);
#endif
  }

  std::mutex m_mutex;
  std::array<Kept*, kShelves> m_shelves{};
  std::size_t m_bytes = 0;
};

/// Never destroyed: documents in static objects may outlive it otherwise.
Cache& cache() noexcept {
  alignas(Cache) static unsigned char place[sizeof(Cache)];
  static auto* const theCache = new (place) Cache;
  return *theCache;
}

}  // namespace

void* take(std::size_t size) {
  return cache().take(size);
}

void giveBack(void* block, std::size_t size) noexcept {
  cache().giveBack(block, size);
}

}  // namespace trnidom_detail::blocks
