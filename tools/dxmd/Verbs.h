#ifndef TOOLS_DXMD_VERBS_H
#define TOOLS_DXMD_VERBS_H

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/Input.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/ToolError.h>

namespace dxmd_tool {

/// The spaces per level of JSON, when the command line does not say.
constexpr unsigned kJsonIndent = 2;

/// What the command line says beside the verb and the kind.
struct Settings {
  std::string file = "-";          ///< the input; "-" is standard input
  std::string output;              ///< empty is standard output
  std::optional<unsigned> indent;  ///< by default 0 for XML, 2 for JSON
  bool showSecrets = false;
  bool exact = false;  ///< XML is read as it is, with all that is around the message and between its elements
  std::function<void(std::size_t bytes)> onRead = [](std::size_t) {};  ///< told of what is read of the input
  KindOptions kindOptions;
};

// What each verb gives to print. @throws ToolError

/// JSON read, XML written.
void encode(const Kind& kind, const Settings& settings, std::istream& in, Output& out);
std::string encode(const Kind& kind, const Settings& settings, std::istream& in);

/// XML read, JSON written, or what the kind gives in its stead.
void decode(const Kind& kind, const Settings& settings, const Input& input, Output& out);
std::string decode(const Kind& kind, const Settings& settings, std::istream& in);

/// The same of several files, one after the other. What one fails for is told, and the next is decoded.
/// @param kind  null for each to be of the kind that it is found to be.
/// @return the worst of their statuses: of `kStatusReported` the result is whole.
Status decodeAll(const Kind* kind, const Settings& settings, const std::vector<std::string>& files, std::istream& in,
                 Output& out, const std::function<void(const std::string& message)>& tell);

/// XML read and written with indentation, without secrets unless they are asked for.
void format(const Settings& settings, std::istream& in, Output& out);

/// Two messages read and compared as JSON; writes where they differ.
/// @param kind  null for each to be of the kind that it is found to be.
/// @return whether they are the same.
bool diff(const Kind* kind, const Settings& settings, const std::string& left, const std::string& right,
          std::istream& in, Output& out);

/// How documents are checked.
struct CheckSettings {
  std::string schemas;  ///< the folder of the schemas; empty is that of the installation
  bool errorsAsJson = false;
};

/// Says of each file whether it is well-formed, of what kind it is, and where it does not fit the schema of that kind.
/// @param kind  null for each to be of the kind that it is found to be.
/// @return the worst of their statuses.
Status check(const Kind* kind, const Settings& settings, const CheckSettings& how,
             const std::vector<std::string>& files, std::istream& in, Output& out);

/// The kinds, one line each.
std::string listKinds();

/// All that there is to say of one kind.
std::string describe(const Kind& kind);

/// The same for programs, of one kind or of all, as JSON.
std::string describeForPrograms(const Kind& kind);
std::string describeAllForPrograms();

/// The JSON Schema of what `encode` takes.
std::string schema(const Kind& kind);

/// The notes and element names of a kind, which its help ends with.
std::string notesOf(const Kind& kind);

}  // namespace dxmd_tool

#endif
