#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iostream>

#include <unistd.h>

#include <tools/dxmd/Tool.h>

namespace {

/// https://no-color.org
bool wantsColours() {
  const char* const noColour = std::getenv("NO_COLOR");
  const char* const terminal = std::getenv("TERM");
  return (noColour == nullptr || *noColour == '\0') && terminal != nullptr && std::strcmp(terminal, "dumb") != 0;
}

}  // namespace

int main(int argc, char** argv) {
  // A file that may not become that large is a failed write, after which nothing of it is left.
  std::signal(SIGXFSZ, SIG_IGN);
  std::ios::sync_with_stdio(false);
  const auto start = std::chrono::steady_clock::now();
  dxmd_tool::Console console;
  console.outIsTerminal = ::isatty(STDOUT_FILENO) == 1;
  console.errIsTerminal = ::isatty(STDERR_FILENO) == 1;
  console.hasColours = console.outIsTerminal && wantsColours();
  console.seconds = [start] { return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(); };
  return dxmd_tool::runTool({argv + 1, argv + argc}, std::cin, std::cout, std::cerr, console);
}
