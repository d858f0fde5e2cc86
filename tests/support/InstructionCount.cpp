#include "InstructionCount.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>

#include <gtest/gtest.h>

#include "TempFolder.h"

// valgrind finds it by its name.
extern "C" __attribute__((noinline)) void dxmdCountedWork(const std::function<void()>& work) {
  work();
}

namespace dxmd_test {

namespace {

constexpr const char* kMeasure = "--measure";
constexpr std::size_t kTimes = 8;
constexpr std::uint64_t kMost = 12;

bool hasValgrind() {
  return std::system("valgrind --version >/dev/null 2>&1") == 0;  // NOLINT: a fixed command
}

/// The instructions of each piece of the group's work, done in a process of its own: of each case, once and more.
std::vector<std::uint64_t> instructionsOf(const std::string& group) {
  const TempFolder folder;
  const std::string command =
      "valgrind --tool=callgrind --combine-dumps=yes --callgrind-out-file=" + folder.path("counts") +
      " --toggle-collect=dxmdCountedWork --dump-after=dxmdCountedWork '" +
      std::filesystem::read_symlink("/proc/self/exe").string() + "' " + kMeasure + " " + group + " >" +
      folder.path("log") + " 2>&1";
  if (std::system(command.c_str()) != 0) throw std::runtime_error(bytesOf(folder.path("log")));  // NOLINT
  std::vector<std::uint64_t> counts;
  const std::string summary = "summary: ";
  std::ifstream dumps(folder.path("counts"));
  for (std::string line; std::getline(dumps, line);)
    if (line.compare(0, summary.size(), summary) == 0) counts.push_back(std::stoull(line.substr(summary.size())));
  return counts;
}

class CostTest : public testing::Test {
 public:
  CostTest(const std::vector<CostCase>& cases, std::string group) : m_cases(cases), m_group(std::move(group)) {}

 private:
  void TestBody() override {
    if (!hasValgrind()) GTEST_SKIP() << "there is no valgrind";
    const std::vector<std::uint64_t> counts = instructionsOf(m_group);
    std::size_t at = 0;
    for (const CostCase& test : m_cases) {
      if (test.group != m_group) continue;
      ASSERT_LT(at + 1, counts.size());
      const std::uint64_t once = counts[at++];
      const std::uint64_t more = counts[at++];
      std::cout << test.name << ": " << once << " instructions, and " << kTimes << " times as much takes "
                << static_cast<double>(more) / static_cast<double>(once) << " times as many" << std::endl;
      EXPECT_LT(test.size, once) << test.name << " is no work";
      if (test.excuse.empty())
        EXPECT_LE(more, kMost * once) << test.name;
      else
        EXPECT_GT(more, kMost * once) << test.name << " needs no excuse any more";
    }
  }

  const std::vector<CostCase>& m_cases;
  const std::string m_group;
};

}  // namespace

int testCosts(int argc, char** argv, const std::vector<CostCase>& cases) {
  if (argc == 3 && argv[1] == std::string(kMeasure)) {
    for (const CostCase& test : cases)
      if (argv[2] == test.group)
        for (const std::size_t size : {test.size, kTimes * test.size}) dxmdCountedWork(test.prepare(size));
    return 0;
  }
  std::set<std::string> groups;
  for (const CostCase& test : cases)
    if (groups.insert(test.group).second)
      testing::RegisterTest("Cost", test.group.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                            [&cases, group = test.group]() -> testing::Test* { return new CostTest(cases, group); });
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

}  // namespace dxmd_test
