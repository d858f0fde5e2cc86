#include "TempFolder.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <unistd.h>

namespace dxmd_test {

TempFolder::TempFolder() {
  std::string pattern = std::filesystem::temp_directory_path() / "dxmd_test.XXXXXX";
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder for temporary files");
  m_path = pattern;
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(m_path, ignored);
}

std::string TempFolder::add(const std::string& name, const std::string& bytes) const {
  std::ofstream(path(name), std::ios::binary) << bytes;
  return path(name);
}

std::vector<std::string> TempFolder::names() const {
  std::vector<std::string> all;
  for (const auto& entry : std::filesystem::directory_iterator(m_path)) all.push_back(entry.path().filename());
  std::sort(all.begin(), all.end());
  return all;
}

std::string bytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

}  // namespace dxmd_test
