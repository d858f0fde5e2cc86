#include "Documents.h"

namespace bench {

const std::vector<Item<std::string>>& itemsUtf8() {
  static const auto items = [] {
    std::vector<Item<std::string>> result;
    for (int i = 0; i < kItemsPerQuery; ++i) {
      const std::string name = "Item " + std::to_string(i);
      result.push_back({name, "[warehouse].[Orders].[" + name + "]"});
    }
    return result;
  }();
  return items;
}

const std::vector<Item<std::u16string>>& itemsUtf16() {
  static const auto items = [] {
    std::vector<Item<std::u16string>> result;
    for (const auto& item : itemsUtf8())
      result.push_back({{item.name.begin(), item.name.end()}, {item.expression.begin(), item.expression.end()}});
    return result;
  }();
  return items;
}

const std::vector<std::string>& keysUtf8() {
  static const auto keys = [] {
    std::vector<std::string> result;
    for (int i = 0; i < 100000; ++i) result.push_back("key " + std::to_string(i));
    return result;
  }();
  return keys;
}

const std::string& reply() {
  static const std::string xml = [] {
    std::string result = "<response><resultData>";
    for (int row = 0; row < kRows; ++row) {
      result += "<row>";
      for (int value = 0; value < kValuesPerRow; ++value)
        result += "<value v=\"" + std::to_string(row * 31 + value) + ".00\"/>";
      result += "</row>";
    }
    return result + "</resultData></response>";
  }();
  return xml;
}

}  // namespace bench
