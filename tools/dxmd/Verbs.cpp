#include "Verbs.h"

#include <algorithm>
#include <istream>

#include <trn/TRNAssertError.h>
#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/Registry.h>
#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonError.h>
#include <tools/dxmd/json/JsonParser.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/shape/Schema.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

constexpr unsigned kJsonIndent = 2;

std::string joined(const std::vector<std::string>& names) {
  std::string all;
  for (const std::string& name : names) all += (all.empty() ? "" : ", ") + name;
  return all;
}

std::string inputName(const Settings& settings) {
  return settings.file == "-" ? "standard input" : settings.file;
}

Source inputSource(const Settings& settings, std::istream& in) {
  Source source = settings.file == "-" ? streamSource(in, inputName(settings)) : fileSource(settings.file);
  return [source = std::move(source), &settings](char* buffer, std::size_t size) {
    const std::size_t count = source(buffer, size);
    settings.onRead(count);
    return count;
  };
}

/// The value of an option that stands for the input, if one was given and no file is named beside it.
std::optional<std::string> replacedInput(const Kind& kind, const Settings& settings) {
  if (settings.file != "-") return std::nullopt;
  for (const KindOption& option : kind.options)
    if (option.replacesInput)
      if (auto value = settings.kindOptions.value(option.name)) return value;
  return std::nullopt;
}

/// Runs what may refuse the input, and says which one where the refusal does not.
template <typename Action>
auto refusalsNamed(const std::string& name, const Action& action) {
  try {
    return action();
  } catch (const TRNAssertError& error) {
    throw ToolError(kStatusUnfit,
                    name + ": " + error.getLocation().getFile() + " refuses it: " + error.getMessage().toUtf8());
  } catch (const JsonError& error) {
    throw ToolError(error.cause() == JsonError::kMalformed ? kStatusSyntax : kStatusUnfit, error.what());
  } catch (const JsonTooDeep& error) {
    throw ToolError(kStatusUnfit, name + ": " + error.what());
  } catch (const XmlError& error) {
    throw ToolError(kStatusUnfit, name + ": " + error.what());
  } catch (const TRNIDOM_DOMException& error) {
    throw ToolError(kStatusUnfit, name + ": " + error.what());
  }
}

/// Runs what parses XML, and names the place where it is not well-formed.
template <typename Action>
auto syntaxErrorsNamed(const std::string& name, const Action& action) {
  try {
    return action();
  } catch (const TRNIDOM_ParseError& error) {
    throw ToolError(kStatusSyntax, name + ":" + std::to_string(error.getLine()) + ":" +
                                       std::to_string(error.getColumn()) + ": " + error.getReason());
  }
}

TRNIDOM_Document parseXml(const std::string& text, const std::string& name) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  if (first == std::string::npos) throw ToolError(kStatusSyntax, name + ":1:1: empty where XML is expected");
  if (text[first] == '{' || text[first] == '[')
    throw ToolError(kStatusSyntax, name + ":1:1: not XML: this looks like JSON");
  return syntaxErrorsNamed(name, [&] { return TRNIDOM_Parser::parseString(text); });
}

/// Refuses a document of another kind.
void checkRoot(const Kind& kind, const TRNIDOM_Element& root, const std::string& name) {
  const std::string found = root.getNodeName().toUtf8();
  if (std::find(kind.roots.begin(), kind.roots.end(), found) != kind.roots.end()) {
    if (kind.wrapped.empty() || !firstChild(root, kind.wrapped.c_str()).isNull() ||
        !firstChild(firstChild(root, "dxCommand"), kind.wrapped.c_str()).isNull())
      return;
    throw ToolError(kStatusUnfit, name + ": no " + kind.name + ": its command is not " + inQuotes(kind.wrapped));
  }
  for (const std::string& part : kind.orHolding)
    if (!TRNIDOM_Helper::findFirstElement(root, part.c_str()).isNull()) return;
  throw ToolError(kStatusUnfit, name + ": no " + kind.name + ": its root element is " + inQuotes(found) + ", not " +
                                    joined(kind.roots) +
                                    (kind.orHolding.empty() ? "" : ", and it holds none of " + joined(kind.orHolding)));
}

