#ifndef BENCH_DOCUMENTS_H
#define BENCH_DOCUMENTS_H

#include <string>
#include <vector>

/// The data and documents that all sides work on.
namespace bench {

constexpr int kQueries = 50;
constexpr int kItemsPerQuery = 400;
constexpr int kRows = 100000;
constexpr int kValuesPerRow = 5;

/// A data item in the encoding that a side is used with.
template <typename Text>
struct Item {
  Text name;
  Text expression;
};

const std::vector<Item<std::string>>& itemsUtf8();
const std::vector<Item<std::u16string>>& itemsUtf16();

/// The keys "key 0", "key 1" and so on.
const std::vector<std::string>& keysUtf8();

/// A reply of `kRows` rows.
const std::string& reply();

}  // namespace bench

#endif
