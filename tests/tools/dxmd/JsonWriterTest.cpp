#include <tools/dxmd/json/JsonWriter.h>

#include <gtest/gtest.h>

using namespace dxmd_tool;

TEST(JsonWriter, ShortListsOfPlainValuesStandOnOneLine) {
  Json json;
  json["rows"] = Json::array({Json::array({"North", "1"}), Json::array({"South", "ä\n"})});
  json["empty"] = Json::array();
  json["long"] = {std::string(60, 'x'), std::string(60, 'y')};
  EXPECT_EQ(R"({
  "rows": [
    ["North", "1"],
    ["South", "ä\n"]
  ],
  "empty": [],
  "long": [
    ")" + std::string(60, 'x') +
                R"(",
    ")" + std::string(60, 'y') +
                R"("
  ]
})",
            toText(json, 2));
  EXPECT_EQ(json, Json::parse(toText(json, 4)));
  EXPECT_EQ(json.dump(), toText(json, 0));
}

TEST(JsonWriter, TextsAndListsOfTextsConvert) {
  Json json;
  json["text"] = I18NString("ü");
  json["list"] = std::vector<I18NString>{"a", ""};
  EXPECT_EQ(R"({"text":"ü","list":["a",""]})", json.dump());
}

TEST(JsonWriter, RefusesToWriteMoreThan500Levels) {
  Json json = "leaf";
  for (int level = 0; level < 500; ++level) json = Json::array({std::move(json)});
  checkJsonDepth(json);
  json = Json::array({std::move(json)});
  EXPECT_THROW(checkJsonDepth(json), JsonTooDeep);
}
