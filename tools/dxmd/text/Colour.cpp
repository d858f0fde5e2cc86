#include "Colour.h"

#include <algorithm>
#include <cstddef>

namespace dxmd_tool {

namespace {

constexpr const char* kKey = "\x1B[34m";
constexpr const char* kText = "\x1B[32m";
constexpr const char* kOther = "\x1B[36m";
constexpr const char* kEnd = "\x1B[0m";

/// The end of the string that begins there.
std::size_t endOfString(std::string_view json, std::size_t at) {
  for (++at; at < json.size() && json[at] != '"'; ++at)
    if (json[at] == '\\') ++at;
  return std::min(at + 1, json.size());
}

}  // namespace

std::string coloured(std::string_view json) {
  constexpr const char* kBetween = " \n,:[]{}";
  std::string out;
  for (std::size_t at = 0; at < json.size();) {
    std::size_t end = std::min(json.find_first_not_of(kBetween, at), json.size());
    out.append(json, at, end - at);
    at = end;
    if (at == json.size()) break;
    const bool isString = json[at] == '"';
    end = isString ? endOfString(json, at) : std::min(json.find_first_of(kBetween, at), json.size());
    const bool isKey = isString && end < json.size() && json[end] == ':';
    out += isKey ? kKey : isString ? kText : kOther;
    out.append(json, at, end - at);
    out += kEnd;
    at = end;
  }
  return out;
}

}  // namespace dxmd_tool
