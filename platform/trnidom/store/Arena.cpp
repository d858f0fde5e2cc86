#include "store/Arena.h"

#include <algorithm>
#include <limits>
#include <new>

#include "store/BlockCache.h"

namespace trnidom_detail {

/// The head of a block; what is allocated follows it.
struct Arena::Block {
  Block* next;
  std::size_t size;  // head included
};

Arena::~Arena() {
  while (Block* block = m_blocks) {
    m_blocks = block->next;
    blocks::giveBack(block, block->size);
  }
}

// What would take much of a block has one of its own, so that the rest of the open one is not lost.
void* Arena::allocateInNewBlock(std::size_t size) {
  static_assert(sizeof(Block) % kAlignment == 0);
  if (size > std::numeric_limits<std::size_t>::max() - kLastSize) throw std::bad_alloc();
  if (size > m_nextSize / 4) return addBlock(sizeof(Block) + size) + 1;
  Block* block = addBlock(m_nextSize);
  m_at = reinterpret_cast<unsigned char*>(block + 1);
  m_end = reinterpret_cast<unsigned char*>(block) + m_nextSize;
  m_nextSize = std::min(m_nextSize * 2, kLastSize);
  return allocate(size);
}

Arena::Block* Arena::addBlock(std::size_t size) {
  m_blocks = new (blocks::take(size)) Block{m_blocks, size};
  return m_blocks;
}

}  // namespace trnidom_detail
