// Nothing leaks and nothing but std::bad_alloc comes out when memory runs out, wherever that happens; what is asked
// again answers as if nothing had happened.

#include <cstdlib>
#include <fstream>
#include <vector>

#include <dxmd/resources/dxmd_actionhelper_resources.h>

#include "FailingNew.h"
#include "Messages.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

class EveryMessageOutOfMemory : public testing::TestWithParam<Message> {};

long residentPages() {
  long total = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident;
}

}  // namespace

TEST_P(EveryMessageOutOfMemory, IsMadeReadAndAskedAgain) {
  const Message& message = GetParam();
  {
    // Many documents at once: as many blocks as documents leave for later ones are there from now on.
    std::vector<TRNIDOM_Element> all;
    for (const Message& each : allMessages()) all.push_back(each.make());
  }
  std::string expected;
  withEachAllocationFailing([&] {
    TRNIDOM_Element element = message.make();
    Answers answers(true);
    if (message.read != nullptr) message.read(element, answers);
    if (expected.empty()) expected = answers.text();
    EXPECT_EQ(expected, answers.text());
    if (message.change != nullptr) message.change(element);
  });
}

INSTANTIATE_TEST_SUITE_P(, EveryMessageOutOfMemory, testing::ValuesIn(allMessages()),
                         testing::PrintToStringParamName());

// DXMD_TEST_DOCUMENTS says how many; scripts/soak makes a million.
TEST(Messages, TakeNoMoreMemoryHoweverManyAreMadeAndRead) {
  const char* const wanted = std::getenv("DXMD_TEST_DOCUMENTS");
  const std::size_t documents = wanted != nullptr ? std::strtoul(wanted, nullptr, 10) : 20000;
  const auto makeAndReadEach = [](std::size_t count) {
    for (std::size_t done = 0; done < count;)
      for (const Message& message : allMessages()) {
        TRNIDOM_Element element = parsed(xmlOf(message.make()));
        Answers answers;
        if (message.read != nullptr) message.read(element, answers);
        if (message.change != nullptr) message.change(element);
        ++done;
      }
  };
  makeAndReadEach(10000);  // what is made once, or kept for reuse, is there from now on
  const std::ptrdiff_t bytes = allocatedBytes();
  const long pages = residentPages();
  makeAndReadEach(documents);
  EXPECT_EQ(bytes, allocatedBytes());
#ifdef DXMD_SANITIZED
  static_cast<void>(pages);  // a sanitizer keeps pages of its own
#else
  EXPECT_LE(residentPages(), pages + 64);
#endif
}

// The process of its own that a death test is has built no entry yet.
TEST(VocabularyOutOfMemoryDeathTest, AnEntryThatCouldNotBeBuiltIsBuiltByALaterCall) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto build = [] {
    const bool failed = failsWithoutMemory([] { dxmd_actionhelper_resources::getString(224); });
    std::_Exit(failed && dxmd_actionhelper_resources::getString(224) == "requestDoc" ? 0 : 1);
  };
  EXPECT_EXIT(build(), testing::ExitedWithCode(0), "");
}
