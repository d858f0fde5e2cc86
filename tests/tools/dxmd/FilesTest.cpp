#include <tools/dxmd/Files.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sstream>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "RunTool.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

unsigned modeOf(const std::string& path) {
  struct stat status {};
  ::stat(path.c_str(), &status);
  return status.st_mode & 07777;
}

}  // namespace

TEST(Files, ReplacedFileKeepsItsModeAndNothingElseStays) {
  const TempFolder folder;
  const std::string path = folder.add("out", "old");
  ::chmod(path.c_str(), 0640);
  writeFile(path, "new");
  EXPECT_EQ("new", readFile(path));
  EXPECT_EQ(0640u, modeOf(path));
  EXPECT_EQ(std::vector<std::string>{"out"}, folder.names());
}

TEST(Files, NewFileHasTheModeThatTheMaskAllows) {
  const TempFolder folder;
  const mode_t mask = ::umask(027);
  writeFile(folder.path("out"), "new");
  ::umask(mask);
  EXPECT_EQ(0640u, modeOf(folder.path("out")));
}

TEST(Files, FailuresNameFileAndReasonAndLeaveNothing) {
  const TempFolder folder;
  const std::string inNowhere = folder.path("nowhere/out");
  expectToolError(kStatusFile, inNowhere + ": cannot be written: No such file or directory",
                  [&] { writeFile(inNowhere, "x"); });
  expectToolError(kStatusFile, inNowhere + ": cannot be read: No such file or directory", [&] { readFile(inNowhere); });
  expectToolError(kStatusFile, folder.path(".") + ": cannot be read: Is a directory",
                  [&] { readFile(folder.path(".")); });
  expectToolError(kStatusFile, "/dev/full: cannot be written: No space left on device",
                  [&] { writeFile("/dev/full", "x"); });
  expectToolError(kStatusFile, folder.path(".") + ": cannot be written: Is a directory",
                  [&] { writeFile(folder.path("."), "x"); });
  EXPECT_TRUE(folder.names().empty());
}

TEST(Files, StreamThatFailsIsAnError) {
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  EXPECT_THROW(writeStream(out, "x"), ToolError);
  std::istringstream in("x");
  in.setstate(std::ios::badbit);
  expectToolError(kStatusFile, "in: cannot be read", [&] { readStream(in, "in"); });
}

TEST(Files, SymbolicLinkIsFollowedAndStays) {
  const TempFolder folder;
  std::filesystem::create_symlink("target", folder.path("link"));
  for (const char* text : {"where nothing was", "where a file is"}) {
    writeFile(folder.path("link"), text);
    EXPECT_EQ(text, bytesOf(folder.path("target")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link")));
  }
  std::filesystem::create_symlink("loop", folder.path("loop"));
  expectToolError(kStatusFile, folder.path("loop") + ": cannot be written: Too many levels of symbolic links",
                  [&] { writeFile(folder.path("loop"), "new"); });
  EXPECT_EQ((std::vector<std::string>{"link", "loop", "target"}), folder.names());
}

TEST(Files, NameMayBeAsLongAsNamesMayBe) {
  const TempFolder folder;
  const std::string name(255, 'x');
  writeFile(folder.path(name), "new");
  writeFile(folder.path(name), "newer");
  EXPECT_EQ("newer", bytesOf(folder.path(name)));
}

TEST(Files, SetUserIdIsNotKeptAndOwnerIs) {
  const TempFolder folder;
  const std::string path = folder.add("out", "old");
  ::chmod(path.c_str(), 06755);
  const bool isRoot = ::geteuid() == 0;
  if (isRoot) {
    ASSERT_EQ(0, ::chown(path.c_str(), 1234, 2345));
  }
  ::chmod(path.c_str(), 06755);
  writeFile(path, "new");
  EXPECT_EQ(0755u, modeOf(path));
  struct stat status {};
  ::stat(path.c_str(), &status);
  EXPECT_EQ(isRoot ? 1234u : ::geteuid(), status.st_uid);
}

TEST(Files, UnfinishedOutputLeavesNothing) {
  const TempFolder folder;
  const std::string path = folder.add("out", "old");
  {
    FileOutput file(path);
    file.write("new");
    EXPECT_EQ(2u, folder.names().size());
  }
  EXPECT_EQ("old", bytesOf(path));
  EXPECT_EQ(std::vector<std::string>{"out"}, folder.names());
}

TEST(Files, SignalsLeaveNothing) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const TempFolder folder;
    const std::string path = folder.add("out", "old");
    EXPECT_EXIT(
        {
          FileOutput file(path);
          file.write("new");
          if (folder.names().size() != 2) std::_Exit(0);
          std::raise(signal);
        },
        testing::KilledBySignal(signal), "");
    EXPECT_EQ("old", bytesOf(path));
    EXPECT_EQ(std::vector<std::string>{"out"}, folder.names());
  }
}
