#include <dxmd/core/OwnedList.h>

#include <memory>
#include <utility>

#include <gtest/gtest.h>

namespace {

int alive = 0;

struct Record {
  explicit Record(int value) : number(value) { ++alive; }
  ~Record() {
    children.clearNested([](Record& record) -> dxmd::OwnedList<Record>& { return record.children; });
    --alive;
  }

  int number;
  dxmd::OwnedList<Record> children;
};

}  // namespace

TEST(OwnedList, RecordsStayInPlaceAndGoWithTheirList) {
  {
    dxmd::OwnedList<Record> list;
    Record* const first = list.emplace(1);
    for (int number = 2; number <= 100; ++number) list.adopt(std::make_unique<Record>(number));
    EXPECT_EQ(first, list.items().front());
    EXPECT_EQ(1, first->number);
    EXPECT_EQ(100, list.items().back()->number);
    EXPECT_EQ(100, alive);
    EXPECT_FALSE(list.empty());
  }
  EXPECT_EQ(0, alive);
}

TEST(OwnedList, MovingHandsRecordsOver) {
  dxmd::OwnedList<Record> list;
  list.emplace(1);
  dxmd::OwnedList<Record> other(std::move(list));
  EXPECT_EQ(1u, other.size());
  list = std::move(other);
  EXPECT_EQ(1, list.items().front()->number);
  EXPECT_EQ(1, alive);
}

TEST(OwnedList, NestedRecordsAreDeletedWithoutRecursionAtAnyDepthAndBreadth) {
  {
    dxmd::OwnedList<Record> list;
    Record* inner = list.emplace(0);
    for (int depth = 1; depth < 1'000'000; ++depth) {
      if (depth % 1000 == 0) inner->children.emplace(depth)->children.emplace(depth);
      inner = inner->children.emplace(depth);
      if (depth % 700 == 0) inner->children.emplace(depth);
    }
    EXPECT_LT(1'000'000, alive);
  }
  EXPECT_EQ(0, alive);
}
