// What holds for each kind of message, whatever it is: these tests run over the registry.

#include <algorithm>
#include <functional>
#include <set>
#include <sstream>

#include <gtest/gtest.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>

#include <tools/dxmd/Registry.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonParser.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/json/SecretNames.h>

#include "RandomJson.h"
#include "RandomTrees.h"
#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// Parametrised by the kind's name.
class EveryKind : public testing::TestWithParam<std::string> {
 protected:
  const Kind& kind() const { return findKind(GetParam()); }

  std::string encoded(const Json& json) const {
    std::istringstream in(json.dump());
    try {
      std::string xml = encode(kind(), Settings(), in);
      keepEncoded(GetParam(), in.str(), xml);
      return xml;
    } catch (const ToolError& error) {
      keepEncoded(GetParam(), in.str(), "", error.what());
      throw;
    }
  }

  Json decoded(const std::string& xml, bool showSecrets = true, bool exact = false) const {
    Settings settings;
    settings.showSecrets = showSecrets;
    settings.exact = exact;
    std::istringstream in(xml);
    const std::string text = decode(kind(), settings, in);
    return text.compare(0, 1, "{") == 0 ? parseJson(text, "decoded") : Json(text);
  }

  /// With the white space between elements, which XML in a text of random JSON may have.
  Json decodedExactly(const std::string& xml) const { return decoded(xml, true, true); }

  Json exampleJson() const { return parseJson(kind().example, "example"); }
  std::string exampleXml() const { return encoded(exampleJson()); }

  /// Encodes what must be refused, at that place in the JSON.
  void expectRefusedAt(const std::string& path, const Json& json) const {
    try {
      encoded(json);
      ADD_FAILURE() << path << " was accepted in " << json.dump();
    } catch (const ToolError& error) {
      EXPECT_EQ(kStatusUnfit, error.status()) << error.what();
      EXPECT_TRUE(has(error.what(), path)) << path << " is not in: " << error.what();
    }
  }

  /// Whether the value is a text in a list whose texts may be null.
  bool takesNull(const std::string& path, const Json& value) const {
    if (!kind().describe || !value.is_string()) return false;
    const Description description = kind().describe();
    const auto& keys = description.whole().keys;
    return std::any_of(keys.begin(), keys.end(), [&](const DescribedKey& key) {
      return key.nullableItems && path.find("$." + key.name + "[") == 0;
    });
  }

  /// The action may succeed, or refuse with that status; anything else is a failure.
  static void expectNoWorse(Status status, const std::string& input, const std::function<void()>& action) {
    try {
      action();
    } catch (const ToolError& error) {
      EXPECT_EQ(status, error.status()) << error.what() << " for " << input;
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what() << " for " << input;
    }
  }
};

std::vector<std::string> namesOfKinds() {
  std::vector<std::string> names;
  for (const Kind& kind : allKinds()) names.push_back(kind.name);
  return names;
}

std::string nameOf(const testing::TestParamInfo<std::string>& info) {
  return info.param;
}

/// Visits every value of the JSON, parents first, with its path; the visitor may change what it is given.
void visit(Json& json, const std::string& path, const std::function<void(Json&, const std::string&)>& visitor) {
  visitor(json, path);
  if (json.is_object()) {
    for (auto& member : json.get_ref<Json::object_t&>()) {
      std::string below = path;
      JsonPlace::appendStep(below, member.first, 0);
      visit(member.second, below, visitor);
    }
  } else if (json.is_array()) {
    for (std::size_t i = 0; i < json.size(); ++i) visit(json[i], path + "[" + std::to_string(i) + "]", visitor);
  }
}

/// The texts that stand under the names of secrets.
std::set<std::string> secretsIn(Json json) {
  std::set<std::string> all;
  visit(json, "$", [&](Json& value, const std::string&) {
    if (!value.is_object()) return;
    for (const auto& member : value.get_ref<const Json::object_t&>())
      if (isSecretName(member.first) && member.second.is_string()) all.insert(member.second.get<std::string>());
  });
  all.erase("");
  return all;
}

}  // namespace

