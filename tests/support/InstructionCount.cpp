#include "InstructionCount.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

// valgrind finds it by its name.
extern "C" __attribute__((noinline)) void dxmdCountedWork(const std::function<void()>& work) {
  work();
}

namespace dxmd_test {

namespace {

constexpr const char* kMeasure = "--measure";

std::string ownPath() {
  char path[4096];
  const ssize_t size = readlink("/proc/self/exe", path, sizeof path);
  return std::string(path, size > 0 ? static_cast<std::size_t>(size) : 0);
}

bool hasValgrind() {
  return std::system("valgrind --version >/dev/null 2>&1") == 0;  // NOLINT: a fixed command
}

/// The instructions of that case at that size, run in a process of its own.
std::uint64_t instructionsOf(const CostCase& test, std::size_t size) {
  const std::string command =
      "valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect=dxmdCountedWork '" + ownPath() + "' " +
      kMeasure + " " + test.name + " " + std::to_string(size) + " 2>&1";
  std::FILE* const child = popen(command.c_str(), "r");  // NOLINT: a fixed command
  if (child == nullptr) throw std::runtime_error("valgrind could not be started");
  std::string output;
  for (int c = std::fgetc(child); c != EOF; c = std::fgetc(child)) output += static_cast<char>(c);
  const std::string collected = "Collected : ";
  const std::size_t at = output.find(collected);
  if (pclose(child) != 0 || at == std::string::npos) throw std::runtime_error(output);
  return std::stoull(output.substr(at + collected.size()));
}

class CostTest : public testing::Test {
 public:
  explicit CostTest(const CostCase& test) : m_case(test) {}

 private:
  void TestBody() override {
    if (!hasValgrind()) GTEST_SKIP() << "there is no valgrind";
    constexpr std::size_t kTimes = 8;
    constexpr std::uint64_t kMost = 12;
    const std::uint64_t once = instructionsOf(m_case, m_case.size);
    const std::uint64_t more = instructionsOf(m_case, kTimes * m_case.size);
    EXPECT_LT(m_case.size, once) << "that is no work";
    EXPECT_LE(more, kMost * once);
    RecordProperty("factor", std::to_string(static_cast<double>(more) / static_cast<double>(once)));
  }

  const CostCase& m_case;
};

}  // namespace

int testCosts(int argc, char** argv, const std::vector<CostCase>& cases) {
  if (argc == 4 && argv[1] == std::string(kMeasure)) {
    for (const CostCase& test : cases)
      if (argv[2] == std::string(test.name)) dxmdCountedWork(test.prepare(std::strtoul(argv[3], nullptr, 10)));
    return 0;
  }
  for (const CostCase& test : cases)
    testing::RegisterTest("Cost", test.name, nullptr, nullptr, __FILE__, __LINE__,
                          [&test]() -> testing::Test* { return new CostTest(test); });
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

}  // namespace dxmd_test
