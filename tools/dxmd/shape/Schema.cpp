#include "Schema.h"

#include <algorithm>
#include <functional>
#include <map>
#include <sstream>
#include <utility>
#include <vector>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/Quote.h>

namespace dxmd_tool {

namespace {

// What a name of an element is made of.
const char* const kElementName =
    "^[:A-Z_a-z\u00C0-\u00D6\u00D8-\u00F6\u00F8-\u02FF\u0370-\u037D\u037F-\u1FFF\u200C\u200D\u2070-\u218F\u2C00-\u2FEF"
    "\u3001-\uD7FF\uF900-\uFDCF\uFDF0-\uFFFD\U00010000-\U000EFFFF][-.0-9:A-Z_a-z\u00B7\u00C0-\u00D6\u00D8-\u00F6"
    "\u00F8-\u037D\u037F-\u1FFF\u200C\u200D\u203F\u2040\u2070-\u218F\u2C00-\u2FEF\u3001-\uD7FF\uF900-\uFDCF"
    "\uFDF0-\uFFFD\U00010000-\U000EFFFF]*$";

/// How often each record is referred to: what occurs twice, or holds itself, becomes a definition.
using Uses = std::map<const DescribedRecord*, std::size_t>;

void countUses(const DescribedType& type, Uses& uses) {
  if (type.item) countUses(*type.item, uses);
  if (type.record == nullptr || ++uses[type.record] > 1) return;
  for (const DescribedKey& key : type.record->keys) countUses(key.type, uses);
}

class SchemaWriter {
 public:
  explicit SchemaWriter(const Description& description) {
    DescribedType whole;
    whole.record = &description.whole();
    countUses(whole, m_uses);
  }

  Json object(const DescribedRecord& record) {
    if (record.choice.empty()) return objectFor(record, "");
    // Choices that go with the same keys share an object.
    std::vector<std::pair<Json, std::vector<std::string>>> objects;
    for (const std::string& text : record.find(record.choice)->type.choices) {
      Json object = objectFor(record, text);
      const auto same = std::find_if(objects.begin(), objects.end(), [&](const auto& o) { return o.first == object; });
      if (same != objects.end())
        same->second.push_back(text);
      else
        objects.emplace_back(std::move(object), std::vector<std::string>{text});
    }
    Json json = Json::object();
    for (auto& [object, texts] : objects) {
      object["properties"][record.choice] = texts.size() == 1 ? Json{{"const", texts[0]}} : Json{{"enum", texts}};
      json["oneOf"].push_back(std::move(object));
    }
    return json;
  }

  Json takeDefinitions() { return std::move(m_definitions); }

 private:
  /// The object for a text of the record's choice, whose own key is left null.
  Json objectFor(const DescribedRecord& record, const std::string& text) {
    Json json = Json::object();
    json["type"] = "object";
    json["properties"] = Json::object();
    Json required = Json::array();
    for (const DescribedKey& key : record.keys) {
      if (!key.onlyFor.empty() && key.onlyFor != text) continue;
      json["properties"][key.name] = key.name == record.choice ? Json() : member(key);
      if (key.required) required.push_back(key.name);
    }
    if (!required.empty()) json["required"] = std::move(required);
    json["additionalProperties"] = false;
    for (const DescribedRule& rule : record.rules) addRule(json, rule);
    return json;
  }

  static void addRule(Json& json, const DescribedRule& rule) {
    if (rule.of == DescribedRule::kOneOf) {
      Json one = Json::array();
      for (const std::string& key : rule.keys) one.push_back(Json{{"required", {key}}});
      json["allOf"].push_back(Json{{"oneOf", std::move(one)}});
      return;
    }
    if (rule.of == DescribedRule::kNeedsTrue) {
      const auto among = [](const std::string& key, const Json& value) {
        return Json{{"properties", Json{{key, value}}}, {"required", {key}}};
      };
      json["allOf"].push_back(Json{{"if", among(rule.keys[0], Json{{"minItems", 1}})},
                                   {"then", among(rule.keys[1], Json{{"const", true}})}});
      return;
    }
    for (std::size_t i = 0; i < rule.keys.size(); ++i)
      for (std::size_t j = i + 1; j < rule.keys.size(); ++j)
        json["allOf"].push_back(Json{{"not", Json{{"required", {rule.keys[i], rule.keys[j]}}}}});
  }

