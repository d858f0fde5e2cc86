#include "Tool.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <system_error>

#include <dxmd/core/DXNamespaces.h>
#include <CLI/CLI.hpp>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/Progress.h>
#include <tools/dxmd/Registry.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/help/BashCompletion.h>
#include <tools/dxmd/help/Grammar.h>
#include <tools/dxmd/help/HelpTexts.h>
#include <tools/dxmd/help/ManualPage.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/json/SecretNames.h>
#include <tools/dxmd/text/Suggest.h>
#include <tools/dxmd/text/Words.h>

namespace dxmd_tool {

namespace {

const char* const kDescription =
    "Encodes, decodes and checks the messages between the modelling client and its services.";

const char* const kVerbFooter = R"(FILE absent or "-" is standard input. The options and notes of a kind: dxmd )";

const char* const kDecodeFooter =
    R"(What is read may be as it was captured: indented, in an envelope of SOAP, behind headers of HTTP, in
chunks, compressed by gzip, with a prefix on every name. With --exact it is read as it is.
Without KIND, the kind is found out. A first FILE that has the name of a kind is written ./FILE.
Of several files each prints, one after the other; what one fails for does not keep the others from it,
and the worst of their statuses counts.

)";

void tell(std::ostream& err, const std::string& message) {
  err << "dxmd: " << message << std::endl;
}

/// The command line: its grammar, and what it asked for once parsed.
class CommandLine {
 public:
  CommandLine() : m_app(kDescription, "dxmd") {
    m_app.set_version_flag("--version", "dxmd " DXMD_VERSION);
    m_app.set_help_flag("-h,--help", "Print help and exit; there is more for each verb and each kind");
    m_app.footer(helpFooter());
    setUsage(m_app, "VERB [OPTIONS] ...");
    m_encode = addVerb("encode", "Read JSON, write the message as XML", KindOption::kEncode);
    m_decode = addVerb("decode", "Read XML, write what the message holds as JSON", KindOption::kDecode);
    addCheck();
    addFormat();
    addDiff();
    m_kinds = m_app.add_subcommand("kinds", "List the kinds of messages, or describe one");
    m_kinds->add_option("KIND", m_kindName, "The kind to describe")->option_text(" ");
    m_kinds->footer("");
    m_kinds->add_flag("--json", m_json, "Print JSON, for programs: all that is known of the kind, or of all kinds");
    setUsage(*m_kinds, "kinds [OPTIONS] [KIND]");
    addOutput(*m_kinds);
    m_example = m_app.add_subcommand("example", "Print complete JSON to encode");
    m_example->add_option("KIND", m_kindName, "The kind of message")->required()->option_text(" ");
    m_example->footer("");
    setUsage(*m_example, "example [OPTIONS] KIND");
    addOutput(*m_example);
    m_schema = m_app.add_subcommand("schema", "Print the JSON Schema of what encode takes");
    m_schema->add_option("KIND", m_kindName, "The kind of message")->required()->option_text(" ");
    m_schema->footer("");
    setUsage(*m_schema, "schema [OPTIONS] KIND");
    addOutput(*m_schema);
    m_help = m_app.add_subcommand("help", "Print the help of a verb, of a verb with a kind, or of a kind");
    m_help->add_option("VERB", m_helpVerb, "The verb")->option_text(" ");
    m_help->add_option("KIND", m_kindName, "The kind of message")->option_text(" ");
    CLI::Option* const manual = m_help->add_flag("--man", m_manual, "Print the manual page, for man -l");
    manual->option_text(" ");
    m_help
        ->add_flag("--bash", m_completion, "Print what has bash complete command lines, for source <(dxmd help --bash)")
        ->excludes(manual)
        ->option_text(" ");
    m_help->footer("");
    setUsage(*m_help, "help [OPTIONS] [VERB] [KIND]");
    addOutput(*m_help);
    for (CLI::App* verb : m_app.get_subcommands([](const CLI::App*) { return true; })) verb->group("Verbs");
    // Last, since verbs would inherit it: what is no verb ends up here, where it can be told what the verbs are.
    m_app.allow_extras();
    // Behind one verb, the name of another is an argument: a file may be called "schema".
    m_app.require_subcommand(0, 1);
  }
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;

