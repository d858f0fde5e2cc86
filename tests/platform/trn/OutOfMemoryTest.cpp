// What ICU answers with a bogus text when memory runs out leaves the text class as std::bad_alloc.

#include <cstdlib>
#include <new>
#include <string>

#include <gtest/gtest.h>
#include <trn/I18NString.h>
#include <unicode/uclean.h>

namespace {

bool exhausted = false;

void* U_CALLCONV allocate(const void*, std::size_t size) {
  return exhausted ? nullptr : std::malloc(size);
}

void* U_CALLCONV reallocate(const void*, void* memory, std::size_t size) {
  return exhausted ? nullptr : std::realloc(memory, size);
}

void U_CALLCONV release(const void*, void* memory) {
  std::free(memory);
}

class TextOutOfMemory : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    UErrorCode status = U_ZERO_ERROR;
    u_setMemoryFunctions(nullptr, allocate, reallocate, release, &status);
    ASSERT_TRUE(U_SUCCESS(status));
  }

  template <typename Action>
  static void expectBadAlloc(Action action) {
    exhausted = true;
    EXPECT_THROW(action(), std::bad_alloc);
    exhausted = false;
  }

  const std::string bytes = std::string(100, 'x');
  const std::u16string units = std::u16string(100, u'x');
};

TEST_F(TextOutOfMemory, BuildingIsRefused) {
  expectBadAlloc([&] { I18NString::fromUtf16(units.data(), units.size()); });
  expectBadAlloc([&] { I18NString text(bytes.c_str()); });
  // ICU remembers for good that it could not load its own data, so that is there before memory runs out.
  I18NString("warm up", "Shift_JIS");
  expectBadAlloc([&] { I18NString text(bytes.c_str(), "Shift_JIS"); });
}

TEST_F(TextOutOfMemory, AppendingLeavesAnEmptyText) {
  const I18NString addition(bytes.c_str());
  for (const char* start : {"", "short", bytes.c_str()}) {
    I18NString text(start);
    expectBadAlloc([&] { text += addition; });
    EXPECT_TRUE(text.empty());
    EXPECT_EQ(u'\0', *text.c_str());
    text += addition;
    EXPECT_EQ(addition, text) << "it can be used on";
  }
}

TEST_F(TextOutOfMemory, CopyingALongTextNeedsNone) {
  const I18NString text(bytes.c_str());
  exhausted = true;
  const I18NString copy(text);
  exhausted = false;
  EXPECT_EQ(text, copy);
}

}  // namespace