  Json member(const DescribedKey& key) {
    Json json = value(key.type, key.name);
    // Beside a "$ref" too: this version of schemas has the members around it hold as well.
    json["description"] = key.meaning;
    if (key.nonEmpty) json[key.type.of == DescribedType::kList ? "minItems" : "minLength"] = 1;
    if (key.nonEmptyItems) json["items"]["minLength"] = 1;
    if (key.lines) json["pattern"] = "(^|\n)$";
    if (key.nullableItems) {
      Json* item = &json;
      while (item->contains("items")) item = &(*item)["items"];
      (*item)["type"] = {(*item)["type"], "null"};
    }
    if (key.elementNames) json["propertyNames"] = Json{{"pattern", kElementName}};
    if (!key.otherwise.empty()) json["default"] = Json::parse(key.otherwise);
    return json;
  }

  Json value(const DescribedType& type, const std::string& name) {
    Json json = Json::object();
    switch (type.of) {
      case DescribedType::kText:
      case DescribedType::kLocale:
        json["type"] = "string";
        if (!type.choices.empty()) json["enum"] = type.choices;
        break;
      case DescribedType::kXml:
        json["type"] = "string";
        json["contentMediaType"] = "application/xml";
        break;
      case DescribedType::kBoolean:
        json["type"] = "boolean";
        break;
      case DescribedType::kInteger:
        json["type"] = "integer";
        json["minimum"] = type.least;
        json["maximum"] = type.most;
        break;
      case DescribedType::kList:
        json["type"] = "array";
        json["items"] = value(*type.item, name);
        break;
      case DescribedType::kTexts:
        json["type"] = "object";
        json["additionalProperties"] = Json{{"type", "string"}};
        break;
      case DescribedType::kRecord:
        if (m_uses[type.record] == 1) return object(*type.record);
        json["$ref"] = "#/$defs/" + definition(*type.record, name);
        break;
    }
    return json;
  }

  /// The name of the record's definition: that of the key where it first occurs.
  std::string definition(const DescribedRecord& record, const std::string& key) {
    const auto [known, isNew] = m_names.emplace(&record, key);
    if (!isNew) return known->second;
    while (m_definitions.contains(known->second)) known->second += '_';
    std::string name = known->second;
    m_definitions[name] = nullptr;
    Json json = object(record);
    m_definitions[name] = std::move(json);
    return name;
  }

