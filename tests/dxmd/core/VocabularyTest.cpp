#include <dxmd/resources/Vocabulary.h>

#include <array>
#include <atomic>
#include <set>
#include <thread>
#include <utility>
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

TEST(Vocabulary, EveryEntryIsATextOfItsOwnAndAlwaysTheSameObject) {
  std::set<I18NString> texts;
  for (long index = 0; index < kEntries; ++index) {
    EXPECT_EQ(&getString(index), &getString(index));
    EXPECT_TRUE(texts.insert(getString(index)).second) << index << " " << getString(index);
    EXPECT_EQ(index == 0, getString(index).empty());
  }
}

// An index is part of the library's interface: an entry that slips makes every message wrong.
TEST(Vocabulary, EntriesStandAtTheirIndex) {
  const std::pair<long, const char*> entries[] = {{0, ""},
                                                  {1, "bus:boundRangeParmValueItem"},
                                                  {6, "xsi:nil"},
                                                  {28, "BmtRequest"},
                                                  {48, "VeltraCommandText"},
                                                  {74, "definitionType"},
                                                  {106, "DX"},
                                                  {109, "DXCommand"},
                                                  {110, "dxCommand"},
                                                  {128, "itemToUpdate"},
                                                  {155, "maxTextBolobCharacters"},
                                                  {180, "optional"},
                                                  {200, "propertyValue"},
                                                  {224, "requestDoc"},
                                                  {232, "RETAINCONNECTION"},
                                                  {250, "source"},
                                                  {272, "unknown"},
                                                  {288, "xml:lang"},
                                                  {290, "xsi:type"},
                                                  {292, "<-->"},
                                                  {298, "VAMPassport"},
                                                  {315, "false"},
                                                  {316, "FALSE"},
                                                  {326, "name"},
                                                  {341, "refobj"},
                                                  {350, "securityObject"},
                                                  {363, "dimInfo"},
                                                  {373, "hierarchies"}};
  for (const auto& [index, text] : entries) EXPECT_EQ(text, getString(index)) << index;
}

TEST(Vocabulary, NamesStandForTheSharedObjects) {
  EXPECT_EQ(&getString(224), &STR_requestDoc.text());
  EXPECT_EQ(&getString(250), &dxmd_actionhelper_resources_source_str.text());
}
