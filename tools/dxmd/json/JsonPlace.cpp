#include "JsonPlace.h"

#include <algorithm>
#include <vector>

#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/json/SecretNames.h>

namespace dxmd_tool {

namespace {

bool isPlainKey(std::string_view key) {
  const auto isPlain = [](char c) {
    return ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z') || ('0' <= c && c <= '9') || c == '_';
  };
  return !key.empty() && std::all_of(key.begin(), key.end(), isPlain);
}

}  // namespace

std::string JsonPlace::path() const {
  std::vector<const JsonPlace*> way;
  for (const JsonPlace* place = this; place->parent != nullptr; place = place->parent) way.push_back(place);
  std::string path = "$";
  for (auto place = way.rbegin(); place != way.rend(); ++place) appendStep(path, (*place)->name, (*place)->index);
  return path;
}

void JsonPlace::appendStep(std::string& path, std::string_view name, std::size_t index) {
  if (name.data() == nullptr) {
    path += '[' + std::to_string(index) + ']';
  } else if (isPlainKey(name)) {
    path += '.';
    path += name;
  } else {
    path += '[' + inQuotes(std::string(name)) + ']';
  }
}

std::string_view JsonPlace::source() const {
  const JsonPlace* place = this;
  while (place->parent != nullptr) place = place->parent;
  return place->name;
}

bool JsonPlace::isSecret() const {
  for (const JsonPlace* place = this; place->parent != nullptr; place = place->parent)
    if (isSecretName(place->name)) return true;
  return false;
}

}  // namespace dxmd_tool
