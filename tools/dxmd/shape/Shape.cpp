#include "Shape.h"

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/json/SecretNames.h>

namespace dxmd_tool {

namespace {

/// `"a", "b" and "c"`
std::string listed(const std::vector<std::string>& keys, const char* last) {
  std::string text;
  for (std::size_t i = 0; i < keys.size(); ++i)
    text += (i == 0 ? "" : i + 1 < keys.size() ? ", " : last) + inQuotes(keys[i]);
  return text;
}

class Reader final : public Shape {
 public:
  explicit Reader(JsonObject& json) : m_json(json) {}

 private:
  void member(const KeyFacts& key, Value& value) override {
    const JsonValue json = key.presence == KeyFacts::kRequired ? m_json.required(key.name) : m_json.optional(key.name);
    if (key.find(KeyFact::kByHand) != nullptr) return;
    // Which other keys there are is not known without it.
    if (!json && key.find(KeyFact::kChoice) != nullptr) m_json.finish();
    if (!json) return value.setAbsent();
    value.read(json);
    const KeyFact* const nonEmpty = key.find(KeyFact::kNonEmpty);
    if (nonEmpty != nullptr && (json.isText() ? json.text().empty() : json.size() == 0)) json.fail(nonEmpty->text);
    if (key.find(KeyFact::kLines) != nullptr)
      if (const std::string text = json.text().toUtf8(); !text.empty() && text.back() != '\n')
        json.fail("must end with a line feed");
    if (key.find(KeyFact::kNonEmptyItems) != nullptr)
      json.each([](const JsonValue& item) {
        if (item.text().empty()) item.fail("must not be empty");
      });
  }

  void rule(DescribedRule::Of of, const std::vector<std::string>& keys) override {
    if (of == DescribedRule::kNeedsTrue) {
      const JsonValue list = m_json.optional(keys[0]);
      if (list.isList() && list.size() != 0 && !m_json.optional(keys[1]).boolean())
        m_json.fail(inQuotes(keys[0]) + " needs " + inQuotes(keys[1]) + " to be true");
      return;
    }
    std::size_t present = 0;
    for (const std::string& key : keys)
      if (m_json.has(key)) ++present;
    if (present > 1) m_json.fail(listed(keys, " and ") + " exclude each other");
    if (of == DescribedRule::kOneOf && present == 0) m_json.fail("the key " + listed(keys, " or ") + " is missing");
  }

  JsonObject& m_json;
};

class Writer final : public Shape {
 public:
  explicit Writer(Json& json) : m_json(json) {}

 private:
  void member(const KeyFacts& key, Value& value) override {
    if (key.find(KeyFact::kByHand) != nullptr || (key.presence == KeyFacts::kOptional && value.isAbsent())) return;
    value.write(m_json[std::string(key.name)]);
  }

  void rule(DescribedRule::Of, const std::vector<std::string>&) override {}

  Json& m_json;
};

/// Tells whether a writer would write anything.
class Prober final : public Shape {
 public:
  bool writesNothing() const { return m_writesNothing; }

 private:
  void member(const KeyFacts& key, Value& value) override {
    m_writesNothing = m_writesNothing && key.presence == KeyFacts::kOptional && value.isAbsent();
  }

  void rule(DescribedRule::Of, const std::vector<std::string>&) override {}

  bool m_writesNothing = true;
};

class Describer final : public Shape {
 public:
  Describer(DescribedRecord& record, Gatherer& gatherer) : m_record(record), m_gatherer(gatherer) {}

 private:
  void member(const KeyFacts& key, Value& value) override {
    DescribedKey described;
    described.name = key.name;
    described.meaning = key.meaning;
    described.required = key.presence == KeyFacts::kRequired;
    described.alwaysWritten = key.presence != KeyFacts::kOptional;
    described.secret = isSecretName(key.name);
    described.onlyFor = m_case;
    for (const KeyFact& fact : key) addFact(described, fact);
    if (!described.required) described.otherwise = value.absentAsJson();
    value.describe(described.type, m_gatherer);
    m_record.keys.push_back(std::move(described));
  }

