#include <cstdlib>

#include <gtest/gtest.h>

#include <dxmd/resources/dxmd_actionhelper_resources.h>

#include "FailingNew.h"

using dxmd_actionhelper_resources::getString;

// The process of its own that a death test is has built no entry yet.
TEST(VocabularyOutOfMemoryDeathTest, AnEntryThatCouldNotBeBuiltIsBuiltByALaterCall) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto build = [] {
    int calls = 0;
    dxmd_test::withEachNewFailing([&] {
      ++calls;
      getString(224);
    });
    std::_Exit(calls == 2 && getString(224) == "requestDoc" ? 0 : 1);
  };
  EXPECT_EXIT(build(), testing::ExitedWithCode(0), "");
}
