#include <tools/dxmd/json/JsonReader.h>

#include <gtest/gtest.h>

#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/Quote.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

enum ESize : int { kSizeUnset = 0, kSizeSmall = 1, kSizeLarge = 2 };
const EnumTable<ESize> kSizes{kSizeSmall, {"small", "large"}};

void read(const std::string& text, const std::function<void(JsonObject&)>& reader) {
  readObject(Json::parse(text), "in", reader);
}

void expectRefused(const std::string& message, const std::string& text,
                   const std::function<void(JsonObject&)>& reader) {
  expectJsonError(JsonError::kUnfit, message, [&] { read(text, reader); });
}

}  // namespace

TEST(JsonReader, ReadsEachTypeOfValue) {
  read(R"({"text": "ä\u0000b", "flag": true, "number": 4294967295, "size": "large", "locale": "en",
           "xml": "<a>b</a>", "list": ["x", ""], "free": {"k": "v"}})",
       [](JsonObject& json) {
         EXPECT_EQ(3u, json.required("text").text().length());
         EXPECT_TRUE(json.required("flag").boolean());
         EXPECT_EQ(4294967295u, json.required("number").integer<std::uint32_t>());
         EXPECT_EQ(kSizeLarge, json.required("size").enumerator(kSizes));
         EXPECT_EQ("en", json.required("locale").locale()->getName());
         expectXml("<a>b</a>", json.required("xml").xml());
         std::vector<I18NString> items;
         json.required("list").each([&](const JsonValue& item) { items.push_back(item.text()); });
         EXPECT_EQ((std::vector<I18NString>{"x", ""}), items);
         json.required("free").members([](const I18NString& key, const JsonValue& value) {
           EXPECT_EQ("k", key);
           EXPECT_EQ("v", value.text());
         });
       });
}

TEST(JsonReader, MessagesQuoteSixtyBytesOfAText) {
  const std::string sixty(60, 'x');
  EXPECT_EQ('"' + sixty + '"', inQuotes(sixty));
  EXPECT_EQ('"' + sixty + "...\"", inQuotes(sixty + "y"));
  EXPECT_EQ('"' + sixty.substr(1) + "...\"", inQuotes(sixty.substr(1) + "\u00E4"));
}

TEST(JsonReader, WhatIsAbsentReadsAsEmptyOrAsGiven) {
  read("{}", [](JsonObject& json) {
    const JsonValue none = json.optional("none");
    EXPECT_FALSE(none);
    EXPECT_EQ("", none.text());
    EXPECT_EQ("x", none.text("x"));
    EXPECT_TRUE(none.boolean(true));
    EXPECT_EQ(7, none.integer(7));
    EXPECT_EQ(kSizeUnset, none.enumerator(kSizes));
    EXPECT_FALSE(none.locale());
    EXPECT_TRUE(none.xml().isNull());
    none.object([](JsonObject&) { FAIL(); });
    none.each([](const JsonValue&) { FAIL(); });
    none.members([](const I18NString&, const JsonValue&) { FAIL(); });
  });
}

TEST(JsonReader, RefusalsNameThePlace) {
  const auto readSort = [](JsonObject& json) {
    json.required("queries").each([](const JsonValue& value) {
      value.object([](JsonObject& query) {
        query.required("items").each([](const JsonValue& inner) {
          inner.object([](JsonObject& item) { item.required("sort").enumerator(kSizes); });
        });
      });
    });
  };
  expectRefused(R"(in: $.queries[1].items[0].sort: "up" is none of "small", "large")",
                R"({"queries": [{"items": []}, {"items": [{"sort": "up"}]}]})", readSort);
  expectRefused(R"(in: $.queries[0]: the key "items" is missing)", R"({"queries": [{}]})", readSort);
  expectRefused("in: $.queries[0].items: expected a list, found an object", R"({"queries": [{"items": {}}]})",
                readSort);
  expectRefused("in: $: expected an object, found a list", "[]", readSort);
  expectRefused(R"(in: $["odd \"key\""]: expected a text, found null)", R"({"odd \"key\"": null})",
                [](JsonObject& json) { json.required("odd \"key\"").text(); });
}

TEST(JsonReader, KeyThatNobodyAskedForIsRefused) {
  expectRefused(R"(in: $.inner: unknown key "nmae"; known are "name", "tag"; did you mean "name"?)",
                R"({"inner": {"name": "x", "nmae": "y"}})", [](JsonObject& json) {
                  json.required("inner").object([](JsonObject& inner) {
                    inner.required("name").text();
                    inner.optional("tag").text();
                  });
                });
}

TEST(JsonReader, MissingAndUnknownKeysAreToldTogether) {
  const auto readItem = [](JsonObject& json) {
    json.required("name").text();
    json.required("size").enumerator(kSizes);
    json.optional("tag").text();
  };
  expectRefused(R"(in: $: the keys "name" and "size" are missing; unknown keys "nam", "x"; )"
                R"(known are "name", "size", "tag"; did you mean "name"?)",
                R"({"nam": 1, "x": 2})", readItem);
  // What a reader makes of a key that is missing is not what is wrong.
  expectRefused(R"(in: $: the key "name" is missing)", "{}", [](JsonObject& json) {
    if (json.required("name").text().empty()) throw std::logic_error("empty");
  });
}

TEST(JsonReader, NumbersKeepToTheirRange) {
  const auto readByte = [](JsonObject& json) { json.required("n").integer<std::int8_t>(); };
  const auto readUnsigned = [](JsonObject& json) { json.required("n").integerWithin<unsigned long>(0, 4294967295u); };
  read(R"({"n": -128})", readByte);
  read(R"({"n": 4294967295})", readUnsigned);
  expectRefused("in: $.n: the number is not from -128 to 127", R"({"n": 128})", readByte);
  expectRefused("in: $.n: the number is not from -128 to 127", R"({"n": 18446744073709551615})", readByte);
  expectRefused("in: $.n: the number is not from 0 to 4294967295", R"({"n": 4294967296})", readUnsigned);
  expectRefused("in: $.n: the number is not from 0 to 4294967295", R"({"n": -1})", readUnsigned);
  expectRefused("in: $.n: expected a whole number, found a fractional number", R"({"n": 1.5})", readByte);
  expectRefused("in: $.n: expected a whole number, found a text", R"({"n": "1"})", readByte);
}

TEST(JsonReader, RefusalOfASecretDoesNotShowIt) {
  expectRefused(R"(in: $.PassWord: the text is none of "small", "large")", R"({"PassWord": "hush"})",
                [](JsonObject& json) { json.required("PassWord").enumerator(kSizes); });
  expectRefused("in: $.xml: the text is not well-formed XML (line 1, column 15)", R"({"xml": "<password hush"})",
                [](JsonObject& json) { json.required("xml").xml(); });
}