  Uses m_uses;
  std::map<const DescribedRecord*, std::string> m_names;
  Json m_definitions = Json::object();
};

const char* nameOf(DescribedType::Of of) {
  switch (of) {
    case DescribedType::kText:
      return "text";
    case DescribedType::kLocale:
      return "locale";
    case DescribedType::kXml:
      return "XML text";
    case DescribedType::kBoolean:
      return "boolean";
    case DescribedType::kInteger:
      return "integer";
    case DescribedType::kList:
      return "list";
    case DescribedType::kTexts:
      return "object of texts";
    case DescribedType::kRecord:
      return "object";
  }
  return "";
}

/// `"red", "blue"`
std::string quoted(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : ", ") + inQuotes(text);
  return all;
}

/// "list of objects", "text"
std::string inWords(const DescribedType& type) {
  if (type.of != DescribedType::kList) return nameOf(type.of);
  const std::string item = inWords(*type.item);
  const std::size_t noun = std::min(item.find(" of "), item.size());
  return "list of " + item.substr(0, noun) + "s" + item.substr(noun);
}

std::string inWords(const DescribedRule& rule) {
  if (rule.of == DescribedRule::kNeedsTrue)
    return inQuotes(rule.keys[0]) + " needs " + inQuotes(rule.keys[1]) + " to be true.";
  return (rule.of == DescribedRule::kOneOf ? "Exactly" : "At most") +
         (" one of " + quoted(rule.keys) + " may be there.");
}

const char* nameOf(DescribedRule::Of of) {
  switch (of) {
    case DescribedRule::kExclusive:
      return "exclusive";
    case DescribedRule::kOneOf:
      return "oneOf";
    case DescribedRule::kNeedsTrue:
      return "needsTrue";
  }
  return "";
}

const DescribedType& innermost(const DescribedType& type) {
  const DescribedType* inner = &type;
  while (inner->item) inner = inner->item.get();
  return *inner;
}

/// Facts about a key in words, each a sentence; but for the choice that it goes with.
std::string factsOf(const DescribedKey& key) {
  std::string text;
  const DescribedType& inner = innermost(key.type);
  const auto add = [&](const std::string& sentence) { text += " " + sentence + "."; };
  if (!key.kind.empty()) add("Its keys: dxmd kinds " + key.kind);
  if (!inner.choices.empty()) add((inner.choices.size() > 1 ? "One of " : "Always ") + quoted(inner.choices));
  if (inner.of == DescribedType::kInteger)
    add("From " + std::to_string(inner.least) + " to " + std::to_string(inner.most));
  if (key.nonEmpty) add("Not empty");
  if (key.nonEmptyItems) add("No text in it is empty");
  if (key.nullableItems) add("A text in it may be null");
  if (key.elementNames) add("Keys are names of elements");
  if (key.lines) add("Each line ends with a line feed");
  const std::string& otherwise = key.otherwise;
  if (!otherwise.empty() && otherwise != "\"\"" && otherwise != "[]" && otherwise != "{}")
    add("By default " + otherwise);
  if (key.secret) add("Secret: prints as ***");
  for (const Loss& loss : key.losses) add(loss.how == Loss::kNever ? "Not decoded: " + loss.why : loss.why);
  return text;
}

/// `required text. Its colour.`
std::string startOf(const DescribedKey& key) {
  return (key.required ? "required " : "") + inWords(key.type) + ". " + key.meaning + ".";
}

bool isAlike(const DescribedKey& a, const DescribedKey& b) {
  return a.name == b.name && innermost(a.type).record == innermost(b.type).record && startOf(a) == startOf(b) &&
         factsOf(a) == factsOf(b);
}

/// Visits the keys: what several choices in a row have alike once, with all of them.
void forEachKey(const DescribedRecord& record,
                const std::function<void(const DescribedKey&, const std::vector<std::string>& choices)>& visit) {
  std::vector<std::string> choices;
  for (std::size_t i = 0; i < record.keys.size(); ++i) {
    const DescribedKey& key = record.keys[i];
    if (!key.onlyFor.empty()) choices.push_back(key.onlyFor);
    if (i + 1 < record.keys.size() && isAlike(key, record.keys[i + 1])) continue;
    visit(key, choices);
    choices.clear();
  }
}

/// The keys line by line: `key  type. Meaning. Facts.`, those of records indented below theirs.
class KeyLines {
 public:
  std::string text(const DescribedRecord& whole) {
    gather(whole, 2);
    std::size_t width = 0;
    for (const auto& [key, text] : m_items) width = std::max(width, key.size());
    width = std::min<std::size_t>(width + 2, 34);
    std::string lines;
    for (const auto& [key, text] : m_items) lines += wrapped(key, text, width);
    return lines;
  }

 private:
  void gather(const DescribedRecord& record, std::size_t indent) {
    m_open.push_back(&record);
    forEachKey(record, [&](const DescribedKey& key, const std::vector<std::string>& choices) {
      const DescribedRecord* const below = innermost(key.type).record;
      const bool isOpen = std::find(m_open.begin(), m_open.end(), below) != m_open.end();
      m_items.emplace_back(std::string(indent, ' ') + key.name,
                           startOf(key) + (choices.empty() ? "" : " Goes with " + quoted(choices) + ".") +
                               factsOf(key) + (below != nullptr && isOpen ? " Its keys are those above." : ""));
      if (below != nullptr && !isOpen && key.kind.empty()) gather(*below, indent + 2);
    });
    for (const DescribedRule& rule : record.rules) m_items.emplace_back(std::string(indent, ' '), inWords(rule));
    m_open.pop_back();
  }