  /// Does what the arguments ask for, and gives the exit status.
  /// @throws ToolError, CLI::ParseError
  Status run(std::vector<std::string> args, std::istream& in, std::ostream& out, std::ostream& err,
             const Console& console) {
    std::reverse(args.begin(), args.end());
    m_app.parse(args);
    const std::unique_ptr<Output> output = outputTo(out, console);
    std::optional<Progress> progress;
    if (console.errIsTerminal) {
      progress.emplace(err, console.seconds, sizeOf(inputs()));
      m_settings.onRead = [&progress](std::size_t bytes) { progress->advance(bytes); };
    }
    const Status status = printResult(in, *output, [&](const std::string& message) {
      if (progress) progress->clear();
      tell(err, message);
    });
    progress.reset();
    // A file that would hold a part of the result stays as it was.
    const bool isWhole = status == kStatusOk || status == kStatusReported || m_diff->parsed() || m_check->parsed();
    if (isWhole || m_settings.output.empty() || m_settings.output == "-") output->finish();
    return status;
  }

  /// Whether the verb that was parsed ends as diff does: with status 2 for any failure.
  bool failsAsDiff() const { return m_diff->parsed(); }

  /// The help of the verb and kind that were parsed.
  /// @throws ToolError when there is no such verb or kind.
  std::string help() const {
    if (m_app.remaining_size() > 0) checkVerb();
    for (const CLI::App* verb : {m_encode, m_decode})
      if (verb->parsed() && verb->remaining_size() > 0) kindOf(*verb);
    return m_app.help();
  }

  /// Refuses the command line, for a reason that the help of the verb and kind explains.
  [[noreturn]] void fail(const std::string& reason) const {
    std::string command = "dxmd";
    for (auto below = m_app.get_subcommands(); !below.empty(); below = below.back()->get_subcommands())
      command += " " + below.back()->get_name();
    throw ToolError(kStatusUsage, reason + " (see " + command + " --help)");
  }

  /// The same, for what the grammar refuses.
  [[noreturn]] void fail(const CLI::ParseError& error) const {
    const std::string reason = error.what();
    const bool isUnexpected = dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr;
    const std::size_t argument = reason.rfind(": ");
    fail(maskedText(reason) +
         (isUnexpected && argument != std::string::npos ? didYouMean(reason.substr(argument + 2), options()) : ""));
  }

 private:
  /// A verb has one subcommand for each kind that it takes, so that a kind's own options are that subcommand's.
  CLI::App* addVerb(const char* name, const char* help, KindOption::Verb verb) {
    CLI::App* app = m_app.add_subcommand(name, help);
    const bool encodes = verb == KindOption::kEncode;
    app->footer((encodes ? "" : kDecodeFooter) + std::string(kVerbFooter) + name + " KIND --help");
    setUsage(*app, name + std::string(encodes ? " [OPTIONS] KIND [FILE]" : " [OPTIONS] [KIND] [FILE]..."));
    if (!encodes) addFiles(*app);
    addInputOutput(*app, verb);
    for (const Kind& kind : allKinds()) {
      CLI::App* command = app->add_subcommand(kind.name, kind.summary)->ignore_case();
      command->group("Kinds");
      command->footer("Keys of the JSON: dxmd kinds " + kind.name + "\n" + notesOf(kind));
      setUsage(*command, name + (" " + kind.name) + " [OPTIONS] [FILE]" + (encodes ? "" : "..."));
      if (encodes)
        command->add_option("FILE", m_settings.file, "The JSON to read")->option_text(" ");
      else
        addFiles(*command);
      addInputOutput(*command, verb);
      for (const KindOption& option : kind.options)
        if (option.verb == verb) addKindOption(*command, option);
    }
    // An unknown kind ends up here, where it can be told what the kinds are.
    app->allow_extras();
    app->require_subcommand(0, 1);
    return app;
  }

