#ifndef TOOLS_DXMD_TEXT_SUGGEST_H
#define TOOLS_DXMD_TEXT_SUGGEST_H

#include <string>
#include <string_view>
#include <vector>

namespace dxmd_tool {

/// `; did you mean "name"?` with the candidate that the word is likely to stand for; empty when there is none.
std::string didYouMean(std::string_view word, const std::vector<std::string>& candidates);

}  // namespace dxmd_tool

#endif
