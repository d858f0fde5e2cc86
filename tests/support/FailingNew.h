#ifndef TESTS_SUPPORT_FAILINGNEW_H
#define TESTS_SUPPORT_FAILINGNEW_H

#include <cstddef>
#include <functional>

// Programs that link dxmd_test_failing_new get an `operator new`, and memory for ICU, that fail on demand, in the
// thread that demands it.

namespace dxmd_test {

/// Runs an action that does all its work anew each time: each allocation, ICU's among them, fails once alone and once
/// with all that follow. What fails must leave the action as std::bad_alloc, if it does, and each run must give back
/// what it allocated. Gives the number of allocations of an undisturbed run.
std::size_t withEachAllocationFailing(const std::function<void()>& action);

/// What this thread has taken from `new` and not given back.
std::ptrdiff_t allocatedBytes();

/// Runs the action with no more than that many bytes at a time, beyond what was allocated before. Whether it ended in
/// std::bad_alloc.
bool failsWithin(std::size_t bytes, const std::function<void()>& action);

/// Runs the action with every allocation failing. Whether it ended in std::bad_alloc.
bool failsWithoutMemory(const std::function<void()>& action);

}  // namespace dxmd_test

#endif
