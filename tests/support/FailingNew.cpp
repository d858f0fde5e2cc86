#include "FailingNew.h"

#include <cstddef>
#include <cstdlib>
#include <exception>
#include <new>

#include <gtest/gtest.h>

namespace {

constexpr long kNone = -1;

// Calls of `new` in this thread that succeed before one fails.
thread_local long callsBeforeFailure = kNone;

}  // namespace

void* operator new(std::size_t size) {
  if (callsBeforeFailure != kNone && callsBeforeFailure-- == 0) throw std::bad_alloc();
  void* const memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace dxmd_test {

void withEachNewFailing(const std::function<void()>& action) {
  action();  // what is made but once, such as Xerces-C's own tables, is there from now on
  for (long calls = 0;; ++calls) {
    bool failed = true;
    callsBeforeFailure = calls;
    try {
      action();
      failed = callsBeforeFailure == kNone;
    } catch (const std::bad_alloc&) {
    } catch (const std::exception& error) {
      ADD_FAILURE() << "a failure of call " << calls << " became: " << error.what();
    }
    callsBeforeFailure = kNone;
    if (!failed) return;
  }
}

}  // namespace dxmd_test
