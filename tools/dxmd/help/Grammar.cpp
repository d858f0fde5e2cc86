#include "Grammar.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include <CLI/CLI.hpp>

namespace dxmd_tool {

namespace {

const char* const kUsageLabel = "Usage: ";

/// Help whose usage says what stands behind the command's name.
class UsageFormatter : public CLI::Formatter {
 public:
  explicit UsageFormatter(std::string usage) : m_usage(std::move(usage)) {}

  std::string make_usage(const CLI::App*, std::string) const override { return kUsageLabel + m_usage + "\n"; }
  const std::string& usage() const { return m_usage; }

 private:
  std::string m_usage;
};

std::string usageOf(const CLI::App& app) {
  const auto formatter = std::dynamic_pointer_cast<UsageFormatter>(app.get_formatter());
  return formatter ? formatter->usage() : app.get_name();
}

GrammarOption optionOf(const CLI::Option& option) {
  GrammarOption found;
  for (const std::string& name : option.get_snames()) found.names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) found.names.push_back("--" + name);
  if (option.get_items_expected_max() > 0) found.argument = option.get_option_text();
  found.help = option.get_description();
  return found;
}

}  // namespace

std::vector<GrammarOption> GrammarCommand::ownOptions(const GrammarCommand& above) const {
  std::vector<GrammarOption> own;
  std::copy_if(options.begin(), options.end(), std::back_inserter(own), [&](const GrammarOption& option) {
    return std::none_of(above.options.begin(), above.options.end(),
                        [&](const GrammarOption& other) { return other.names == option.names; });
  });
  return own;
}

GrammarCommand grammarOf(const CLI::App& app) {
  GrammarCommand command;
  command.name = app.get_name();
  command.summary = app.get_description();
  command.usage = usageOf(app);
  for (const CLI::Option* option : app.get_options()) {
    if (option->nonpositional())
      command.options.push_back(optionOf(*option));
    else
      command.positionals.push_back({option->get_name(true, false), option->get_items_expected_max() > 1});
  }
  for (const CLI::App* below : app.get_subcommands({})) command.commands.push_back(grammarOf(*below));
  return command;
}

void setUsage(CLI::App& app, const std::string& usage) {
  app.formatter(std::make_shared<UsageFormatter>("dxmd " + usage));
}

std::string helpOf(const CLI::App& app) {
  return app.get_formatter()->make_help(&app, "", CLI::AppFormatMode::Normal);
}

}  // namespace dxmd_tool
