#include <trn/TRNAssert.h>

#include <exception>
#include <stdexcept>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#define EXPANDS_TO_SOMETHING_ELSE false

namespace {

/// What a failed assertion says.
template <typename Action>
TRNAssertError failureOf(Action action) {
  try {
    action();
  } catch (const TRNAssertError& error) {
    return error;
  }
  throw std::logic_error("no assertion failed");
}

TEST(TRNAssert, MessageIsTheCallsOwnText) {
  const bool found = false;
  EXPECT_EQ("TRN_ASSERT(found);", failureOf([&] { TRN_ASSERT(found); }).getMessage().toUtf8());
  EXPECT_EQ("TRN_ASSERT(EXPANDS_TO_SOMETHING_ELSE);",
            failureOf([] { TRN_ASSERT(EXPANDS_TO_SOMETHING_ELSE); }).getMessage().toUtf8());
  EXPECT_EQ("TRN_ASSERT((std::is_same<int, long>::value));",
            failureOf([] { TRN_ASSERT((std::is_same<int, long>::value)); }).getMessage().toUtf8());
  EXPECT_EQ("TRN_ASSERT_NAMED(found == true, \"No such \\\"item\\\"\");",
            failureOf([&] { TRN_ASSERT_NAMED(found == true, "No such \"item\""); }).getMessage().toUtf8());
}

TEST(TRNAssert, SaysWhere) {
  const int line = __LINE__ + 1;
  const TRNAssertError error = failureOf([] { TRN_ASSERT(1 == 2); });
  EXPECT_EQ(0, error.getCode());
  EXPECT_STREQ("TRNAssertTest", error.getLocation().getFile());
  EXPECT_EQ(line, error.getLocation().getLine());
  EXPECT_EQ("TRNAssertTest(" + std::to_string(line) + "): TRN_ASSERT(1 == 2);", error.what());
}

TEST(TRNAssert, ConditionIsEvaluatedOnce) {
  int calls = 0;
  TRN_ASSERT(++calls == 1);
  TRN_ASSERT_NAMED(++calls == 2, "second");
  EXPECT_EQ(2, calls);
}

TEST(TRNAssert, FileIsTheNameWithoutFolderAndEnding) {
  EXPECT_STREQ("Helper", trn_detail::FileStem("/a.b/c/Helper.cpp").text.data());
  EXPECT_STREQ("Helper.test", trn_detail::FileStem("Helper.test.cpp").text.data());
  EXPECT_STREQ("Helper", trn_detail::FileStem("../x.y/Helper").text.data());
}

TEST(TRNAssertError, IsHurledWithTheLocationAndCodeGiven) {
  static constexpr TRNFileLocation kElsewhere("Elsewhere", 7);
  const TRNAssertError original(1, "caf\xC3\xA9", TRNFileLocation("Here", 3));
  try {
    original.hurl(kElsewhere, 42, "TRN_THROW");
  } catch (const std::exception& error) {
    EXPECT_STREQ("Elsewhere(7): caf\xC3\xA9", error.what());
    EXPECT_EQ(42, dynamic_cast<const TRNAssertError&>(error).getCode());
  }
  EXPECT_STREQ("Here(3): caf\xC3\xA9", original.what());
}

}  // namespace