  void rule(DescribedRule::Of of, const std::vector<std::string>& keys) override {
    m_record.rules.push_back({of, keys});
  }

  bool gathers() const override { return true; }

  void beginCase(std::string_view key, const std::string& text) override {
    m_record.choice = key;
    m_case = text;
  }

  static void addFact(DescribedKey& described, const KeyFact& fact) {
    switch (fact.what) {
      case KeyFact::kNonEmpty:
        described.nonEmpty = true;
        break;
      case KeyFact::kNonEmptyItems:
        described.nonEmptyItems = true;
        break;
      case KeyFact::kNullableItems:
        described.nullableItems = true;
        break;
      case KeyFact::kSecret:
        described.secret = true;
        break;
      case KeyFact::kAsKind:
        described.kind = fact.text;
        break;
      case KeyFact::kElementNames:
        described.elementNames = true;
        break;
      case KeyFact::kLines:
        described.lines = true;
        break;
      case KeyFact::kLoss:
        described.losses.push_back({fact.how, fact.text, fact.key});
        break;
      case KeyFact::kNone:
      case KeyFact::kByHand:
      case KeyFact::kChoice:
        break;
    }
  }

  DescribedRecord& m_record;
  Gatherer& m_gatherer;
  std::string m_case;
};

}  // namespace

const DescribedRecord* Gatherer::record(const void* identity, const std::function<void(Shape&)>& run) {
  const auto [known, isNew] = m_known.emplace(identity, nullptr);
  if (!isNew) return known->second;
  DescribedRecord& record = m_description.records.emplace_back();
  known->second = &record;
  Describer describer(record, *this);
  run(describer);
  return &record;
}

void runReader(JsonObject& json, const std::function<void(Shape&)>& run) {
  Reader reader(json);
  run(reader);
}

void runWriter(Json& json, const std::function<void(Shape&)>& run) {
  if (!json.is_object()) json = Json::object();
  Writer writer(json);
  run(writer);
}

bool writesNothing(const std::function<void(Shape&)>& run) {
  Prober prober;
  run(prober);
  return prober.writesNothing();
}

namespace codec {

void Text::read(const JsonValue& json, I18NString& value) const {
  value = json.text();
}

void Text::write(Json& json, const I18NString& value) const {
  json = value.toUtf8();
}

void Boolean::read(const JsonValue& json, bool& value) const {
  value = json.boolean();
}

void Boolean::write(Json& json, bool value) const {
  json = value;
}

void writeInteger(Json& json, std::int64_t value) {
  json = value;
}

void Xml::read(const JsonValue& json, TRNIDOM_Element& value) const {
  value = json.xml();
}

void Xml::write(Json& json, const TRNIDOM_Element& value) const {
  json = xmlText(value).toUtf8();
}

void Texts::read(const JsonValue& json, std::map<I18NString, I18NString>& value) const {
  value.clear();
  json.members([&](const I18NString& key, const JsonValue& text) { value[key] = text.text(); });
}

void Texts::write(Json& json, const std::map<I18NString, I18NString>& value) const {
  json = Json::object();
  auto& members = json.get_ref<Json::object_t&>();
  // Keys are distinct, so that none need be searched for.
  for (const auto& [key, text] : value)
    static_cast<Json::object_t::Container&>(members).emplace_back(key.toUtf8(), text.toUtf8());
}

void startList(Json& json) {
  json = Json::array();
}

Json& appendItem(Json& json) {
  return json.emplace_back(nullptr);
}

std::string toJsonText(const std::function<void(Json&)>& write) {
  Json json;
  write(json);
  return toText(json, 0);
}

}  // namespace codec

}  // namespace dxmd_tool
