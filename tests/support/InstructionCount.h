#ifndef TESTS_SUPPORT_INSTRUCTIONCOUNT_H
#define TESTS_SUPPORT_INSTRUCTIONCOUNT_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace dxmd_test {

/// Work whose cost has to be linear in its size.
struct CostCase {
  std::string group;  ///< of cases that are counted in one process, as one test
  std::string name;
  std::size_t size;
  /// Makes what work of that size needs, and gives the work.
  std::function<std::function<void()>(std::size_t size)> prepare;
  /// Why it costs more than that, where it does; empty otherwise.
  std::string excuse = {};
};

/// The main function of a test program that has each case do its work at its size and at eight times that, and counts
/// the instructions: more than twelve times as many are a failure, and so is an excuse for fewer. What was prepared
/// does not count.
///
/// valgrind counts; without it the tests are skipped.
int testCosts(int argc, char** argv, const std::vector<CostCase>& cases);

}  // namespace dxmd_test

#endif
