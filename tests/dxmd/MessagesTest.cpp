// What holds for each message, whatever it is: these tests run over the table.

#include <algorithm>
#include <array>
#include <thread>

#include "Messages.h"
#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

class EveryMessage : public testing::TestWithParam<Message> {};

/// What the reader answers to the element; what there is to be written into it when nothing is read.
std::string answersTo(const Message& message, TRNIDOM_Element element) {
  if (message.read == nullptr) return xmlOf(element);
  Answers answers;
  message.read(element, answers);
  return answers.text();
}

}  // namespace

TEST_P(EveryMessage, RandomTreesAreReadOrRefused) {
  const Message& message = GetParam();
  const TRNIDOM_Element example = message.make();
  if (message.read != nullptr)
    feedRandomTrees(example, [&](TRNIDOM_Element& tree) {
      Answers answers;
      message.read(tree, answers);
    });
  if (message.change != nullptr) feedRandomTrees(example, message.change);
}

TEST_P(EveryMessage, ReadingLeavesTheDocumentAsItWas) {
  const TRNIDOM_Element example = GetParam().make();
  const std::string before = xmlOf(example);
  const std::string first = answersTo(GetParam(), example);
  EXPECT_EQ(first, answersTo(GetParam(), example));
  EXPECT_EQ(first, answersTo(GetParam(), parsed(before)));
  EXPECT_EQ(before, xmlOf(example));
}

INSTANTIATE_TEST_SUITE_P(, EveryMessage, testing::ValuesIn(allMessages()), testing::PrintToStringParamName());

// Each makes, writes, parses and reads documents of its own, and reads those of all others.
TEST(Messages, AreMadeAndReadByManyThreads) {
  std::vector<TRNIDOM_Element> shared;
  std::vector<std::string> expected;
  for (const Message& message : allMessages()) {
    shared.push_back(message.make());
    expected.push_back(answersTo(message, message.make()));
  }
  std::array<std::vector<std::string>, 16> answers;
  std::vector<std::thread> threads;
  for (std::vector<std::string>& own : answers)
    threads.emplace_back([&] {
      for (std::size_t i = 0; i < shared.size(); ++i) {
        const Message& message = allMessages()[i];
        for (const TRNIDOM_Element& element : {message.make(), parsed(xmlOf(message.make())), shared[i]})
          own.push_back(answersTo(message, element));
      }
    });
  for (std::thread& thread : threads) thread.join();
  for (const std::vector<std::string>& own : answers)
    for (std::size_t i = 0; i < own.size(); ++i) EXPECT_EQ(expected[i / 3], own[i]) << allMessages()[i / 3].name;
}
