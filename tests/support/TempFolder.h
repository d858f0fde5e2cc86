#ifndef TESTS_SUPPORT_TEMPFOLDER_H
#define TESTS_SUPPORT_TEMPFOLDER_H

#include <string>
#include <vector>

namespace dxmd_test {

/// A folder of a name of its own that goes with its content at the end of the test.
class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  std::string path(const std::string& name) const { return m_path + "/" + name; }
  std::string add(const std::string& name, const std::string& bytes) const;
  /// The names in the folder, sorted.
  std::vector<std::string> names() const;

 private:
  std::string m_path;
};

std::string bytesOf(const std::string& path);

}  // namespace dxmd_test

#endif
