#include "Files.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <istream>
#include <memory>
#include <ostream>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <tools/dxmd/ToolError.h>

namespace dxmd_tool {

namespace {

[[noreturn]] void fail(const std::string& name, const char* what, int error) {
  throw ToolError(kStatusFile, name + ": " + what + ": " + std::strerror(error));
}

/// An open file.
class Descriptor {
 public:
  explicit Descriptor(int number) : m_number(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (m_number >= 0) ::close(m_number);
  }

  int number() const { return m_number; }
  bool close() { return ::close(std::exchange(m_number, -1)) == 0; }

 private:
  int m_number;
};

bool writeAll(int number, const std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t count = ::write(number, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    done += static_cast<std::size_t>(count);
  }
  return true;
}

/// A new file beside the target, which is removed unless it was renamed onto it.
class Replacement {
 public:
  explicit Replacement(const std::string& target)
      : m_target(target), m_path(target + ".XXXXXX"), m_file(::mkstemp(m_path.data())) {
    if (m_file.number() < 0) fail(target, "cannot be written", errno);
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (!m_done) ::unlink(m_path.c_str());
  }

  void commit(const std::string& bytes, mode_t mode) {
    m_done = writeAll(m_file.number(), bytes) && ::fchmod(m_file.number(), mode) == 0 &&
             ::fsync(m_file.number()) == 0 && m_file.close() && ::rename(m_path.c_str(), m_target.c_str()) == 0;
    if (!m_done) fail(m_target, "cannot be written", errno);
  }

 private:
  const std::string& m_target;
  std::string m_path;
  Descriptor m_file;
  bool m_done = false;
};

/// The mode that a newly created file would have.
mode_t newFileMode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

/// The path behind symbolic links; the path itself when it leads nowhere yet.
std::string resolved(const std::string& path) {
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
  return real != nullptr ? real.get() : path;
}

}  // namespace

std::string readFile(const std::string& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.number() < 0) fail(path, "cannot be read", errno);
  std::string bytes;
  char buffer[1 << 16];
  while (true) {
    const ssize_t count = ::read(file.number(), buffer, sizeof buffer);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(path, "cannot be read", errno);
    if (count == 0) return bytes;
    bytes.append(buffer, static_cast<std::size_t>(count));
  }
}

std::string readStream(std::istream& in, const std::string& name) {
  std::string bytes;
  char buffer[1 << 16];
  while (in.read(buffer, sizeof buffer) || in.gcount() > 0) bytes.append(buffer, static_cast<std::size_t>(in.gcount()));
  if (in.bad()) throw ToolError(kStatusFile, name + ": cannot be read");
  return bytes;
}

void writeFile(const std::string& path, const std::string& bytes) {
  const std::string target = resolved(path);
  struct stat status;
  const bool exists = ::stat(target.c_str(), &status) == 0;
  if (exists && !S_ISREG(status.st_mode)) {
    Descriptor file(::open(target.c_str(), O_WRONLY | O_CLOEXEC));
    if (file.number() < 0 || !writeAll(file.number(), bytes) || !file.close()) fail(path, "cannot be written", errno);
    return;
  }
  Replacement(target).commit(bytes, exists ? status.st_mode & 07777 : newFileMode());
}

void writeStream(std::ostream& out, const std::string& bytes) {
  errno = 0;
  if (!out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())) || !out.flush())
    fail("standard output", "cannot be written", errno != 0 ? errno : EIO);
}

}  // namespace dxmd_tool