TEST_P(EveryKind, SaysWhatItIs) {
  EXPECT_FALSE(kind().summary.empty());
  EXPECT_FALSE(kind().purpose.empty());
  EXPECT_FALSE(kind().roots.empty() && kind().orHolding.empty());
  EXPECT_TRUE(kind().describe && kind().encode && kind().decode);
  std::istringstream texts(kind().purpose + "\n" + kind().notes);
  for (std::string line; std::getline(texts, line);) EXPECT_LE(line.size(), 100u) << line;
}

TEST_P(EveryKind, SaysWhichClassIsItsOwnAndWhatAnswersIt) {
  const std::string header = bytesOf(DXMD_SOURCE "/dxmd/" + kind().family + "/" + kind().helper + ".h");
  EXPECT_TRUE(has(header, "class DXMD_API " + kind().helper + " ")) << kind().helper;
  if (!kind().reply.empty()) {
    EXPECT_NO_THROW(findKind(kind().reply));
  }
  EXPECT_FALSE(kind().writes == Does::kTool && kind().reads == Does::kTool);
}

TEST_P(EveryKind, ExampleShowsEveryKey) {
  std::set<std::string> shown;
  Json example = exampleJson();
  visit(example, "$", [&](Json& value, const std::string&) {
    if (!value.is_object()) return;
    for (const auto& member : value.get_ref<const Json::object_t&>()) shown.insert(member.first);
  });
  const Description description = kind().describe();
  std::set<const DescribedRecord*> known;
  std::vector<const DescribedRecord*> open{&description.whole()};
  while (!open.empty()) {
    const DescribedRecord& record = *open.back();
    open.pop_back();
    if (!known.insert(&record).second) continue;
    for (const DescribedKey& key : record.keys) {
      EXPECT_NE('.', key.meaning.back()) << key.meaning << " is ended by help";
      // An example shows one of several choices.
      if (record.choice.empty()) {
        EXPECT_EQ(1u, shown.count(key.name)) << key.name;
      }
      const DescribedType* type = &key.type;
      while (type->item) type = type->item.get();
      // What another kind takes, that kind's example shows.
      if (type->record != nullptr && key.kind.empty()) open.push_back(type->record);
    }
  }
}

// The documents show every key at its place, but for what examples do not show of several choices.
TEST_P(EveryKind, ExampleIsEncodedAsItStandsInItsFile) {
  EXPECT_EQ(bytesOf(DXMD_SOURCE "/tests/tools/dxmd/kinds/" + kind().family + "/" + kind().name + ".xml"),
            encodedExample(kind().name, 2));
}

TEST_P(EveryKind, ExampleRoundTrips) {
  const Description description = kind().describe();
  Json expected = exampleJson();
  dropLost(expected, description.whole());
  EXPECT_EQ(toText(expected, 2), toText(decoded(exampleXml()), 2));
}

TEST_P(EveryKind, RandomJsonComesBack) {
  const unsigned seed = printedSeed();
  const Description description = kind().describe();
  RandomJson random(description, seed);
  for (int number = 0; number < 300 && !HasFailure(); ++number) {
    const Json json = random.next();
    SCOPED_TRACE("seed " + std::to_string(seed) + ", number " + std::to_string(number) + ": " + json.dump());
    const std::string xml = encoded(json);
    const Json again = decodedExactly(xml);
    Json expected = json;
    const bool isWhole = !dropLost(expected, description.whole());
    EXPECT_EQ(toText(expected, 2), toText(again, 2)) << xml;
    const std::string xmlAgain = encoded(again);
    if (isWhole) {
      EXPECT_EQ(xml, xmlAgain);
    }
    EXPECT_EQ(toText(again, 2), toText(decodedExactly(xmlAgain), 2)) << xmlAgain;
  }
}

// Users rely on all others: a kind that joins the list loses something that it gave back before.
TEST(EveryKindThatLosesKeys, IsListed) {
  std::set<std::string> losing;
  for (const Kind& kind : allKinds())
    if (losesKeys(kind.describe())) losing.insert(kind.name);
  EXPECT_EQ((std::set<std::string>{"externalizeReport", "parameterValueItem", "securityObjects"}), losing);
}

TEST_P(EveryKind, ExampleIsEncodedAsTheRootDeclared) {
  EXPECT_EQ(kind().roots.at(0).c_str(), parsed(encoded(exampleJson())).getNodeName());
}

