#ifndef TRNIDOM_DOCUMENTMEMORY_H
#define TRNIDOM_DOCUMENTMEMORY_H

#include <cstddef>

#include <xercesc/framework/MemoryManager.hpp>

namespace trnidom_detail {

/// All memory of one document, or of one parser at work.
///
/// Whatever is still allocated when it goes is given back then, without a walk over the tree and whatever state an
/// exception left the DOM in. Blocks come from a store that all threads share, which keeps what is given back up to a
/// limit, so that documents made one after the other do not map and unmap the same memory each time.
class DocumentMemory final : public xercesc::MemoryManager {
 public:
  DocumentMemory() noexcept = default;
  ~DocumentMemory() override;

  DocumentMemory(const DocumentMemory&) = delete;
  DocumentMemory& operator=(const DocumentMemory&) = delete;

  /// @throws xercesc::OutOfMemoryException
  void* allocate(XMLSize_t size) override;
  void deallocate(void* block) override;

  /// Where Xerces-C's exceptions take their memory: not from here, since they may outlive it.
  xercesc::MemoryManager* getExceptionMemoryManager() override;

 private:
  struct Block;

  Block* m_blocks = nullptr;
};

}  // namespace trnidom_detail

#endif