  void addCheck() {
    m_check = m_app.add_subcommand("check", "Check messages against the schemas of their kinds");
    m_check->add_option("FILE", m_files, "The XML to check; in front the name of its kind may stand")->option_text(" ");
    m_check->footer(
        "Says of each file whether it is well-formed, of what kind the message in it is, and each place that does\n"
        "not fit, with line and column. FILE absent or \"-\" is standard input. A first FILE that has the name of a\n"
        "kind is written ./FILE.");
    setUsage(*m_check, "check [OPTIONS] [KIND] [FILE]...");
    m_check->add_option("--errors", m_errors, "How to say it: as text, by default, or as JSON")
        ->option_text("text|json")
        ->check(CLI::IsMember({"text", "json"}));
    addNamespace(*m_check, "--query-service-namespace", m_queryServiceNamespace,
                 "The namespace of commands, where the deployment has its own");
    addNamespace(*m_check, "--service-bus-namespace", m_serviceBusNamespace,
                 "The namespace of the types of parameter values, where the deployment has its own");
    m_check->add_option("--schemas", m_checkSettings.schemas, "The folder of the schemas")->option_text("FOLDER");
    addOutput(*m_check);
  }

  static void addNamespace(CLI::App& app, const char* name, std::string& uri, const char* help) {
    app.add_option(name, uri, help)->option_text("URI")->check([](const std::string& given) {
      return given.empty() ? "must not be empty" : "";
    });
  }

  void addFormat() {
    m_format = m_app.add_subcommand("format", "Print XML indented and without secrets");
    m_format->add_option("FILE", m_settings.file, "The XML to read")->option_text(" ");
    m_format->footer("FILE absent or \"-\" is standard input. It may hold any XML.");
    setUsage(*m_format, "format [OPTIONS] [FILE]");
    m_format->add_option("--indent", m_settings.indent, "Spaces per level, by default 2")
        ->option_text("N")
        ->check(CLI::Range(0U, 16U));
    addReading(*m_format);
    addOutput(*m_format);
  }

  void addDiff() {
    m_diff = m_app.add_subcommand("diff", "Compare two messages as JSON");
    m_diff->add_option("FILES", m_files, "The two messages")->expected(2)->required()->option_text("LEFT RIGHT");
    m_diff->footer(
        "Each place that differs prints as it is in LEFT, behind \"- \", and in RIGHT, behind \"+ \". Secrets are "
        "compared\n"
        "too, and print as ***. Exit status: 0 the same, 1 different, 2 something failed.");
    setUsage(*m_diff, "diff [OPTIONS] LEFT RIGHT");
    m_diff->add_option("--kind", m_kindName, "Their kind; by default it is found out")->option_text("KIND");
    addReading(*m_diff);
    addOutput(*m_diff);
  }

  void addFiles(CLI::App& app) { app.add_option("FILE", m_files, "The XML to read")->option_text(" "); }

  /// The options of verbs that read XML.
  void addReading(CLI::App& app) {
    app.add_flag("--exact", m_settings.exact,
                 "Read the document as it is, with what is around the message and between its elements");
    app.add_flag("--show-secrets", m_settings.showSecrets, "Print passwords, passports and tickets");
  }

  void addInputOutput(CLI::App& app, KindOption::Verb verb) {
    if (verb == KindOption::kEncode) {
      app.add_option("--indent", m_settings.indent,
                     "Spaces per level, for people to read: several readers take no white space between elements")
          ->option_text("N")
          ->check(CLI::Range(0U, 16U));
      addNamespace(app, "--query-service-namespace", m_queryServiceNamespace,
                   "The namespace that commands declare, where the deployment has its own");
    } else {
      app.add_option("--indent", m_settings.indent, "Spaces per level of the JSON, by default 2; 0 writes one line")
          ->option_text("N")
          ->check(CLI::Range(0U, 16U));
      addReading(app);
    }
    addOutput(app);
  }

  void addOutput(CLI::App& app) {
    app.add_option("-o,--output", m_settings.output,
                   "Write this file, whole or not at all; \"-\" is standard output, as by default")
        ->option_text("FILE");
  }

  void addKindOption(CLI::App& app, const KindOption& option) {
    CLI::Option* added = app.add_option_function<std::string>(
        option.name, [this, name = option.name](const std::string& value) { m_kindValues[name] = value; }, option.help);
    added->option_text(option.argument);
    if (!option.choices.empty()) added->check(CLI::IsMember(option.choices));
  }

  std::unique_ptr<Output> outputTo(std::ostream& out, const Console& console) const {
    if (!m_settings.output.empty() && m_settings.output != "-") return std::make_unique<FileOutput>(m_settings.output);
    if (console.outIsTerminal) return std::make_unique<TerminalOutput>(out, console.hasColours);
    return std::make_unique<StreamOutput>(out);
  }