std::string xmlLine(const TRNIDOM_Node& node, unsigned indent) {
  TRNIDOM_Writer::Options options;
  options.indent = indent;
  std::string xml = TRNIDOM_Writer::toString(node, options);
  if (xml.empty() || xml.back() != '\n') xml += '\n';
  return xml;
}

void printDecoded(const Decoded& decoded, const Kind& kind, const Settings& settings, Output& out) {
  if (settings.showSecrets) out.holdsSecrets();
  if (Json* const json = decoded.json()) {
    checkJsonDepth(*json);
    if (!settings.showSecrets) {
      const Description description = kind.describe();
      maskSecrets(*json, &description.whole());
    }
    out.isJson();
    out.write(toText(*json, settings.indent.value_or(kJsonIndent)) + "\n");
  } else if (!decoded.element().isNull()) {
    // A message to send on, which would be of no use without its secrets.
    if (holdsSecrets(decoded.element())) out.holdsSecrets();
    out.write(xmlLine(decoded.element(), settings.indent.value_or(0)));
  } else if (decoded.print()) {
    decoded.print()({out, settings.indent.value_or(kJsonIndent), settings.showSecrets});
  } else {
    out.write(settings.showSecrets ? decoded.text() : shownText(decoded.text()));
  }
}

/// Decodes a document of which `start` was read and more is to come, without having all of it in memory.
Decoded decodeLarge(const Kind& kind, const Settings& settings, const std::string& start, const Source& rest,
                    const std::string& name) {
  const PieceDecoder pieces = kind.decodePieces(settings.kindOptions);
  std::size_t given = 0;
  const Source whole = [&](char* buffer, std::size_t size) {
    if (given == start.size()) return rest(buffer, size);
    const std::size_t count = start.copy(buffer, size, given);
    given += count;
    return count;
  };
  const TRNIDOM_Document document =
      syntaxErrorsNamed(name, [&] { return TRNIDOM_Parser::parseEach(whole, pieces.element.c_str(), pieces.visit); });
  TRNIDOM_Element root = document.getDocumentElement();
  if (root.isNull()) throw ToolError(kStatusUnfit, name + ": no " + kind.name + ": it is one " + pieces.element);
  checkRoot(kind, root, name);
  if (!pieces.fits(root))
    throw ToolError(kStatusUnfit, name + ": a document of this size is read one " + inQuotes(pieces.element) +
                                      " at a time, and in this one they do not all stand in one place");
  return pieces.finish(root);
}

std::string headerOf(const Kind& kind) {
  return "<dxmd/" + kind.family + "/" + kind.helper + ".h>";
}

/// `Helper writes it; the tool alone reads it`, and the header.
std::string classOf(const Kind& kind) {
  const bool writes = kind.writes == Does::kLibrary;
  const bool reads = kind.reads == Does::kLibrary;
  return kind.helper + " " +
         (writes && reads ? "writes and reads it"
          : writes        ? "writes it; the tool alone reads it"
                          : "reads it; the tool alone writes it") +
         "\nHeader: " + headerOf(kind);
}

Json forPrograms(const Kind& kind) {
  Json json = {{"kind", kind.name},
               {"family", kind.family},
               {"summary", kind.summary},
               {"purpose", kind.purpose},
               {"roots", kind.roots}};
  if (!kind.wrapped.empty()) json["wrapped"] = kind.wrapped;
  if (!kind.orHolding.empty()) json["orHolding"] = kind.orHolding;
  json["class"] = kind.helper;
  json["header"] = headerOf(kind);
  json["libraryWrites"] = kind.writes == Does::kLibrary;
  json["libraryReads"] = kind.reads == Does::kLibrary;
  if (!kind.reply.empty()) json["reply"] = kind.reply;
  if (!kind.notes.empty()) json["notes"] = kind.notes;
  for (const KindOption& option : kind.options) {
    Json described = {{"verb", option.verb == KindOption::kEncode ? "encode" : "decode"},
                      {"name", option.name},
                      {"argument", option.argument},
                      {"help", option.help}};
    if (!option.choices.empty()) described["choices"] = option.choices;
    json["options"].push_back(std::move(described));
  }
  json.update(keysOf(kind.describe()));
  return json;
}

}  // namespace

