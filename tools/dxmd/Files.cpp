#include "Files.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <istream>
#include <iterator>
#include <ostream>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/text/Colour.h>
#include <tools/dxmd/text/Escape.h>

namespace dxmd_tool {

namespace {

/// A reader of a pipe that is gone is no news to anybody: other tools end without a word too.
[[noreturn]] void fail(const std::string& name, const char* what, int error) {
  throw ToolError(kStatusFile, error == EPIPE ? std::string() : name + ": " + what + ": " + std::strerror(error));
}

bool writeAll(int number, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(number, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

/// The mode that a newly created file would have.
mode_t newFileMode() {
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

/// The folder and the name in it.
struct Place {
  std::string folder;
  std::string name;
};

Place placeOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return {".", path};
  return {slash == 0 ? "/" : path.substr(0, slash), path.substr(slash + 1)};
}

/// The path behind symbolic links, whether there is anything or not.
std::string resolved(std::string path) {
  constexpr int kMostLinks = 40;
  const std::string asGiven = path;
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code error;
    const std::string target = std::filesystem::read_symlink(path, error);
    if (error) return path;
    path = target.compare(0, 1, "/") == 0 ? target : placeOf(path).folder.append("/").append(target);
  }
  fail(asGiven, "cannot be written", ELOOP);
}

/// The number of this process's own descriptor that the path names, as /dev/stdout and /proc/self/fd/1 do; else -1.
int ownDescriptor(std::string path) {
  const std::string own = "/proc/" + std::to_string(::getpid()) + "/fd";
  constexpr int kMostLinks = 40;
  for (int links = 0; links < kMostLinks; ++links) {
    const auto [folder, name] = placeOf(path);
    std::error_code error;
    if (std::filesystem::canonical(folder, error) == own && !error) return std::atoi(name.c_str());
    const std::string target = std::filesystem::read_symlink(path, error);
    if (error) return -1;
    path = target.compare(0, 1, "/") == 0 ? target : std::string(folder).append("/").append(target);
  }
  return -1;
}

// What a signal that ends the process has to remove: a file by its name in an open folder.
volatile std::sig_atomic_t removableFolder = -1;
char removableName[48];

constexpr int kEndingSignals[] = {SIGINT, SIGTERM, SIGHUP};

void removeAndEnd(int signal) {
  if (removableFolder >= 0) ::unlinkat(removableFolder, removableName, 0);
  // The handler was set with SA_RESETHAND: this time the signal ends the process.
  ::raise(signal);
}

/// While there is a new file, signals remove it. Those that the process ignores stay ignored.
class RemovedBySignals {
 public:
  RemovedBySignals() {
    struct sigaction action {};
    action.sa_handler = removeAndEnd;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (std::size_t i = 0; i < std::size(kEndingSignals); ++i) {
      ::sigaction(kEndingSignals[i], nullptr, &m_before[i]);
      if (m_before[i].sa_handler != SIG_IGN) ::sigaction(kEndingSignals[i], &action, nullptr);
    }
  }
  RemovedBySignals(const RemovedBySignals&) = delete;
  RemovedBySignals& operator=(const RemovedBySignals&) = delete;
  ~RemovedBySignals() {
    removableFolder = -1;
    for (std::size_t i = 0; i < std::size(kEndingSignals); ++i) ::sigaction(kEndingSignals[i], &m_before[i], nullptr);
  }

 private:
  struct sigaction m_before[std::size(kEndingSignals)]{};
};

/// No ending signal comes between the making or renaming of a file and the note of it.
class SignalsHeld {
 public:
  SignalsHeld() {
    sigset_t held;
    ::sigemptyset(&held);
    for (const int signal : kEndingSignals) ::sigaddset(&held, signal);
    ::pthread_sigmask(SIG_BLOCK, &held, &m_before);
  }
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;
  ~SignalsHeld() {
    const int error = errno;
    ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    errno = error;
  }

 private:
  sigset_t m_before;
};

}  // namespace

/// An open file.
class FileOutput::Descriptor {
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

/// A new file in the target's folder, which is removed unless it was renamed onto the target.
class FileOutput::Replacement {
 public:
  /// @param replaced  the target's status; null when it is not there yet.
  Replacement(const std::string& target, const struct stat* replaced)
      : m_target(placeOf(target)),
        m_folder(::open(m_target.folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
        m_file(create()) {
    if (m_file.number() < 0) fail(target, "cannot be written", errno);
    if (replaced != nullptr) m_status = *replaced;
    m_replaces = replaced != nullptr;
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    const SignalsHeld held;
    if (!m_done && m_file.number() >= 0) ::unlinkat(m_folder.number(), removableName, 0);
    removableFolder = -1;
  }

  bool write(std::string_view bytes) { return writeAll(m_file.number(), bytes); }

  bool commit(bool holdsSecrets) {
    constexpr mode_t kPermissions = 0777;
    const mode_t mode = m_replaces     ? m_status.st_mode & kPermissions
                        : holdsSecrets ? newFileMode() & 0600
                                       : newFileMode();
    if (!keepOwner() || ::fchmod(m_file.number(), mode) != 0 || ::fsync(m_file.number()) != 0) return false;
    const SignalsHeld held;
    m_done = ::renameat(m_folder.number(), removableName, m_folder.number(), m_target.name.c_str()) == 0;
    if (m_done) removableFolder = -1;
    return m_done;
  }

 private:
  int create() {
    if (m_folder.number() < 0) return -1;
    const SignalsHeld held;
    for (unsigned number = 0; number < 1000; ++number) {
      std::snprintf(removableName, sizeof removableName, ".dxmd-%ld-%u", static_cast<long>(::getpid()), number);
      const int file = ::openat(m_folder.number(), removableName, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
      if (file >= 0) removableFolder = m_folder.number();
      if (file >= 0 || errno != EEXIST) return file;
    }
    return -1;
  }

  bool keepOwner() {
    struct stat created {};
    if (!m_replaces) return true;
    if (::fstat(m_file.number(), &created) != 0) return false;
    return (created.st_uid == m_status.st_uid && created.st_gid == m_status.st_gid) ||
           ::fchown(m_file.number(), m_status.st_uid, m_status.st_gid) == 0;
  }

  Place m_target;
  Descriptor m_folder;
  const RemovedBySignals m_removedBySignals;
  Descriptor m_file;
  struct stat m_status {};
  bool m_replaces = false;
  bool m_done = false;
};

FileOutput::FileOutput(std::string path) : m_path(std::move(path)) {}

FileOutput::~FileOutput() = default;

void FileOutput::open() {
  if (m_direct != nullptr || m_replacement != nullptr) return;
  const int own = ownDescriptor(m_path);
  struct stat status {};
  const bool exists = ::stat(m_path.c_str(), &status) == 0;
  if (own >= 0)
    m_direct = std::make_unique<Descriptor>(::fcntl(own, F_DUPFD_CLOEXEC, 0));
  else if (exists && !S_ISREG(status.st_mode))
    m_direct = std::make_unique<Descriptor>(::open(m_path.c_str(), O_WRONLY | O_CLOEXEC));
  else
    m_replacement = std::make_unique<Replacement>(resolved(m_path), exists ? &status : nullptr);
  if (m_direct != nullptr && m_direct->number() < 0) fail(m_path, "cannot be written", errno);
}

void FileOutput::write(std::string_view bytes) {
  open();
  if (!(m_direct != nullptr ? writeAll(m_direct->number(), bytes) : m_replacement->write(bytes)))
    fail(m_path, "cannot be written", errno);
}

void FileOutput::finish() {
  open();
  if (!(m_direct != nullptr ? m_direct->close() : m_replacement->commit(m_holdsSecrets)))
    fail(m_path, "cannot be written", errno);
}

std::string readFile(const std::string& path) {
  return readSource(fileSource(path));
}

std::string readStream(std::istream& in, const std::string& name) {
  return readSource(streamSource(in, name));
}

Source fileSource(const std::string& path) {
  const std::shared_ptr<std::FILE> file(std::fopen(path.c_str(), "rbe"), [](std::FILE* opened) {
    if (opened != nullptr) std::fclose(opened);
  });
  if (file == nullptr) fail(path, "cannot be read", errno);
  return [file, path](char* buffer, std::size_t size) {
    const std::size_t count = std::fread(buffer, 1, size, file.get());
    if (std::ferror(file.get()) != 0) fail(path, "cannot be read", errno);
    return count;
  };
}

Source streamSource(std::istream& in, const std::string& name) {
  return [&in, name](char* buffer, std::size_t size) {
    in.read(buffer, static_cast<std::streamsize>(size));
    if (in.bad()) throw ToolError(kStatusFile, name + ": cannot be read");
    return static_cast<std::size_t>(in.gcount());
  };
}

std::string readSource(const Source& source, std::size_t most) {
  std::string bytes;
  char buffer[1 << 16];
  while (bytes.size() < most) {
    const std::size_t count = source(buffer, std::min(sizeof buffer, most - bytes.size()));
    if (count == 0) break;
    bytes.append(buffer, count);
  }
  return bytes;
}

void StreamOutput::write(std::string_view bytes) {
  errno = 0;
  if (!m_out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())))
    fail("standard output", "cannot be written", errno != 0 ? errno : EIO);
}

void StreamOutput::finish() {
  errno = 0;
  if (!m_out.flush()) fail("standard output", "cannot be written", errno != 0 ? errno : EIO);
}

void TerminalOutput::write(std::string_view bytes) {
  if (!m_isJson)
    m_stream.write(escapedLines(bytes));
  else if (m_hasColours)
    m_stream.write(coloured(bytes));
  else
    m_stream.write(bytes);
}

void writeFile(const std::string& path, const std::string& bytes) {
  FileOutput file(path);
  file.write(bytes);
  file.finish();
}

void writeStream(std::ostream& out, const std::string& bytes) {
  StreamOutput stream(out);
  stream.write(bytes);
  stream.finish();
}

}  // namespace dxmd_tool
