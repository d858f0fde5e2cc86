#ifndef TRNIDOM_STORE_BLOCKCACHE_H
#define TRNIDOM_STORE_BLOCKCACHE_H

#include <cstddef>

namespace trnidom_detail::blocks {

/// A block of that size.
/// @throws std::bad_alloc
void* take(std::size_t size);

/// Gives a block back, which may be kept for the next `take` of its size. Safe from any thread.
void giveBack(void* block, std::size_t size) noexcept;

}  // namespace trnidom_detail::blocks

#endif