  /// The files that are read.
  std::vector<std::string> inputs() const {
    return m_files.empty() ? std::vector<std::string>{m_settings.file} : m_files;
  }

  /// The size of the files; 0 when it is not known.
  static std::uintmax_t sizeOf(const std::vector<std::string>& files) {
    std::uintmax_t whole = 0;
    for (const std::string& file : files) {
      std::error_code error;
      const std::uintmax_t size = std::filesystem::file_size(file, error);
      if (error) return 0;
      whole += size;
    }
    return whole;
  }

  Status printResult(std::istream& in, Output& out, const std::function<void(const std::string&)>& tellMessage) {
    checkVerb();
    m_settings.kindOptions = KindOptions(m_kindValues);
    if (!m_queryServiceNamespace.empty()) DXNamespaces::SetQueryService(m_queryServiceNamespace.c_str());
    if (m_decode->parsed()) return decodeAll(kindToDecode(), m_settings, inputs(), in, out, tellMessage);
    if (!m_serviceBusNamespace.empty()) DXNamespaces::SetServiceBus(m_serviceBusNamespace.c_str());
    if (m_check->parsed()) {
      m_checkSettings.errorsAsJson = m_errors == "json";
      const Kind* const kind = takeKindToCheck();  // leaves the files
      return check(kind, m_settings, m_checkSettings, inputs(), in, out);
    }
    if (m_diff->parsed()) {
      const Kind* const kind = m_kindName.empty() ? nullptr : &findKind(m_kindName);
      return diff(kind, m_settings, m_files[0], m_files[1], in, out) ? kStatusOk : kStatusUnfit;
    }
    if (m_encode->parsed())
      encode(kindOf(*m_encode), m_settings, in, out);
    else if (m_format->parsed())
      format(m_settings, in, out);
    else
      out.write(description());
    return kStatusOk;
  }

  /// What there is to say of kinds.
  std::string description() const {
    if (m_help->parsed()) return requestedHelp();
    if (m_example->parsed()) return findKind(m_kindName).example + "\n";
    if (m_schema->parsed()) return schema(findKind(m_kindName));
    if (m_kindName.empty()) return m_json ? describeAllForPrograms() : listKinds();
    return m_json ? describeForPrograms(findKind(m_kindName)) : describe(findKind(m_kindName));
  }

  /// What `dxmd help` asks for.
  std::string requestedHelp() const {
    if (m_manual) return manualPage(grammarOf(m_app), DXMD_VERSION);
    if (m_completion) return bashCompletion(grammarOf(m_app));
    if (m_helpVerb.empty()) return helpOf(m_app);
    const CLI::App* const verb = commandOf(m_app, m_helpVerb);
    if (verb == nullptr && m_kindName.empty() && isKind(m_helpVerb)) return describe(findKind(m_helpVerb));
    if (verb == nullptr) failUnknownVerb(m_helpVerb);
    if (m_kindName.empty()) return helpOf(*verb);
    const CLI::App* const kind = commandOf(*verb, findKind(m_kindName).name);
    if (kind == nullptr) failUnexpected(m_kindName);
    return helpOf(*kind);
  }

  /// The subcommand of that name; null when there is none.
  static const CLI::App* commandOf(const CLI::App& app, const std::string& name) {
    const auto found = app.get_subcommands([&](const CLI::App* below) { return below->get_name() == name; });
    return found.empty() ? nullptr : found[0];
  }

  /// Refuses anything but one verb.
  void checkVerb() const {
    const std::vector<std::string> extras = m_app.remaining();
    const bool hasVerb = !m_app.get_subcommands().empty();
    if (!extras.empty() && (hasVerb || isOption(extras[0]))) failUnexpected(extras[0]);
    if (!extras.empty()) failUnknownVerb(extras[0]);
    if (!hasVerb) fail("a verb is needed: " + joined(verbs(), ", ", " or "));
  }

  std::vector<std::string> verbs() const {
    std::vector<std::string> names;
    for (const CLI::App* verb : m_app.get_subcommands({})) names.push_back(verb->get_name());
    return names;
  }

