#include <tools/dxmd/shape/Shape.h>

#include <gtest/gtest.h>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/shape/Schema.h>

#include "RunTool.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

enum EColour : int { kColourNone = 0, kColourRed = 1, kColourBlue = 3 };

I18NString colourText(EColour colour) {
  return colour == kColourRed ? "red" : colour == kColourBlue ? "blue" : "no colour";
}

const EnumTable<EColour> kColours{&colourText};

struct Leaf {
  EColour colour{};
  std::optional<std::uint8_t> size;
  std::vector<Leaf> leaves;
};

void shape(Shape& s, Leaf& leaf) {
  s.choice<EColour>("colour", leaf.colour, "Its colour", kColours, [&](EColour colour) {
    if (colour == kColourRed) s.required("size", leaf.size, "How large it is");
  });
  s.optional("leaves", leaf.leaves, "Those that grow on it");
}

struct Paint {
  EColour colour{};
  std::uint8_t coats = 0;
};

void shape(Shape& s, Paint& paint) {
  s.choice<EColour>("colour", paint.colour, "Its colour", kColours,
                    [&](EColour) { s.required("coats", paint.coats, "How many"); });
}

struct Plant {
  I18NString name;
  I18NString note;
  std::optional<Leaf> leaf;
  std::vector<EColour> colours;
  bool isTree = false;
};

void shape(Shape& s, Plant& plant) {
  s.oneOf({"name", "leaf"});
  s.optional("name", plant.name, "What it is called", nonEmpty(), neverReturns("names are not read"));
  s.optional("leaf", plant.leaf, "One of its leaves");
  s.optional("note", plant.note, "What to know", otherwise<I18NString>("none"));
  s.optional("colours", plant.colours, "The colours of its flowers", kColours);
  s.shown("isTree", plant.isTree, "Whether it is a tree");
}

struct Bed {
  bool isDug = false;
  std::vector<I18NString> rows;
  I18NString diary;
};

void shape(Shape& s, Bed& bed) {
  s.needsTrue("rows", "isDug");
  s.shown("isDug", bed.isDug, "Whether it is dug");
  s.optional("rows", bed.rows, "What grows in it");
  s.optional("diary", bed.diary, "What was done", lines());
}

template <typename Record = Plant>
Record recordOf(const std::string& text) {
  Record record;
  readObject(Json::parse(text), "in", [&](JsonObject& json) { readRecord(json, record); });
  return record;
}

std::string again(const std::string& text) {
  Json json;
  writeRecord(json, recordOf(text));
  return json.dump();
}

template <typename Record = Plant>
void expectRefused(const std::string& message, const std::string& text) {
  expectJsonError(JsonError::kUnfit, message, [&] { recordOf<Record>(text); });
}

}  // namespace

TEST(Shape, EnumeratorsAreThoseThatTheConversionKnows) {
  EXPECT_EQ((std::vector<EColour>{kColourRed, kColourBlue}), kColours.values());
  const EnumTable<EColour> withUnset{&colourText, kColourNone};
  EXPECT_EQ((std::vector<EColour>{kColourNone, kColourRed, kColourBlue}), withUnset.values());
}

TEST(Shape, WritesWhatItReadButForWhatAnAbsentKeyReadsAs) {
  const std::string whole = R"({"leaf":{"colour":"red","size":0,"leaves":[{"colour":"blue"}]},"note":"",)"
                            R"("colours":["blue","red","blue"],"isTree":true})";
  EXPECT_EQ(whole, again(whole));
  EXPECT_EQ(R"({"name":"x","isTree":false})", again(R"({"name": "x", "note": "none", "colours": []})"));
}

TEST(Shape, RefusalsNameThePlaceAndTheKeys) {
  expectRefused(R"(in: $: the key "name" or "leaf" is missing)", "{}");
  expectRefused(R"(in: $: "name" and "leaf" exclude each other)", R"({"name": "", "leaf": 1})");
  expectRefused("in: $.name: must not be empty", R"({"name": ""})");
  expectRefused(R"(in: $.leaf: unknown key "size"; known are "colour", "leaves")",
                R"({"leaf": {"colour": "blue", "size": 1}})");
  expectRefused(R"(in: $.leaf: the key "size" is missing)", R"({"leaf": {"colour": "red"}})");
  expectRefused("in: $.leaf.size: the number is not from 0 to 255", R"({"leaf": {"colour": "red", "size": 256}})");
  expectRefused(R"(in: $.colours[1]: "no colour" is none of "red", "blue")",
                R"({"name": "x", "colours": ["red", "no colour"]})");
}

