#include "DocumentMemory.h"

#include <array>
#include <cstdint>
#include <mutex>
#include <new>
#include <utility>

#include <sys/mman.h>
#include <unistd.h>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

// The address sanitizer is to see each document's memory come and go.
#if defined(__SANITIZE_ADDRESS__)
#define TRNIDOM_KEEPS_NO_BLOCKS
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TRNIDOM_KEEPS_NO_BLOCKS
#endif
#endif

namespace trnidom_detail {

/// The head of every block; the caller's memory follows it.
struct alignas(std::max_align_t) DocumentMemory::Block {
  Block* previous;
  Block* next;
  std::size_t size;  // head included
};

namespace {

/// Blocks that documents gave back. They are kept by powers of two, which is how a document's heap grows.
class BlockStore {
 public:
  /// A block of at least that size, and the size it has; null when memory is exhausted.
  std::pair<void*, std::size_t> take(std::size_t size) noexcept {
    const std::size_t shelf = shelfOf(size);
    if (shelf == kShelves) return {::operator new(size, std::nothrow), size};
    size = sizeOf(shelf);
    {
      const std::lock_guard<std::mutex> lock(m_mutex);
      if (Kept* kept = m_shelves[shelf]) {
        m_shelves[shelf] = kept->next;
        m_bytes -= size;
        return {kept, size};
      }
    }
    void* block = ::operator new(size, std::nothrow);
    if (block != nullptr && size >= kLargeBlock) fill(block, size);
    return {block, size};
  }

  void giveBack(void* block, std::size_t size) noexcept {
    const std::size_t shelf = shelfOf(size);
    if (shelf != kShelves) {
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

  static constexpr std::size_t kSmallest = 0x4000;
  static constexpr std::size_t kShelves = 7;  // 16 KB to 1 MB
  static constexpr std::size_t kHeads = 64;   // room for the heads beside a power of two
  static constexpr std::size_t kLargeBlock = std::size_t{256} << 10;
#if defined(TRNIDOM_KEEPS_NO_BLOCKS)
  static constexpr std::size_t kLimit = 0;
#else
  static constexpr std::size_t kLimit = std::size_t{32} << 20;
#endif

  static constexpr std::size_t sizeOf(std::size_t shelf) noexcept {
    return (kSmallest << shelf) + kHeads;
  }

  /// Blocks far smaller than the smallest that is kept, or larger than the largest, go to the system.
  static std::size_t shelfOf(std::size_t size) noexcept {
    if (size <= kSmallest / 2) return kShelves;
    std::size_t shelf = 0;
    while (shelf != kShelves && size > sizeOf(shelf)) ++shelf;
    return shelf;
  }

  /// Has the system back a new block with pages at once, which costs less than a fault for each: a document fills its
  /// blocks from end to end. Where that is not possible the pages come one by one.
  static void fill(void* block, std::size_t size) noexcept {
#if defined(MADV_POPULATE_WRITE)
    static const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t before = -reinterpret_cast<std::uintptr_t>(block) % page;
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
BlockStore& store() noexcept {
  alignas(BlockStore) static unsigned char place[sizeof(BlockStore)];
  static auto* const theStore = new (place) BlockStore;
  return *theStore;
}

}  // namespace

DocumentMemory::~DocumentMemory() {
  while (Block* block = m_blocks) {
    m_blocks = block->next;
    store().giveBack(block, block->size);
  }
}

void* DocumentMemory::allocate(XMLSize_t size) {
  if (size > static_cast<std::size_t>(-1) - sizeof(Block)) throw xercesc::OutOfMemoryException();
  const auto [memory, total] = store().take(size + sizeof(Block));
  if (memory == nullptr) throw xercesc::OutOfMemoryException();
  auto* block = new (memory) Block{nullptr, m_blocks, total};
  if (m_blocks != nullptr) m_blocks->previous = block;
  m_blocks = block;
  return block + 1;
}

void DocumentMemory::deallocate(void* memory) {
  if (memory == nullptr) return;
  Block* block = static_cast<Block*>(memory) - 1;
  if (block->previous != nullptr)
    block->previous->next = block->next;
  else
    m_blocks = block->next;
  if (block->next != nullptr) block->next->previous = block->previous;
  store().giveBack(block, block->size);
}

xercesc::MemoryManager* DocumentMemory::getExceptionMemoryManager() {
  return xercesc::XMLPlatformUtils::fgMemoryManager;
}

}  // namespace trnidom_detail
