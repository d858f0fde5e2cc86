#include "SecretNames.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace dxmd_tool {

namespace {

constexpr const char* kSecretWords[] = {"password", "passwd", "pwd", "passport", "ticket"};

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower)
    if ('A' <= c && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

}  // namespace

bool isSecretName(std::string_view name) {
  const std::string lower = lowerCase(name);
  return std::any_of(std::begin(kSecretWords), std::end(kSecretWords),
                     [&](const char* word) { return lower.find(word) != std::string::npos; });
}

}  // namespace dxmd_tool
