// The verbs over kinds made for the purpose.

#include <tools/dxmd/Verbs.h>

#include <sstream>

#include <gtest/gtest.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <tools/dxmd/json/Json.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// A note whose text an option may give in place of JSON.
Kind noteKind() {
  Kind kind;
  kind.name = "note";
  kind.roots = {"note"};
  kind.options = {{KindOption::kEncode, "--text", "TEXT", "The text of the note", {}, true}};
  kind.describe = [] {
    Description description;
    description.records.emplace_back();
    return description;
  };
  kind.encode = [](JsonObject& json, const KindOptions& options) {
    TRNIDOM_Element note = newDocument().createElement("note");
    const std::optional<std::string> text = options.value("--text");
    note.setAttribute("text", text ? text->c_str() : json.required("text").text());
    return note;
  };
  return kind;
}

std::string encoded(const Settings& settings, const std::string& json) {
  std::istringstream in(json);
  return encode(noteKind(), settings, in);
}

std::string decodedBy(const std::function<Decoded(TRNIDOM_Element&, const KindOptions&)>& decoder,
                      const Settings& settings = Settings()) {
  Kind kind = noteKind();
  kind.decode = decoder;
  std::istringstream in("<note><a/></note>");
  return decode(kind, settings, in);
}

}  // namespace

TEST(Verbs, OptionMayStandInPlaceOfTheInput) {
  Settings settings;
  EXPECT_EQ("<note text=\"json\"/>\n", encoded(settings, R"({"text": "json"})"));
  settings.kindOptions = KindOptions(std::map<std::string, std::string>{{"--text", "option"}});
  EXPECT_EQ("<note text=\"option\"/>\n", encoded(settings, "what is not read is no error"));
  const TempFolder folder;
  settings.file = folder.add("in.json", "not JSON");
  EXPECT_THROW(encoded(settings, ""), ToolError);
}

TEST(Verbs, DecoderGivesJsonXmlOrText) {
  Settings settings;
  EXPECT_EQ("{\n  \"a\": 1\n}\n", decodedBy([](auto&, auto&) { return Decoded(Json{{"a", 1}}); }));
  EXPECT_EQ("<note><a/></note>\n", decodedBy([](auto& root, auto&) { return Decoded(root); }));
  EXPECT_EQ("as it is", decodedBy([](auto&, auto&) { return Decoded(std::string("as it is")); }));
  settings.indent = 1;
  EXPECT_EQ("{\n \"a\": 1\n}\n", decodedBy([](auto&, auto&) { return Decoded(Json{{"a", 1}}); }, settings));
  EXPECT_EQ("<note>\n <a/>\n</note>\n", decodedBy([](auto& root, auto&) { return Decoded(root); }, settings));
}

TEST(Verbs, ResultThatNestsTooDeepIsRefused) {
  expectToolError(kStatusUnfit, "standard input: the JSON for this document would nest deeper than 500 levels", [] {
    decodedBy([](auto&, auto&) {
      Json json = "leaf";
      for (int level = 0; level < 100000; ++level) json = Json::array({std::move(json)});
      return Decoded(std::move(json));
    });
  });
}
