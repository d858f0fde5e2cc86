#ifndef BENCH_PEAKMEMORY_H
#define BENCH_PEAKMEMORY_H

#include <cstddef>

/// Counts the bytes that the process holds from malloc and its kin, whoever asks for them.
namespace peak_memory {

/// Begins to count, from zero.
void start();

/// Ends counting. @return the most bytes held at once since `start`.
std::size_t stop();

}  // namespace peak_memory

#endif
