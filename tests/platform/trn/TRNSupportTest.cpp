// The small classes: numbers as text, locks, shared objects.

#include <atomic>
#include <climits>
#include <cstdio>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <trn/TRNReferenceCount.h>
#include <trn/TRNSmartPointer.h>
#include <trn/TRNThreadCriticalSection.h>
#include <trn/TRNThreadGuard.h>
#include <trn/TRNUtConvert.h>

namespace {

template <typename... Arguments>
std::string printed(const char* format, Arguments... arguments) {
  char text[64];
  std::snprintf(text, sizeof text, format, arguments...);
  return text;
}

TEST(TRNUtConvert, WritesPlainDecimal) {
  for (long value : {0L, 7L, -7L, 1000000L, LONG_MAX, LONG_MIN}) {
    EXPECT_EQ(printed("%ld", value), TRNUtConvert::longCvt(value, 1, '0', 0, '+', '-').toUtf8());
  }
  for (unsigned long value : {0UL, 7UL, ULONG_MAX}) {
    EXPECT_EQ(printed("%lu", value), TRNUtConvert::ulongCvt(value, 1, '0', 0, '+', '-').toUtf8());
  }
}

TEST(TRNUtConvert, FillsUp) {
  EXPECT_EQ("007", TRNUtConvert::longCvt(7, 3, '0', 0, '+', '-').toUtf8());
  EXPECT_EQ("   ~__7", TRNUtConvert::longCvt(-7, 3, '_', 7, '+', '~').toUtf8());
  EXPECT_EQ(" 042", TRNUtConvert::ulongCvt(42, 3, '0', 4, '+', '-').toUtf8());
  EXPECT_EQ("12345", TRNUtConvert::ulongCvt(12345, 3, '0', 4, '+', '-').toUtf8());
}

TEST(TRNThreadGuard, KeepsOthersOutUntilReleased) {
  TRNThreadCriticalSection section(0);
  int count = 0;  // not atomic: the lock is what protects it
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < 1000; ++round) {
        TRNThreadGuard guard(section);
        ++count;
        if (round % 2 == 0) guard.release();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(4000, count);
}

/// Counts its living objects.
struct Counted : TRNReferenceCount {
  Counted() { ++living; }
  Counted(const Counted& other) : TRNReferenceCount(other) { ++living; }
  ~Counted() override { --living; }
  static inline std::atomic<int> living{0};
};

TEST(TRNSmartPointer, ObjectGoesWithItsLastPointer) {
  TRNSmartPointer<Counted> none(nullptr);
  EXPECT_TRUE(none.isNull());
  {
    TRNSmartPointer<Counted> first(new Counted);
    TRNSmartPointer<Counted> second(first);
    TRNSmartPointer<Counted> third(std::move(first));
    EXPECT_TRUE(first.isNull());  // NOLINT(bugprone-use-after-move): what is left is null
    EXPECT_EQ(second, third);
    const TRNSmartPointer<Counted>& same = second;
    second = same;
    second = nullptr;
    EXPECT_EQ(1, Counted::living);
    none = third;
  }
  EXPECT_EQ(1, Counted::living);
  none = new Counted(*none);
  EXPECT_EQ(1, Counted::living) << "a copied object starts its own count";
  none = nullptr;
  EXPECT_EQ(0, Counted::living);
}

TEST(TRNSmartPointer, IsSharedBetweenThreads) {
  TRNSmartPointer<Counted> shared(new Counted);
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([mine = shared] {
      for (int round = 0; round < 1000; ++round) TRNSmartPointer<Counted> copy(mine);
    });
  }
  shared = nullptr;
  for (std::thread& thread : threads) thread.join();
  threads.clear();
  EXPECT_EQ(0, Counted::living);
}

}  // namespace
