#ifndef TOOLS_DXMD_VERBS_H
#define TOOLS_DXMD_VERBS_H

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

/// What the command line says beside the verb and the kind.
struct Settings {
  std::string file = "-";          ///< the input; "-" is standard input
  std::string output;              ///< empty is standard output
  std::optional<unsigned> indent;  ///< by default 0 for XML, 2 for JSON
  bool showSecrets = false;
  std::function<void(std::size_t bytes)> onRead = [](std::size_t) {};  ///< told of what is read of the input
  KindOptions kindOptions;
};

// What each verb gives to print. @throws ToolError

/// JSON read, XML written.
void encode(const Kind& kind, const Settings& settings, std::istream& in, Output& out);
std::string encode(const Kind& kind, const Settings& settings, std::istream& in);

/// XML read, JSON written, or what the kind gives in its stead.
void decode(const Kind& kind, const Settings& settings, std::istream& in, Output& out);
std::string decode(const Kind& kind, const Settings& settings, std::istream& in);

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
