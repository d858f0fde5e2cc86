#ifndef BENCH_BENCH_H
#define BENCH_BENCH_H

#include <functional>
#include <string>

/// The frame of the benchmarks: each workload is done by the helpers and by each peer.
namespace bench {

/// One piece of work, ready to be done again and again.
using Work = std::function<void()>;

/// Gets the work ready: what it does is neither timed nor counted.
using Preparation = std::function<Work()>;

/// Registers how one side does a workload; the first side of a workload is what the others are compared with.
struct Case {
  Case(const char* workload, const char* side, Preparation prepare);
};

/// Keeps a result from being optimised away.
void keep(const void* result);

}  // namespace bench

#endif
