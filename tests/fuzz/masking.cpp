// A secret that stands where the masking looks for one survives in no output, whatever stands around it. The bytes are
// the choices of where it is planted, and in what.

#include <array>
#include <sstream>
#include <string_view>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DXNamespaces.h>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/Registry.h>
#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/check/Checker.h>
#include <tools/dxmd/json/Json.h>

#include "JsonValues.h"
#include "Target.h"

using namespace dxmd_fuzz;
using namespace dxmd_tool;

namespace {

const std::string kSecret = "qz7xw9";

const std::array<const char*, 14> kNames = {"password",    "Password",      "PWD",       "cubePassword", "SSOTicket",
                                            "VAMPassport", "apiKey",        "api-token", "access_token", "clientSecret",
                                            "secret",      "Authorization", "db.passwd", "passphrase"};

const std::array<const char*, 40> kPieces = {
    "a",  "b c", "=",  ":", ";",    "@",   "/",      "//",     "://", "'",    "\"",       "\\",  "{",      "}",
    "[",  "]",   "(",  ")", ",",    "&",   "&amp;",  "?",      "<",   ">",    "</a>",     "<a>", "<b c='", "<!--",
    "\n", "\r",  "\t", " ", "user", "pwd", "PWD=x;", "token:", "key", "name", "\xC3\xA4", "8080"};

void requireHidden(const std::string& output, const std::string& input) {
  require(output.find(kSecret) == std::string::npos, "the secret shows in\n" + output + "\nof\n" + input);
}

class Planter {
 public:
  explicit Planter(Choices& choices) : m_choose(choices) {}

  bool oneIn(std::size_t count) { return m_choose(count) == 0; }
  std::string name() { return kNames[m_choose(kNames.size())]; }

  /// Anything but what has one of the characters.
  std::string junk(std::string_view but = "") {
    std::string text;
    for (std::size_t left = m_choose(8); left > 0; --left) {
      const std::string piece = kPieces[m_choose(kPieces.size())];
      if (piece.find_first_of(but) == std::string::npos) text += piece;
    }
    return text;
  }

  /// The secret, as the text around it ends it.
  std::string planted() {
    switch (m_choose(8)) {
      case 0:
        return name() + "=p" + junk(";\n\r\"'<>") + kSecret + ";";
      case 1:
        return quoted(name() + "=", "'") + ";";
      case 2:
        return quoted(name() + "=", "\"") + ";";
      case 3:
        return name() + "={" + junk("}<>\"'\n\r") + kSecret + "};";
      case 4:
        return name() + ": p" + junk(";\n\r\"'<>") + kSecret + "\n";
      case 5:
        return quoted("\"" + name() + "\": ", "\"") + ",";
      case 6:
        return "//user:p" + junk("\"'<>;,/?=({[&@:\n\r\t ") + kSecret + "@host ";
      default:
        return "scott/p" + junk("\"'<>;,/?=({[&@:\n\r\t ") + kSecret + "@base ";
    }
  }

  /// The secret in a text with more around it.
  std::string text() {
    if (oneIn(3)) return "<a" + attribute() + ">" + junk("<>") + xml() + junk() + "</a>";
    return junk() + (oneIn(2) ? "\n" : ";") + planted() + junk();
  }

  Json json(std::size_t depth = 0) {
    switch (m_choose(depth < 4 ? 6 : 4)) {
      case 0:
        return {{name(), kSecret}};
      case 1:
        return {{"name", name()}, {junk(), junk()}, {"value", kSecret}};
      case 2:
        return {{junk(), text()}};
      case 3:
        return {{name(), {{junk(), {1, kSecret, nullptr}}}}};
      case 4:
        return {{junk(), json(depth + 1)}};
      default:
        return {junk(), json(depth + 1)};
    }
  }

 private:
  std::string quoted(const std::string& before, const std::string& quote) {
    return before + quote + junk("\"'\\<>\n\r") + kSecret + quote;
  }

  std::string attribute() { return oneIn(2) ? "" : " b='" + junk("<&'") + "'"; }

  std::string xml() {
    const std::string element = name();
    switch (m_choose(4)) {
      case 0:
        return "<" + element + attribute() + ">" + junk("<>&") + kSecret + "</" + element + ">";
      case 1:
        return "<b " + element + "='" + junk("'<&") + kSecret + "'/>";
      case 2:
        return "<p name='" + element + "' value='" + kSecret + "'/>";
      default:
        return "<" + element + "><c>" + junk("<>&") + "<d>" + kSecret + "</d></c></" + element + ">";
    }
  }

