#ifndef TOOLS_DXMD_TOOL_H
#define TOOLS_DXMD_TOOL_H

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace dxmd_tool {

/// What the streams are connected to.
struct Console {
  bool outIsTerminal = false;
  bool errIsTerminal = false;
  bool hasColours = false;  ///< what is printed on a terminal may have colours
  /// How many seconds the program has been running.
  std::function<double()> seconds = [] { return 0.0; };
};

/// Runs the command line and returns its exit status. Nothing is thrown; what went wrong is one line on `err`.
/// @param args  the arguments behind the program's name.
int runTool(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err,
            const Console& console = Console());

}  // namespace dxmd_tool

#endif
