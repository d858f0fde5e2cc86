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

/// Runs it, which must end with that status and say exactly that.
void expectEnd(int status, const std::string& message, const std::string& command) {
  const TempFolder folder;
  EXPECT_EQ(status, shell(command + " 2> " + folder.path("err")));
  EXPECT_EQ(message, bytesOf(folder.path("err")));
}

}  // namespace

TEST(Binary, ExampleGoesThroughAPipe) {
  const TempFolder folder;
  EXPECT_EQ(0, shell("dxmd example closeConnections | dxmd encode closeConnections > " + folder.path("out")));
  EXPECT_EQ(0u, bytesOf(folder.path("out")).find("<command "));
}

TEST(Binary, CommandDeclaresTheNamespaceGiven) {
  const TempFolder folder;
  EXPECT_EQ(0, shell("dxmd example closeConnections | dxmd encode --query-service-namespace urn:other closeConnections "
                     "--output " +
                     folder.path("out")));
  EXPECT_EQ(0u, bytesOf(folder.path("out")).find("<command xmlns=\"urn:other\" "));
}

TEST(Binary, StandardInputThatCannotBeReadIsStatus3) {
  expectEnd(3, "dxmd: standard input: cannot be read\n", "dxmd decode response < /");
}

TEST(Binary, FullDiskIsStatus3) {
  expectEnd(3, "dxmd: standard output: cannot be written: No space left on device\n", "dxmd kinds > /dev/full");
}

TEST(Binary, ClosedPipeEndsQuietly) {
  // The reader is gone before the first byte is written.
  constexpr int kBySigpipe = 128 + 13;
  expectEnd(kBySigpipe, "", "exec 3> >(:); wait $!; dxmd kinds >&3");
  expectEnd(3, "", "trap '' PIPE; exec 3> >(:); wait $!; dxmd kinds >&3");
}

TEST(Binary, FileThatMayNotGrowLeavesNothing) {
  const TempFolder folder;
  const std::string out = folder.add("out", "old");
  expectEnd(3, "dxmd: " + out + ": cannot be written: File too large\n",
            "ulimit -f 1; dxmd kinds --json --output " + out);
  EXPECT_EQ("old", bytesOf(out));
  EXPECT_EQ(std::vector<std::string>{"out"}, folder.names());
}

TEST(Binary, TerminalHasColoursUnlessTheyAreUnwanted) {
  if (shell("script -qec true /dev/null < /dev/null > /dev/null 2>&1") != 0) GTEST_SKIP() << "no pseudo-terminal here";
  const TempFolder folder;
  const std::string reply = folder.add("reply.xml", "<response/>");
  const auto coloured = [&](const std::string& environment) {
    EXPECT_EQ(0, shell("env -u NO_COLOR " + environment + " script -qec '" DXMD_BINARY " decode response " + reply +
                       "' /dev/null < /dev/null > " + folder.path("out")));
    const std::string shown = bytesOf(folder.path("out"));
    EXPECT_NE(std::string::npos, shown.find("\"rows\"")) << shown;
    return shown.find("\x1B[34m") != std::string::npos;
  };
  EXPECT_TRUE(coloured("TERM=xterm"));
  EXPECT_TRUE(coloured("TERM=xterm NO_COLOR="));
  EXPECT_FALSE(coloured("TERM=xterm NO_COLOR=1"));
  EXPECT_FALSE(coloured("TERM=dumb"));
  EXPECT_FALSE(coloured("-u TERM"));
}

TEST(Binary, StandardOutputByNameIsAppendedTo) {
  const TempFolder folder;
  const std::string log = folder.add("log", "before\n");
  EXPECT_EQ(0, shell("dxmd encode closeConnections --output /dev/stdout <<< {} >> " + log));
  EXPECT_EQ(0, shell("dxmd encode closeConnections --output - <<< {} >> " + log));
  const std::string line = run({"encode", "closeConnections"}, "{}").out;
  EXPECT_EQ("before\n" + line + line, bytesOf(log));
  EXPECT_EQ(std::vector<std::string>{"log"}, folder.names());
}

TEST(Binary, OutputMayBeAPipe) {
  const TempFolder folder;
  const std::string pipe = folder.path("pipe");
  EXPECT_EQ(0, shell("mkfifo " + pipe + "; cat " + pipe + " > " + folder.path("got") +
                     " & dxmd encode closeConnections --output " + pipe + " <<< {} && wait $!"));
  EXPECT_EQ(run({"encode", "closeConnections"}, "{}").out, bytesOf(folder.path("got")));
  EXPECT_EQ((std::vector<std::string>{"got", "pipe"}), folder.names());
}

TEST(Binary, OutOfMemoryIsStatus5AndNoAbort) {
#if defined(DXMD_SANITIZED)
  GTEST_SKIP() << "sanitizers reserve more memory than that";
#endif
  const TempFolder folder;
  const std::string xml = folder.add("deep.xml", "<response>" + std::string(100 << 20, ' ') + "</response>");
  // 200 MB hold the program, but not a text of 100 MB and its tree.
  expectEnd(5, "dxmd: out of memory\n", "ulimit -v 200000; dxmd decode validateReply " + xml);
}