  Choices& m_choose;
};

/// What is printed of the message, but for one to be sent on, which keeps its secrets.
class Printed final : public Output {
 public:
  void write(std::string_view bytes) override { m_text += bytes; }
  void finish() override {}
  void holdsSecrets() override { m_holdsSecrets = true; }
  std::string text() const { return m_holdsSecrets ? "" : m_text; }

 private:
  std::string m_text;
  bool m_holdsSecrets = false;
};

using Verb = void (*)(const Kind&, const Settings&, std::istream&, Output&);

std::string printed(Verb verb, const Kind& kind, const Settings& settings, const std::string& input) {
  std::istringstream in(input);
  Printed out;
  try {
    verb(kind, settings, in, out);
    return out.text();
  } catch (const ToolError& error) {
    return out.text() + error.what();
  }
}

void decodeAs(const Kind& kind, const Settings& settings, std::istream& in, Output& out) {
  decode(kind, settings, inputOf(settings.file, in, settings.onRead), out);
}

void formatAny(const Kind&, const Settings& settings, std::istream& in, Output& out) {
  format(settings, in, out);
}

void checkOne(const Kind& kind, const Settings&, std::istream& in, Output& out) {
  static Checker checker(DXMD_SCHEMAS,
                         {DXNamespaces::GetQueryService().toUtf8(), DXNamespaces::GetServiceBus().toUtf8()});
  for (const Finding& finding : checker
                                    .check(
                                        "-", in, [](std::size_t) {}, &kind)
                                    .findings)
    out.write(finding.message);
}

/// The kind's example as XML.
const std::string& exampleOf(std::size_t index) {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> examples;
    for (const Kind& kind : allKinds()) {
      std::istringstream in(kind.example);
      examples.push_back(encode(kind, Settings(), in));
    }
    return examples;
  }();
  return all[index];
}

/// In the values of a document.
void decodePlanted(Choices& choose) {
  const std::size_t index = choose(allKinds().size());
  const Kind& kind = allKinds()[index];
  TRNIDOM_Document document = TRNIDOM_Parser::parseString(exampleOf(index));
  const TRNIDOM_NodeList all = document.getElementsByTagName("*");
  for (std::size_t left = 1 + choose(3); left > 0; --left) {
    TRNIDOM_Element element = all.item(choose(all.getLength()));
    const TRNIDOM_NamedNodeMap attributes = element.getAttributes();
    TRNIDOM_Node place = attributes.getLength() > 0 ? attributes.item(choose(attributes.getLength()))
                                                    : TRNIDOM_Node(element.getFirstChild());
    const std::string text = Planter(choose).text();
    if (place.getNodeName() == "name") continue;  // may be a key in JSON, which shows
    if (place.isNull())
      element.appendChild(document.createTextNode(text.c_str()));
    else
      place.setNodeValue(text.c_str());
  }
  Settings settings;
  for (const KindOption& option : kind.options)
    if (option.verb == KindOption::kDecode && !option.choices.empty() && choose(2) == 0)
      settings.kindOptions =
          KindOptions(std::map<std::string, std::string>{{option.name, option.choices[choose(option.choices.size())]}});
  const std::string xml = TRNIDOM_Writer::toString(document);
  for (const auto verb : {decodeAs, formatAny, checkOne}) requireHidden(printed(verb, kind, settings, xml), xml);
}

/// In JSON that is refused: errors show no secret.
void encodePlanted(Choices& choose) {
  const Kind& kind = allKinds()[choose(allKinds().size())];
  Json json = Json::parse(kind.example);
  std::vector<Json*> all;
  collectValues(json, all);
  Json& place = *all[choose(all.size())];
  Planter planter(choose);
  if (place.is_object() && choose(2) == 0)
    place[planter.name()] = kSecret;
  else if (place.is_string())
    place = planter.text();
  else
    place = planter.json();
  std::string text = json.dump(choose(2) == 0 ? -1 : 2);
  if (choose(2) == 0) text.resize(choose(text.size()));
  requireHidden(printed(encode, kind, Settings(), text), text);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Choices choose(data, size);
  Planter planter(choose);
  switch (choose(4)) {
    case 0: {
      const std::string text = planter.text();
      requireHidden(shownText(text), text);
      break;
    }
    case 1: {
      Json json = planter.json();
      const std::string text = json.dump();
      maskSecrets(json, nullptr);
      requireHidden(json.dump(), text);
      break;
    }
    case 2:
      decodePlanted(choose);
      break;
    default:
      encodePlanted(choose);
  }
  return 0;
}
