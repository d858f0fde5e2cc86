#include "Verbs.h"

#include <algorithm>
#include <istream>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/Input.h>
#include <tools/dxmd/Registry.h>
#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonParser.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/shape/Schema.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

std::string joined(const std::vector<std::string>& names) {
  std::string all;
  for (const std::string& name : names) all += (all.empty() ? "" : ", ") + name;
  return all;
}

/// The value of an option that stands for the input, if one was given and no file is named beside it.
std::optional<std::string> replacedInput(const Kind& kind, const Settings& settings) {
  if (settings.file != "-") return std::nullopt;
  for (const KindOption& option : kind.options)
    if (option.replacesInput)
      if (auto value = settings.kindOptions.value(option.name)) return value;
  return std::nullopt;
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
  const Input input = replaced ? Input{*replaced, nullptr} : inputOf(settings.file, in, settings.onRead);
  const std::string& name = input.name;
  refusalsNamed(name, [&] {
    const Json json = replaced ? Json::object() : parseJson(readSource(input.source), name);
    TRNIDOM_Element element;
    requireXmlCharacters(json, name);
    readObject(json, name, [&](JsonObject& object) {
      const Description description = kind.describe();
      refuseMasks(json, &description.whole(), name);
      if (holdsSecrets(json, &description.whole())) out.holdsSecrets();
      element = kind.encode(object, settings.kindOptions);
    });
    if (holdsSecrets(element)) out.holdsSecrets();
    out.write(xmlText(element, settings.indent.value_or(0)));
  });
}

std::string encode(const Kind& kind, const Settings& settings, std::istream& in) {
  StringOutput out;
  encode(kind, settings, in, out);
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
