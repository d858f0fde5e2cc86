#include "ManualPage.h"

#include <cctype>

#include <tools/dxmd/help/HelpTexts.h>

namespace dxmd_tool {

namespace {

const char* const kEnvironment = R"(.SH ENVIRONMENT
.TP
.B NO_COLOR
Set to anything, keeps the JSON on a terminal without colours.
.TP
.B TERM
The same when it is
.B dumb
or not set.
)";

bool isUpper(char c) {
  return std::isupper(static_cast<unsigned char>(c)) != 0;
}

bool isLower(char c) {
  return std::islower(static_cast<unsigned char>(c)) != 0;
}

/// The character as troff is to print it: some are its own syntax, others it prints as typographic ones.
std::string plain(char c) {
  switch (c) {
    case '\\':
      return "\\e";
    case '-':
      return "\\-";
    case '\'':
      return "\\(aq";
    case '"':
      return "\\(dq";
    case '`':
      return "\\(ga";
    case '^':
      return "\\(ha";
    case '~':
      return "\\(ti";
    default:
      return {c};
  }
}

/// Text for troff. A line of the input is a line of the source, none of which is a request.
std::string plain(const std::string& text) {
  std::string escaped;
  bool atStart = true;
  for (const char c : text) {
    if (atStart && (c == '.' || c == '\'')) escaped += "\\&";
    atStart = c == '\n';
    escaped += plain(c);
  }
  return escaped;
}

/// What is typed as it stands is bold, what stands for something else, in capitals, is italic.
std::string typed(const std::string& text) {
  std::string markup = "\\fB";
  bool inPlace = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPlace =
        isUpper(text[i]) && !(i > 0 && isLower(text[i - 1])) && !(i + 1 < text.size() && isLower(text[i + 1]));
    const bool isSyntax = text[i] == '[' || text[i] == ']' || text[i] == '|' || text[i] == '.';
    if (isPlace != inPlace) markup += isPlace ? "\\fI" : "\\fB";
    inPlace = isPlace;
    markup += isSyntax ? "\\fR" + std::string(1, text[i]) + (isPlace ? "\\fI" : "\\fB") : plain(text[i]);
  }
  return markup + "\\fR";
}

std::string optionEntry(const GrammarOption& option) {
  std::string names;
  for (const std::string& name : option.names) names += (names.empty() ? "" : ", ") + typed(name);
  if (!option.argument.empty()) names += " " + typed(option.argument);
  return ".TP\n" + names + "\n" + plain(option.help) + ".\n";
}

std::string section(const std::string& title, const std::string& text) {
  return ".SH " + title + "\n" + plain(text) + "\n";
}

std::string verbSection(const GrammarCommand& verb, const GrammarCommand& program) {
  std::string text = ".SS " + verb.name + "\n" + typed(verb.usage) + "\n.PP\n" + plain(verb.summary) + ".\n";
  for (const GrammarOption& option : verb.ownOptions(program)) text += optionEntry(option);
  for (const GrammarCommand& kind : verb.commands) {
    const auto own = kind.ownOptions(verb);
    if (own.empty()) continue;
    text += ".PP\nWith the kind " + typed(kind.name) + " besides:\n";
    for (const GrammarOption& option : own) text += optionEntry(option);
  }
  return text;
}

/// The kinds that verbs take, once.
std::string kindsSection(const GrammarCommand& program) {
  for (const GrammarCommand& verb : program.commands) {
    if (verb.commands.empty()) continue;
    std::string text = ".SH KINDS\nThe keys of a kind\\(aqs JSON are told by " + typed("dxmd kinds KIND") + ".\n";
    for (const GrammarCommand& kind : verb.commands)
      text += ".TP\n" + typed(kind.name) + "\n" + plain(kind.summary) + ".\n";
    return text;
  }
  return "";
}

}  // namespace

std::string manualPage(const GrammarCommand& program, const std::string& version) {
  std::string summary = program.summary;
  if (!summary.empty() && summary.back() == '.') summary.pop_back();
  if (!summary.empty()) summary[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(summary[0])));
  std::string page = ".\\\" Made by \"dxmd help --man\".\n";
  page += ".TH DXMD 1 \"\" \"" + plain(program.name + " " + version) + "\" \"User Commands\"\n";
  page += ".SH NAME\n" + program.name + " \\- " + plain(summary) + "\n";
  page += ".SH SYNOPSIS\n";
  for (const GrammarCommand& verb : program.commands) page += typed(verb.usage) + "\n.br\n";
  page += typed(program.name + " --help") + "\n";
  page += section("DESCRIPTION", program.summary + "\n" + kInputText);
  page += ".PP\nAn option of a verb stands before or behind the kind.\n";
  page += ".SH OPTIONS\n";
  for (const GrammarOption& option : program.options) page += optionEntry(option);
  page += ".SH VERBS\n";
  for (const GrammarCommand& verb : program.commands) page += verbSection(verb, program);
  page += kindsSection(program);
  page += ".SH \"EXIT STATUS\"\n";
  for (const StatusText& status : statusTexts())
    page += ".TP\n" + typed(std::to_string(status.status)) + "\n" + plain(status.meaning) + ".\n";
  page += section("SECRETS", kSecretsText);
  page += kEnvironment;
  page += ".SH EXAMPLES\n.EX\n";
  for (const char* example : exampleTexts()) page += plain(example) + "\n";
  return page + ".EE\n";
}

}  // namespace dxmd_tool
