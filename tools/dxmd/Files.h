#ifndef TOOLS_DXMD_FILES_H
#define TOOLS_DXMD_FILES_H

#include <iosfwd>
#include <string>

namespace dxmd_tool {

/// The whole of a file.
/// @throws ToolError (file)
std::string readFile(const std::string& path);

/// The rest of a stream; `name` names it in errors.
/// @throws ToolError (file)
std::string readStream(std::istream& in, const std::string& name);

/// Writes a file whole or not at all: beside its place, then renamed onto it. The mode of a file that is replaced
/// stays. A symbolic link is followed; what is no regular file, such as a pipe, is written directly.
/// @throws ToolError (file)
void writeFile(const std::string& path, const std::string& bytes);

/// Writes to a stream.
/// @throws ToolError (file)
void writeStream(std::ostream& out, const std::string& bytes);

}  // namespace dxmd_tool

#endif