  static std::string wrapped(const std::string& key, const std::string& text, std::size_t width) {
    constexpr std::size_t kColumns = 100;
    std::string lines;
    std::string line = key + std::string(width > key.size() + 1 ? width - key.size() : 2, ' ');
    bool isFresh = true;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
      if (!isFresh && line.size() + 1 + word.size() > kColumns) {
        lines += line + "\n";
        line = std::string(width, ' ');
        isFresh = true;
      }
      line += (isFresh ? "" : " ") + word;
      isFresh = false;
    }
    return lines + line + "\n";
  }

  std::vector<std::pair<std::string, std::string>> m_items;
  std::vector<const DescribedRecord*> m_open;
};

const char* nameOf(Loss::How how) {
  switch (how) {
    case Loss::kNever:
      return "value";
    case Loss::kAbsent:
      return "absent";
    case Loss::kEmpty:
      return "empty";
    case Loss::kRepeated:
      return "repeated";
    case Loss::kOrder:
      return "order";
    case Loss::kChoice:
      return "choice";
  }
  return "";
}

/// The keys of records and what holds among them, as members of what holds the record.
class KeysForPrograms {
 public:
  void add(Json& json, const DescribedRecord& record) {
    m_open.push_back(&record);
    json["keys"] = Json::array();
    forEachKey(record, [&](const DescribedKey& each, const std::vector<std::string>& choices) {
      json["keys"].push_back(key(each, choices));
    });
    for (const DescribedRule& rule : record.rules) json["rules"].push_back(Json{{nameOf(rule.of), rule.keys}});
    m_open.pop_back();
  }

 private:
  Json key(const DescribedKey& key, const std::vector<std::string>& choices) {
    const DescribedType& inner = innermost(key.type);
    Json json = {{"name", key.name}, {"meaning", key.meaning}, {"type", inWords(key.type)}, {"required", key.required}};
    if (!choices.empty()) json["onlyFor"] = choices;
    if (!key.kind.empty()) json["kind"] = key.kind;
    if (!inner.choices.empty()) json["allowed"] = inner.choices;
    if (inner.of == DescribedType::kInteger) {
      json["least"] = inner.least;
      json["most"] = inner.most;
    }
    if (!key.otherwise.empty()) json["default"] = Json::parse(key.otherwise);
    if (key.nonEmpty) json["nonEmpty"] = true;
    if (key.nonEmptyItems) json["nonEmptyItems"] = true;
    if (key.elementNames) json["elementNames"] = true;
    if (key.lines) json["lines"] = true;
    if (key.nullableItems) json["nullableItems"] = true;
    if (key.secret) json["secret"] = true;
    for (const Loss& loss : key.losses) json["lost"].push_back(Json{{"what", nameOf(loss.how)}, {"why", loss.why}});
    if (inner.record == nullptr) return json;
    if (std::find(m_open.begin(), m_open.end(), inner.record) == m_open.end())
      add(json, *inner.record);
    else
      json["keysAsAround"] = true;
    return json;
  }

  std::vector<const DescribedRecord*> m_open;
};

}  // namespace

Json schemaOf(const Description& description, const std::string& title, const std::string& summary) {
  SchemaWriter writer(description);
  Json schema = {
      {"$schema", "https://json-schema.org/draft/2020-12/schema"}, {"title", title}, {"description", summary}};
  schema.update(writer.object(description.whole()));
  if (Json definitions = writer.takeDefinitions(); !definitions.empty()) schema["$defs"] = std::move(definitions);
  return schema;
}

Json keysOf(const Description& description) {
  Json json = Json::object();
  KeysForPrograms().add(json, description.whole());
  return json;
}

std::string keysAsText(const Description& description) {
  return KeyLines().text(description.whole());
}

}  // namespace dxmd_tool
