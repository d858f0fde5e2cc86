#include "parse/Expat.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

namespace trnidom_detail {

namespace {

// expat's memory comes from `operator new`, so that a program that replaces it, to count memory, to bound it or to have
// it fail in a test, has all of a document's parsing. expat reallocates, which `operator new` cannot: each block begins
// with its size.

constexpr std::size_t kHeader = alignof(std::max_align_t);
static_assert(sizeof(std::size_t) <= kHeader);

void* allocate(std::size_t size) noexcept {
  if (size > static_cast<std::size_t>(-1) - kHeader) return nullptr;
  void* const block = ::operator new(kHeader + size, std::nothrow);
  if (block == nullptr) return nullptr;
  std::memcpy(block, &size, sizeof size);
  return static_cast<char*>(block) + kHeader;
}

void release(void* memory) noexcept {
  if (memory != nullptr) ::operator delete(static_cast<char*>(memory) - kHeader);
}

void* reallocate(void* memory, std::size_t size) noexcept {
  if (memory == nullptr) return allocate(size);
  void* const grown = allocate(size);
  if (grown == nullptr) return nullptr;
  std::size_t before = 0;
  std::memcpy(&before, static_cast<char*>(memory) - kHeader, sizeof before);
  std::memcpy(grown, memory, std::min(before, size));
  release(memory);
  return grown;
}

}  // namespace

Expat newExpat() {
  static constexpr XML_Memory_Handling_Suite kMemory{allocate, reallocate, release};
  Expat parser(XML_ParserCreate_MM("UTF-8", &kMemory, nullptr));
  if (parser == nullptr) throw std::bad_alloc();
#if XML_MAJOR_VERSION > 2 || (XML_MAJOR_VERSION == 2 && XML_MINOR_VERSION >= 6)
  // Puts off an unfinished token, and with it an error that is already there; DocumentParser bounds the cost itself.
  XML_SetReparseDeferralEnabled(parser.get(), XML_FALSE);
#endif
  return parser;
}

}  // namespace trnidom_detail