  [[noreturn]] void failUnknownVerb(const std::string& name) const {
    if (isKind(name))
      fail(inQuotes(name) + " is a kind of message, and a verb is needed: " + joined(verbs(), ", ", " or "));
    fail(inQuotes(name) + " is no verb; the verbs are " + joined(verbs(), ", ", " and ") + didYouMean(name, verbs()));
  }

  /// The kind that the verb was given.
  const Kind& kindOf(const CLI::App& verb) const {
    const std::vector<std::string> extras = verb.remaining();
    const auto kinds = verb.get_subcommands();
    if (!extras.empty() && (!kinds.empty() || isOption(extras[0]))) failUnexpected(extras[0]);
    if (extras.empty() && kinds.empty()) fail("a kind of message is needed");
    return findKind(kinds.empty() ? extras[0] : kinds[0]->get_name());
  }

  static bool isKind(const std::string& name) {
    const std::vector<Kind>& kinds = allKinds();
    return std::any_of(kinds.begin(), kinds.end(),
                       [&](const Kind& kind) { return lowerCase(kind.name) == lowerCase(name); });
  }

  /// The kind that decode was given; null when it is to be found out.
  const Kind* kindToDecode() const {
    const std::vector<std::string> extras = m_decode->remaining();
    if (!extras.empty()) failUnexpected(extras[0]);
    if (const auto kinds = m_decode->get_subcommands(); !kinds.empty()) return &findKind(kinds[0]->get_name());
    if (!m_files.empty() && mayBeKind(m_files[0])) findKind(m_files[0]);
    return nullptr;
  }

  /// Takes the kind that check was given from in front of the files; null when it is to be found out.
  const Kind* takeKindToCheck() {
    if (m_files.empty() || !(isKind(m_files[0]) || mayBeKind(m_files[0]))) return nullptr;
    const Kind& kind = findKind(m_files[0]);
    m_files.erase(m_files.begin());
    return &kind;
  }

  /// What looks like a name and is no file may be a kind that was mistyped.
  static bool mayBeKind(const std::string& file) {
    std::error_code error;
    return file.find_first_of("./-") == std::string::npos && !std::filesystem::exists(file, error);
  }

  static bool isOption(const std::string& argument) { return argument.compare(0, 1, "-") == 0; }

  [[noreturn]] void failUnexpected(const std::string& argument) const {
    fail("unexpected argument " + inQuotes(argument) + didYouMean(argument.substr(0, argument.find('=')), options()));
  }

  /// The options that are known where the command line ends.
  std::vector<std::string> options() const {
    const CLI::App* app = &m_app;
    for (auto below = app->get_subcommands(); !below.empty(); below = app->get_subcommands()) app = below.back();
    std::vector<std::string> names;
    for (const CLI::Option* option : app->get_options())
      for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
    return names;
  }

  CLI::App m_app;
  CLI::App* m_encode;
  CLI::App* m_decode;
  CLI::App* m_check;
  CLI::App* m_format;
  CLI::App* m_diff;
  CLI::App* m_kinds;
  CLI::App* m_example;
  CLI::App* m_schema;
  CLI::App* m_help;
  Settings m_settings;
  std::vector<std::string> m_files;
  std::string m_queryServiceNamespace;
  std::string m_serviceBusNamespace;
  std::string m_errors;
  CheckSettings m_checkSettings;
  std::string m_kindName;
  std::string m_helpVerb;
  bool m_manual = false;
  bool m_completion = false;
  bool m_json = false;
  std::map<std::string, std::string> m_kindValues;
};

}  // namespace

int runTool(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err,
            const Console& console) {
  Status status = kStatusOk;
  bool failsAsDiff = false;
  const Outcome outcome = outcomeOf([&] {
    CommandLine commandLine;
    try {
      status = commandLine.run(args, in, out, err, console);
    } catch (const CLI::CallForHelp&) {
      writeStream(out, commandLine.help());
    } catch (const CLI::CallForVersion& version) {
      writeStream(out, version.what() + std::string("\n"));
    } catch (const CLI::ParseError& error) {
      commandLine.fail(error);
    } catch (...) {
      failsAsDiff = commandLine.failsAsDiff();
      throw;
    }
  });
  if (outcome.status == kStatusOk) return status;
  if (!outcome.message.empty()) tell(err, outcome.message);
  return failsAsDiff ? kStatusUsage : outcome.status;
}

}  // namespace dxmd_tool
