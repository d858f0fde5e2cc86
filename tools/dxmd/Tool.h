#ifndef TOOLS_DXMD_TOOL_H
#define TOOLS_DXMD_TOOL_H

#include <iosfwd>
#include <string>
#include <vector>

namespace dxmd_tool {

/// Runs the command line and returns its exit status. Nothing is thrown; what went wrong is one line on `err`.
/// @param args  the arguments behind the program's name.
int runTool(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace dxmd_tool

#endif
