#include "Words.h"

#include <cstddef>

namespace dxmd_tool {

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower)
    if ('A' <= c && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

std::string joined(const std::vector<std::string>& words, std::string_view between, std::string_view last) {
  std::string all;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (i > 0) all += i + 1 < words.size() ? between : last;
    all += words[i];
  }
  return all;
}

}  // namespace dxmd_tool
