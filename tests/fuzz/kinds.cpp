// Every kind of dxmd decodes and encodes any input, or refuses it as such; what comes out is well-formed. The input is
// a command line without the program, as in "decode response --format csv", and what the tool reads.

#include <map>
#include <sstream>

#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/core/DXNamespaces.h>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/Registry.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/check/Checker.h>
#include <tools/dxmd/json/JsonParser.h>

#include "Target.h"
#include "Titled.h"

using namespace dxmd_fuzz;
using namespace dxmd_tool;

namespace {

using Verb = std::string (*)(const Kind& kind, const Settings& settings, std::istream& in);

/// What the verb gives, or that it refuses.
struct Result {
  Status status;
  std::string text;
};

Result run(Verb verb, const Kind& kind, const Settings& settings, const std::string& text) {
  std::istringstream in(text);
  try {
    return {kStatusOk, verb(kind, settings, in)};
  } catch (const ToolError& error) {
    const Status status = error.status();
    require(status == kStatusUnfit || status == kStatusSyntax || status == kStatusReported, error.what());
    return {error.status(), error.what()};
  }
}

void checkEncode(const Kind& kind, const Settings& settings, const std::string& json) {
  const Result xml = run(encode, kind, settings, json);
  if (xml.status != kStatusOk) return;
  TRNIDOM_Parser::parseString(xml.text);
  Settings open;
  open.showSecrets = true;
  require(run(decode, kind, open, xml.text).status != kStatusSyntax, "no XML: " + xml.text);
}

void checkDecode(const Kind& kind, const Settings& settings, const std::string& xml) {
  run(decode, kind, settings, xml);
  Settings open = settings;
  open.showSecrets = true;
  open.indent = 0;
  const Result decoded = run(decode, kind, open, xml);
  if (decoded.status != kStatusOk) return;
  // Other formats may begin so too.
  if (settings.kindOptions.value("--format").value_or("json") != "json" || decoded.text[0] != '{') return;
  parseJson(decoded.text, "decoded");
  require(run(encode, kind, Settings(), decoded.text).status != kStatusSyntax, "no JSON: " + decoded.text);
}

const std::map<std::string, void (*)(const Kind&, const Settings&, const std::string&)> kVerbs{{"decode", checkDecode},
                                                                                               {"encode", checkEncode}};

std::string encodedExample(const Kind& kind) {
  std::istringstream in(kind.example);
  return encode(kind, Settings(), in);
}

const Kind* kindNamed(const std::string& name) {
  for (const Kind& kind : allKinds())
    if (kind.name == name) return &kind;
  return nullptr;
}

bool isOptionOf(const Kind& kind, const std::string& name, const std::string& value) {
  for (const KindOption& option : kind.options)
    for (const std::string& choice : option.choices)
      if (option.name == name && choice == value && option.verb == KindOption::kDecode) return true;
  return false;
}

}  // namespace

const std::vector<Titled>& dxmd_fuzz::examples() {
  static const std::vector<Titled> all = [] {
    std::vector<Titled> found;
    for (const Kind& kind : allKinds()) {
      found.push_back({"encode " + kind.name, kind.example});
      const std::string decode = "decode " + kind.name;
      for (const char* verb : {"check ", "decode ", "format "})
        found.push_back({verb + kind.name, encodedExample(kind)});
      for (const KindOption& option : kind.options)
        for (const std::string& choice : option.choices)
          if (option.verb == KindOption::kDecode)
            found.push_back({decode + " " + option.name + " " + choice, encodedExample(kind)});
    }
    return found;
  }();
  return all;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Titled input = titled(textOf(data, size));
  std::istringstream words(input.title);
  std::string verb;
  std::string name;
  std::string option;
  std::string value;
  words >> verb >> name >> option >> value;
  const auto check = kVerbs.find(verb);
  const Kind* const kind = kindNamed(name);
  if (check == kVerbs.end() || kind == nullptr) return -1;  // no input for the corpus
  Settings settings;
  if (isOptionOf(*kind, option, value))
    settings.kindOptions = KindOptions(std::map<std::string, std::string>{{option, value}});
  check->second(*kind, settings, input.body);
  return 0;
}
