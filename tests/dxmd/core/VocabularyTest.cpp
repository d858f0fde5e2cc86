#include <dxmd/resources/Vocabulary.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <trn/I18NString.h>

using dxmd_actionhelper_resources::getString;

namespace {

#define DXMD_ENTRY(index, identifier, text) +1
constexpr long kEntries =
#include <dxmd/resources/vocabulary.def>
    ;
#undef DXMD_ENTRY

}  // namespace

// Run by ctest this is a process of its own, in which no entry has been built.
TEST(Vocabulary, ConcurrentFirstCallsGetTheSameObject) {
  constexpr int kThreads = 8;
  std::array<std::vector<const I18NString*>, kThreads> seen;
  std::atomic<int> waiting{kThreads};
  std::vector<std::thread> threads;
  for (std::vector<const I18NString*>& mine : seen)
    threads.emplace_back([&] {
      --waiting;
      while (waiting != 0) std::this_thread::yield();
      for (long index = 0; index < kEntries; ++index) mine.push_back(&getString(index));
    });
  for (std::thread& thread : threads) thread.join();
  for (const std::vector<const I18NString*>& others : seen) EXPECT_EQ(seen[0], others);
}

// An index is part of the library's interface: an entry that slips makes every message wrong. A change that is meant
// changes the checksum (FNV-1a over the texts, each with its line feed).
TEST(Vocabulary, EveryEntryIsATextOfItsOwnAndStandsAtItsIndex) {
  std::uint64_t checksum = 0xCBF29CE484222325;
  std::set<I18NString> texts;
  for (long index = 0; index < kEntries; ++index) {
    EXPECT_TRUE(texts.insert(getString(index)).second) << index << " " << getString(index);
    for (const char byte : getString(index).toUtf8() + "\n")
      checksum = (checksum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  }
  EXPECT_EQ(374, kEntries);
  EXPECT_EQ(0xBB3773CE9DFCF2B6, checksum);
}

TEST(Vocabulary, NamesStandForTheSharedObjects) {
  EXPECT_EQ(&getString(224), &STR_requestDoc.text());
  EXPECT_EQ(&getString(250), &dxmd_actionhelper_resources_source_str.text());
}
