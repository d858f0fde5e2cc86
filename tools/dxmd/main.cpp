#include <csignal>
#include <iostream>

#include <tools/dxmd/Tool.h>

int main(int argc, char** argv) {
  // A reader that goes away is a failed write, reported as such.
  std::signal(SIGPIPE, SIG_IGN);
  std::ios::sync_with_stdio(false);
  return dxmd_tool::runTool({argv + 1, argv + argc}, std::cin, std::cout, std::cerr);
}
