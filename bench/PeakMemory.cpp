#include "PeakMemory.h"

#include <algorithm>
#include <cstdlib>

#include <malloc.h>

// This program's malloc, free, calloc and realloc stand before the C library's for every library it loads. While
// nothing is counted they cost one predictable branch each.
extern "C" {
void* __libc_malloc(std::size_t size);                           // NOLINT: the C library's own name
void* __libc_calloc(std::size_t count, std::size_t size);        // NOLINT
void* __libc_realloc(void* block, std::size_t size);             // NOLINT
void* __libc_memalign(std::size_t alignment, std::size_t size);  // NOLINT
void __libc_free(void* block);                                   // NOLINT
}

namespace {

bool counting = false;
std::ptrdiff_t held = 0;
std::ptrdiff_t peak = 0;

void gained(void* block) {
  if (!counting || block == nullptr) return;
  held += static_cast<std::ptrdiff_t>(malloc_usable_size(block));
  peak = std::max(peak, held);
}

void lost(void* block) {
  if (counting && block != nullptr) held -= static_cast<std::ptrdiff_t>(malloc_usable_size(block));
}

}  // namespace

extern "C" {

void* malloc(std::size_t size) noexcept {
  void* block = __libc_malloc(size);
  gained(block);
  return block;
}

void* calloc(std::size_t count, std::size_t size) noexcept {
  void* block = __libc_calloc(count, size);
  gained(block);
  return block;
}

void* realloc(void* block, std::size_t size) noexcept {
  lost(block);
  void* moved = __libc_realloc(block, size);
  gained(moved != nullptr || size == 0 ? moved : block);
  return moved;
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
  void* block = __libc_memalign(alignment, size);
  gained(block);
  return block;
}

void free(void* block) noexcept {
  lost(block);
  __libc_free(block);
}

}  // extern "C"

namespace peak_memory {

void start() {
  held = 0;
  peak = 0;
  counting = true;
}

std::size_t stop() {
  counting = false;
  return static_cast<std::size_t>(peak);
}

}  // namespace peak_memory
