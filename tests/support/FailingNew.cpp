#include "FailingNew.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <new>

#include <gtest/gtest.h>
#include <unicode/uclean.h>

namespace {

constexpr std::size_t kNever = SIZE_MAX;

// Of this thread, since its run began.
thread_local std::size_t allocations = 0;
thread_local std::size_t firstToFail = kNever;
thread_local std::size_t lastToFail = kNever;
thread_local std::ptrdiff_t blocks = 0;  // allocated and not given back
thread_local std::ptrdiff_t bytes = 0;   // in these
thread_local std::ptrdiff_t mostBytes = PTRDIFF_MAX;

bool failsNow() noexcept {
  const std::size_t number = allocations++;
  return number >= firstToFail && number <= lastToFail && firstToFail != kNever;
}

// A block of `new` keeps its size in front of itself.
constexpr std::size_t kHeader = alignof(std::max_align_t);

void* allocate(std::size_t size) noexcept {
  if (failsNow() || bytes > mostBytes - static_cast<std::ptrdiff_t>(size)) return nullptr;
  void* const block = std::malloc(kHeader + size);
  if (block == nullptr) return nullptr;
  ++blocks;
  bytes += static_cast<std::ptrdiff_t>(size);
  *static_cast<std::size_t*>(block) = size;
  return static_cast<char*>(block) + kHeader;
}

void release(void* memory) noexcept {
  if (memory == nullptr) return;
  void* const block = static_cast<char*>(memory) - kHeader;
  --blocks;
  bytes -= static_cast<std::ptrdiff_t>(*static_cast<std::size_t*>(block));
  std::free(block);
}

// ICU's blocks are counted without their sizes: it has some from before.
void replaceIcuMemory() {
  const auto icuAllocate = [](const void*, std::size_t size) -> void* {
    void* const block = failsNow() ? nullptr : std::malloc(size);
    if (block != nullptr) ++blocks;
    return block;
  };
  const auto icuReallocate = [](const void*, void* block, std::size_t size) -> void* {
    if (failsNow()) return nullptr;
    void* const grown = std::realloc(block, size);
    if (block == nullptr && grown != nullptr) ++blocks;
    return grown;
  };
  const auto icuRelease = [](const void*, void* block) {
    if (block != nullptr) --blocks;
    std::free(block);
  };
  UErrorCode status = U_ZERO_ERROR;
  u_setMemoryFunctions(nullptr, icuAllocate, icuReallocate, icuRelease, &status);
  ASSERT_TRUE(U_SUCCESS(status));
}

struct Run {
  bool succeeded;
  std::size_t allocations;
  std::ptrdiff_t leftBehind;
};

/// Runs the action with the allocations from `first` to `last` failing.
Run run(std::size_t first, std::size_t last, const std::function<void()>& action) {
  bool succeeded = false;
  const std::ptrdiff_t before = blocks;
  allocations = 0;
  firstToFail = first;
  lastToFail = last;
  try {
    action();
    succeeded = true;
  } catch (const std::bad_alloc&) {
  } catch (const std::exception& error) {
    firstToFail = kNever;
    ADD_FAILURE() << "a failure of allocation " << first << " became: " << error.what();
  } catch (...) {
    firstToFail = kNever;
    ADD_FAILURE() << "a failure of allocation " << first << " became something that is no std::exception";
  }
  firstToFail = kNever;
  return {succeeded, allocations, blocks - before};
}

}  // namespace

void* operator new(std::size_t size) {
  if (void* const block = allocate(size)) return block;
  throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return allocate(size);
}

void operator delete(void* block) noexcept {
  release(block);
}

void operator delete(void* block, std::size_t) noexcept {
  release(block);
}

namespace dxmd_test {

std::size_t withEachAllocationFailing(const std::function<void()>& action) {
  static const bool replaced = (replaceIcuMemory(), true);
  static_cast<void>(replaced);
  for (int i = 0; i < 2; ++i) action();  // what is made once, or kept for reuse, is there from now on
  const Run undisturbed = run(kNever, kNever, action);
  EXPECT_TRUE(undisturbed.succeeded);
  EXPECT_EQ(0, undisturbed.leftBehind);
  for (std::size_t number = 0; number < undisturbed.allocations && !testing::Test::HasFailure(); ++number) {
    EXPECT_EQ(0, run(number, number, action).leftBehind) << "allocation " << number << " failed";
    EXPECT_EQ(0, run(number, kNever, action).leftBehind) << "allocation " << number << " and all after it failed";
  }
  EXPECT_TRUE(run(kNever, kNever, action).succeeded) << "after all these failures";
  return undisturbed.allocations;
}

std::ptrdiff_t allocatedBytes() {
  return bytes;
}

bool failsWithin(std::size_t most, const std::function<void()>& action) {
  mostBytes = bytes + static_cast<std::ptrdiff_t>(most);
  const bool failed = !run(kNever, kNever, action).succeeded;
  mostBytes = PTRDIFF_MAX;
  return failed;
}

bool failsWithoutMemory(const std::function<void()>& action) {
  return !run(0, kNever, action).succeeded;
}

}  // namespace dxmd_test
