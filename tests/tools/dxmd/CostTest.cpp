// Decoding and encoding a message cost no more than its size, whatever its growth.

#include <map>
#include <sstream>

#include <trnidom/TRNIDOM_Writer.h>

#include <tools/dxmd/Registry.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/json/Json.h>

#include "Growth.h"
#include "InstructionCount.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

using Verb = std::string (*)(const Kind&, const Settings&, std::istream&);

bool succeeds(Verb verb, const Kind& kind, const std::string& text) {
  std::istringstream in(text);
  try {
    verb(kind, Settings(), in);
    return true;
  } catch (const ToolError&) {
    return false;
  }
}

// The shapes of JSON.

/// Begins a text that may be any.
const std::string kFree = "\xEE\x80\x80";

void collect(Json& json, std::vector<Json*>& all) {
  all.push_back(&json);
  for (auto& below : json) {
    if (json.is_structured()) collect(below, all);
  }
}

std::vector<Json*> valuesOf(Json& json) {
  std::vector<Json*> all;
  collect(json, all);
  return all;
}

bool isFree(const Json& json) {
  return json.is_string() && json.get_ref<const std::string&>().rfind(kFree, 0) == 0;
}

void repeat(Json& list, const std::vector<I18NString>& keys) {
  if (!list.is_array() || list.empty()) return;
  for (const I18NString& key : keys) {
    list.push_back(list[0]);
    for (Json* text : valuesOf(list.back()))
      if (isFree(*text)) *text = key.toUtf8();
  }
}

struct JsonGrowth {
  const char* name;
  std::size_t size;
  void (*grow)(Json& place, std::size_t size);
};

const JsonGrowth kJsonGrowths[] = {
    {"equal", 50, [](Json& place, std::size_t size) { repeat(place, std::vector<I18NString>(size, "same")); }},
    {"distinct", 50, [](Json& place, std::size_t size) { repeat(place, numbered(size)); }},
    {"colliding", 50, [](Json& place, std::size_t size) { repeat(place, colliding(size, 31)); }},
    {"nested", 15,
     [](Json& place, std::size_t size) {
       // A list that holds a record with the same list holds itself.
       if (!place.is_object()) return;
       for (auto& member : place.get_ref<Json::object_t&>()) {
         if (!member.second.is_array() || member.second.empty() || !member.second[0].is_object()) continue;
         const Json item = member.second[0];
         Json* innermost = &member.second[0];
         for (std::size_t left = size; left > 0; --left) {
           Json& list = (*innermost)[member.first];
           list = Json::array({item});
           innermost = &list[0];
         }
       }
     }},
    {"deep", 30,
     [](Json& place, std::size_t size) {
       for (; size > 0; --size) place = Json::array({std::move(place)});
     }},
    {"unknown", 50,
     [](Json& place, std::size_t size) {
       if (!place.is_object()) return;
       for (const I18NString& key : numbered(size)) place[key.toUtf8()] = "a";
     }},
    {"long", 2000,
     [](Json& place, std::size_t size) {
       if (isFree(place)) place = std::string(size, 'x');
     }},
};

/// The JSON, grown in one place after the other.
std::vector<std::string> grownIn(const Json& json, const JsonGrowth& growth, std::size_t size) {
  std::vector<std::string> all;
  Json copy = json;
  const std::size_t places = valuesOf(copy).size();
  for (std::size_t i = 0; i < places; ++i) {
    copy = json;
    growth.grow(*valuesOf(copy)[i], size);
    if (copy != json) all.push_back(copy.dump());
  }
  return all;
}

/// Whether the kind's JSON has what that can be done to.
bool grows(const Kind& kind, const JsonGrowth& growth) {
  Json marked = Json::parse(kind.example);
  for (Json* value : valuesOf(marked))
    if (value->is_string()) *value = kFree;
  return !grownIn(marked, growth, 1).empty();
}

/// The example, of which texts that may be any are marked, grown in one place after the other.
std::vector<std::string> grownJson(const Kind& kind, const JsonGrowth& growth, std::size_t size) {
  static std::map<std::string, Json> marks;
  Json& example = marks[kind.name];
  if (example.is_null()) {
    example = Json::parse(kind.example);
    for (Json* value : valuesOf(example)) {
      if (!value->is_string()) continue;
      const Json before = *value;
      *value = kFree + before.get<std::string>();
      if (!succeeds(encode, kind, example.dump())) *value = before;
    }
  }
  return grownIn(example, growth, size);
}

std::vector<std::string> grownXml(const Kind& kind, const Growth& growth, std::size_t size) {
  static std::map<std::string, TRNIDOM_Element> marks;
  TRNIDOM_Element& example = marks[kind.name];
  if (example.isNull()) {
    std::istringstream json(kind.example);
    example = marked(parsed(encode(kind, Settings(), json)),
                     [&](const TRNIDOM_Element& element) { return succeeds(decode, kind, xmlOf(element)); });
  }
  std::vector<std::string> all;
  for (const TRNIDOM_Element& element : grown(example, growth, size)) all.push_back(xmlOf(element));
  return all;
}

/// Why that kind in that shape costs more; empty for all others.
std::string excuseOf(const std::string& name) {
  static const std::map<std::string, std::string> excuses = {
      {"dataSourceFault_decode_nested", "a data source has the connections of those nested in it too"},
      {"retargetObjectReferences_decode_nested", "an entry has the items of those nested in it too"},
  };
  const auto found = excuses.find(name);
  return found != excuses.end() ? found->second : "";
}

std::vector<CostCase> casesOf(const std::vector<Kind>& kinds) {
  std::vector<CostCase> cases;
  const auto add = [&](const Kind& kind, Verb verb, const std::string& name, std::size_t size,
                       const std::function<std::vector<std::string>(std::size_t)>& grow) {
    cases.push_back({kind.family, kind.name + "_" + name, size,
                     [&kind, verb, grow](std::size_t n) {
                       return [&kind, verb, all = grow(n)] {
                         for (const std::string& each : all) succeeds(verb, kind, each);
                       };
                     },
                     excuseOf(kind.name + "_" + name)});
  };
  for (const Kind& kind : kinds) {
    for (const Growth& growth : allGrowths())
      add(kind, decode, std::string("decode_") + growth.name, 15,
          [&](std::size_t size) { return grownXml(kind, growth, size); });
    for (const JsonGrowth& growth : kJsonGrowths)
      if (grows(kind, growth))
        add(kind, encode, std::string("encode_") + growth.name, growth.size,
            [&](std::size_t size) { return grownJson(kind, growth, size); });
  }
  return cases;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<CostCase> cases = casesOf(allKinds());
  return testCosts(argc, argv, cases);
}
