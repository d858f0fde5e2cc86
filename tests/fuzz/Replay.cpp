// Runs a target on files: PROGRAM FILE|FOLDER... It fails with the first finding, and when there is no file.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "Target.h"

namespace {

std::vector<std::filesystem::path> filesIn(const std::vector<std::filesystem::path>& places) {
  std::vector<std::filesystem::path> files;
  for (const auto& place : places) {
    if (!std::filesystem::is_directory(place)) {
      files.push_back(place);
      continue;
    }
    for (const auto& entry : std::filesystem::directory_iterator(place)) files.push_back(entry.path());
  }
  return files;
}

std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot be read");
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace

int main(int argc, char** argv) {
  std::filesystem::path current;
  try {
    const std::vector<std::filesystem::path> files = filesIn({argv + 1, argv + argc});
    for (const auto& file : files) {
      current = file;
      const std::string bytes = bytesOf(file);
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::cout << files.size() << " inputs" << std::endl;
    return files.empty() ? 1 : 0;
  } catch (const std::exception& error) {
    std::cerr << current.string() << ": " << error.what() << std::endl;
    return 1;
  }
}
