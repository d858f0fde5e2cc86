#include "Suggest.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

#include <tools/dxmd/text/Words.h>

namespace dxmd_tool {

namespace {

/// How many characters have to be put in, left out, replaced or swapped with the next to make one text of the other.
std::size_t distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> beforeLast(b.size() + 1);
  std::vector<std::size_t> last(b.size() + 1);
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(last.begin(), last.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    beforeLast.swap(last);
    last.swap(row);
  }
  return last[b.size()];
}

}  // namespace

std::string didYouMean(std::string_view word, const std::vector<std::string>& candidates) {
  constexpr std::size_t kLongest = 60;
  if (word.size() > kLongest) return "";
  const std::string lower = lowerCase(word);
  const std::string* best = nullptr;
  std::size_t least = 1 + std::min<std::size_t>(2, word.size() / 3);
  for (const std::string& candidate : candidates) {
    if (const std::size_t far = distance(lower, lowerCase(candidate)); far < least) {
      least = far;
      best = &candidate;
    }
  }
  return best != nullptr ? "; did you mean \"" + *best + "\"?" : "";
}

}  // namespace dxmd_tool
