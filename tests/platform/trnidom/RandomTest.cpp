#include <exception>
#include <random>

#include "RandomOperations.h"
#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(Random, OperationsDoWhatTheyDoToAPlainModel) {
  std::mt19937 random(printedSeed());
  for (int run = 0; run < 20; ++run) {
    RandomOperations operations(
        [&](std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random); });
    for (int step = 0; step < 800; ++step) {
      try {
        operations.step();
        operations.check();
      } catch (const std::exception& error) {
        FAIL() << "run " << run << ", step " << step << ": " << error.what();
      }
    }
    EXPECT_NO_THROW(operations.checkReadBack()) << "run " << run;
  }
}