void encode(const Kind& kind, const Settings& settings, std::istream& in, Output& out) {
  const std::optional<std::string> replaced = replacedInput(kind, settings);
  const std::string name = replaced.value_or(inputName(settings));
  refusalsNamed(name, [&] {
    const Json json = replaced ? Json::object() : parseJson(readSource(inputSource(settings, in)), name);
    TRNIDOM_Element element;
    requireXmlCharacters(json, name);
    readObject(json, name, [&](JsonObject& object) {
      const Description description = kind.describe();
      refuseMasks(json, &description.whole(), name);
      if (holdsSecrets(json, &description.whole())) out.holdsSecrets();
      element = kind.encode(object, settings.kindOptions);
    });
    if (holdsSecrets(element)) out.holdsSecrets();
    out.write(xmlLine(element, settings.indent.value_or(0)));
  });
}

void decode(const Kind& kind, const Settings& settings, std::istream& in, Output& out) {
  // What is larger is decoded piece by piece where the kind knows how.
  constexpr std::size_t kWhole = std::size_t{4} << 20;
  const std::string name = inputName(settings);
  const Source source = inputSource(settings, in);
  const std::string text = kind.decodePieces ? readSource(source, kWhole) : readSource(source);
  refusalsNamed(name, [&] {
    if (kind.decodePieces && text.size() == kWhole)
      return printDecoded(decodeLarge(kind, settings, text, source, name), kind, settings, out);
    TRNIDOM_Element root = parseXml(text, name).getDocumentElement();
    checkRoot(kind, root, name);
    printDecoded(kind.decode(root, settings.kindOptions), kind, settings, out);
  });
}

std::string encode(const Kind& kind, const Settings& settings, std::istream& in) {
  StringOutput out;
  encode(kind, settings, in, out);
  return out.take();
}

std::string decode(const Kind& kind, const Settings& settings, std::istream& in) {
  StringOutput out;
  decode(kind, settings, in, out);
  return out.take();
}

std::string listKinds() {
  std::size_t width = 0;
  for (const Kind& kind : allKinds()) width = std::max(width, kind.name.size());
  std::string lines;
  for (const Kind& kind : allKinds())
    lines += kind.name + std::string(width - kind.name.size(), ' ') + "  " + kind.summary + "\n";
  return lines;
}

std::string notesOf(const Kind& kind) {
  std::string notes = kind.notes;
  if (!notes.empty()) notes += notes.back() == '\n' ? "\n" : "\n\n";
  notes += "Root element: " + joined(kind.roots);
  if (!kind.wrapped.empty()) notes += ", around " + kind.wrapped;
  if (!kind.orHolding.empty()) notes += ", or any that holds " + joined(kind.orHolding);
  notes += "\nIn C++: " + classOf(kind);
  if (!kind.reply.empty()) notes += "\nReply: dxmd kinds " + kind.reply;
  return notes + "\nTo start from: dxmd example " + kind.name;
}

std::string describe(const Kind& kind) {
  std::string text = kind.name + ": " + kind.summary + "\n\n" + kind.purpose + "\n\n";
  text += "  dxmd encode " + kind.name + " [FILE]\n";
  text += "  dxmd decode " + kind.name + " [FILE]\n";
  for (const KindOption& option : kind.options)
    text += std::string("    ") + option.name + " " + option.argument + "  " + option.help + "\n";
  text += "\nKeys of the JSON:\n" + keysAsText(kind.describe());
  return text + "\n" + notesOf(kind) + "\n";
}

std::string describeForPrograms(const Kind& kind) {
  return toText(forPrograms(kind), kJsonIndent) + "\n";
}

std::string describeAllForPrograms() {
  Json all = Json::array();
  for (const Kind& kind : allKinds()) all.push_back(forPrograms(kind));
  return toText(all, kJsonIndent) + "\n";
}

std::string schema(const Kind& kind) {
  return toText(schemaOf(kind.describe(), kind.name, kind.summary), kJsonIndent) + "\n";
}

}  // namespace dxmd_tool
