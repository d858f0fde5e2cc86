#include <cstdlib>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include "RunTool.h"

using namespace dxmd_test;

namespace {

/// Runs a command of bash in which `dxmd` is the program under test.
int shell(const std::string& command) {
  setenv("COMMAND", ("dxmd() { \"" DXMD_BINARY "\" \"$@\"; }\n" + command).c_str(), 1);
  const int status = std::system("bash -c \"$COMMAND\"");
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

TEST(Binary, ExampleGoesThroughAPipe) {
  const TempFolder folder;
  EXPECT_EQ(0, shell("dxmd example closeConnections | dxmd encode closeConnections > " + folder.path("out")));
  EXPECT_EQ(0u, bytesOf(folder.path("out")).find("<command "));
}

TEST(Binary, StandardInputThatCannotBeReadIsStatus3) {
  const TempFolder folder;
  EXPECT_EQ(3, shell("dxmd decode response < " + folder.path(".") + " 2> " + folder.path("err")));
  EXPECT_EQ("dxmd: standard input: cannot be read\n", bytesOf(folder.path("err")));
}

TEST(Binary, FullDiskAndClosedPipeAreStatus3) {
  const TempFolder folder;
  EXPECT_EQ(3, shell("dxmd kinds > /dev/full 2> " + folder.path("err")));
  EXPECT_EQ("dxmd: standard output: cannot be written: No space left on device\n", bytesOf(folder.path("err")));
  // The reader is gone before the first byte is written.
  EXPECT_EQ(3, shell("exec 3> >(:); wait $!; dxmd kinds >&3 2> " + folder.path("err")));
  EXPECT_EQ("dxmd: standard output: cannot be written: Broken pipe\n", bytesOf(folder.path("err")));
}
