#ifndef TOOLS_DXMD_HELP_GRAMMAR_H
#define TOOLS_DXMD_HELP_GRAMMAR_H

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace dxmd_tool {

/// An option as it is typed.
struct GrammarOption {
  std::vector<std::string> names;  ///< with their dashes, the short ones first
  std::string argument;            ///< what its value is: "FILE", "json|csv"; empty for a flag
  std::string help;
};

/// An argument that stands by its position.
struct GrammarPositional {
  std::string name;  ///< what it is: "FILE", "KIND"
  bool repeats;      ///< any number of them may stand there
};

/// The program, a verb, or a kind behind a verb. What is generated from the grammar goes by this, so that it has all
/// that the program takes and nothing else.
struct GrammarCommand {
  std::string name;
  std::string summary;
  std::string usage;  ///< "dxmd kinds [OPTIONS] [KIND]"
  std::vector<GrammarOption> options;
  std::vector<GrammarPositional> positionals;
  std::vector<GrammarCommand> commands;  ///< verbs, or a verb's kinds

  /// The options that `above`, the command that this one stands behind, does not have.
  std::vector<GrammarOption> ownOptions(const GrammarCommand& above) const;
};

GrammarCommand grammarOf(const CLI::App& app);

/// Has the help of `app` say how it is used: "kinds [OPTIONS] [KIND]", without the program's name.
void setUsage(CLI::App& app, const std::string& usage);

/// The help of `app` itself, whichever of its subcommands was parsed.
std::string helpOf(const CLI::App& app);

}  // namespace dxmd_tool

#endif