TEST_P(EveryKind, UnknownKeyIsRefusedWhereverItStands) {
  Json json = exampleJson();
  visit(json, "$", [&](Json& value, const std::string& path) {
    if (!value.is_object()) return;
    const Json kept = value;
    // No kind has such a value, so that objects with keys of one's own choice refuse it too.
    value["surplus"] = Json::parse("[[{}]]");
    expectRefusedAt(path, json);
    value = kept;
  });
}

TEST_P(EveryKind, ValueOfWrongTypeIsRefusedWithItsPlace) {
  Json json = exampleJson();
  visit(json, "$", [&](Json& value, const std::string& path) {
    const Json kept = value;
    value = Json::parse("[[{}]]");
    expectRefusedAt(path, json);
    value = nullptr;
    if (takesNull(path, kept))
      EXPECT_NO_THROW(encoded(json)) << path;
    else
      expectRefusedAt(path, json);
    value = kept;
  });
}

TEST_P(EveryKind, MissingOrEmptyValueIsAnErrorAtMost) {
  Json json = exampleJson();
  visit(json, "$", [&](Json& value, const std::string&) {
    const Json kept = value;
    if (value.is_string())
      value = "";
    else if (value.is_array())
      value = Json::array();
    else if (value.is_object())
      value = Json::object();
    expectNoWorse(kStatusUnfit, json.dump(), [&] { encoded(json); });
    value = kept;
    if (!kept.is_object()) return;
    for (const auto& member : kept.get_ref<const Json::object_t&>()) {
      value.erase(member.first);
      expectNoWorse(kStatusUnfit, json.dump(), [&] { encoded(json); });
      value = kept;
    }
  });
}

TEST_P(EveryKind, SecretsAreHiddenUnlessAskedFor) {
  const std::string xml = exampleXml();
  const Json shown = decoded(xml);
  const std::string hidden = decoded(xml, false).dump();
  for (const std::string& secret : secretsIn(shown))
    EXPECT_FALSE(has(hidden, Json(secret).dump())) << secret << " shows";
}

TEST_P(EveryKind, WrongDocumentIsRefusedByItsRoot) {
  try {
    decoded("<other/>");
    ADD_FAILURE() << "<other/> was accepted";
  } catch (const ToolError& error) {
    EXPECT_EQ(kStatusUnfit, error.status());
    EXPECT_EQ(0u,
              std::string(error.what()).find("standard input: no " + kind().name + ": its root element is \"other\""))
        << error.what();
  }
}

TEST_P(EveryKind, DocumentCutShortIsRefused) {
  const std::string xml = exampleXml();
  const std::size_t last = xml.rfind('>');
  for (std::size_t length = 0; length < last; length += 1 + last / 60)
    EXPECT_THROW(decoded(xml.substr(0, length)), ToolError) << xml.substr(0, length);
}

TEST_P(EveryKind, DocumentWithAPartMissingIsAnErrorAtMost) {
  const std::string xml = exampleXml();
  const std::size_t elements = parsed(xml).getElementsByTagName("*").getLength();
  for (std::size_t i = 0; i < elements; ++i) {
    TRNIDOM_Element root = parsed(xml);
    TRNIDOM_Node node = root.getElementsByTagName("*").item(i);
    node.getParentNode().removeChild(node);
    expectNoWorse(kStatusUnfit, xmlOf(root), [&] { decoded(xmlOf(root)); });

    root = parsed(xml);
    TRNIDOM_Element element = root.getElementsByTagName("*").item(i);
    while (element.getAttributes().getLength() > 0)
      element.removeAttribute(element.getAttributes().item(0).getNodeName());
    while (element.hasChildNodes()) element.removeChild(element.getFirstChild());
    expectNoWorse(kStatusUnfit, xmlOf(root), [&] { decoded(xmlOf(root)); });
  }
}

TEST_P(EveryKind, HelpDescribesIt) {
  for (const char* verb : {"encode", "decode"}) {
    const ToolRun help = run({verb, kind().name, "--help"});
    EXPECT_EQ(0, help.status) << help.err;
    EXPECT_TRUE(has(help.out, kind().summary));
  }
  EXPECT_EQ(kind().example + "\n", run({"example", kind().name}).out);
}

INSTANTIATE_TEST_SUITE_P(, EveryKind, testing::ValuesIn(namesOfKinds()), nameOf);