TEST(Shape, ListMayNeedABooleanAndLinesEnd) {
  const std::string needed = R"(in: $: "rows" needs "isDug" to be true)";
  expectRefused<Bed>(needed, R"({"rows": ["beans"]})");
  expectRefused<Bed>(needed, R"({"isDug": false, "rows": ["beans"]})");
  expectRefused<Bed>("in: $.isDug: expected true or false, found a number", R"({"isDug": 1, "rows": ["beans"]})");
  expectRefused<Bed>("in: $.rows: expected a list, found a text", R"({"rows": "beans"})");
  expectRefused<Bed>("in: $.diary: must end with a line feed", R"({"diary": "dug\nsown"})");
  EXPECT_EQ(1u, recordOf<Bed>(R"({"isDug": true, "rows": ["beans"], "diary": "dug\n"})").rows.size());
  EXPECT_FALSE(recordOf<Bed>(R"({"rows": [], "diary": ""})").isDug);

  EXPECT_EQ(
      "  isDug  boolean. Whether it is dug. By default false.\n"
      "  rows   list of texts. What grows in it.\n"
      "  diary  text. What was done. Each line ends with a line feed.\n"
      "         \"rows\" needs \"isDug\" to be true.\n",
      keysAsText(describe<Bed>()));
  const Json schema = schemaOf(describe<Bed>(), "bed", "A bed");
  EXPECT_EQ(Json("(^|\n)$"), schema["properties"]["diary"]["pattern"]);
  EXPECT_EQ(Json::parse(R"([{"if": {"properties": {"rows": {"minItems": 1}}, "required": ["rows"]},
                             "then": {"properties": {"isDug": {"const": true}}, "required": ["isDug"]}}])"),
            schema["allOf"]);
  EXPECT_EQ(Json::parse(R"([{"needsTrue": ["rows", "isDug"]}])"), keysOf(describe<Bed>())["rules"]);
}

TEST(Shape, HelpSaysAllThatIsKnown) {
  EXPECT_EQ(
      "  name      text. What it is called. Not empty. Not decoded: names are not read.\n"
      "  leaf      object. One of its leaves.\n"
      "    colour  required text. Its colour. One of \"red\", \"blue\".\n"
      "    size    required integer. How large it is. Goes with \"red\". From 0 to 255.\n"
      "    leaves  list of objects. Those that grow on it. Its keys are those above.\n"
      "  note      text. What to know. By default \"none\".\n"
      "  colours   list of texts. The colours of its flowers. One of \"red\", \"blue\".\n"
      "  isTree    boolean. Whether it is a tree. By default false.\n"
      "            Exactly one of \"name\", \"leaf\" may be there.\n",
      keysAsText(describe<Plant>()));
}

TEST(Shape, KeyThatSeveralChoicesHaveIsSaidOnce) {
  EXPECT_EQ(
      "  colour  required text. Its colour. One of \"red\", \"blue\".\n"
      "  coats   required integer. How many. Goes with \"red\", \"blue\". From 0 to 255.\n",
      keysAsText(describe<Paint>()));
  const Json keys = keysOf(describe<Paint>())["keys"];
  ASSERT_EQ(2u, keys.size());
  EXPECT_EQ(Json::parse(R"(["red", "blue"])"), keys[1]["onlyFor"]);
  const Json objects = schemaOf(describe<Paint>(), "paint", "Paint")["oneOf"];
  ASSERT_EQ(1u, objects.size());
  EXPECT_EQ(Json::parse(R"({"enum": ["red", "blue"]})"), objects[0]["properties"]["colour"]);
}

TEST(Shape, SchemaSaysWhatIsRefused) {
  EXPECT_EQ(Json::parse(R"({
    "$schema": "https://json-schema.org/draft/2020-12/schema", "title": "plant", "description": "A plant",
    "type": "object",
    "properties": {
      "name": {"type": "string", "description": "What it is called", "minLength": 1, "default": ""},
      "leaf": {"$ref": "#/$defs/leaf", "description": "One of its leaves"},
      "note": {"type": "string", "description": "What to know", "default": "none"},
      "colours": {"type": "array", "items": {"type": "string", "enum": ["red", "blue"]},
                  "description": "The colours of its flowers", "default": []},
      "isTree": {"type": "boolean", "description": "Whether it is a tree", "default": false}
    },
    "additionalProperties": false,
    "allOf": [{"oneOf": [{"required": ["name"]}, {"required": ["leaf"]}]}],
    "$defs": {"leaf": {"oneOf": [
      {"type": "object",
       "properties": {
         "colour": {"const": "red"},
         "size": {"type": "integer", "minimum": 0, "maximum": 255, "description": "How large it is"},
         "leaves": {"type": "array", "items": {"$ref": "#/$defs/leaf"}, "description": "Those that grow on it",
                    "default": []}
       },
       "required": ["colour", "size"], "additionalProperties": false},
      {"type": "object",
       "properties": {
         "colour": {"const": "blue"},
         "leaves": {"type": "array", "items": {"$ref": "#/$defs/leaf"}, "description": "Those that grow on it",
                    "default": []}
       },
       "required": ["colour"], "additionalProperties": false}
    ]}}
  })"),
            schemaOf(describe<Plant>(), "plant", "A plant"));
}
