#include <tools/dxmd/text/Escape.h>

#include <gtest/gtest.h>

#include <tools/dxmd/json/Json.h>

using namespace dxmd_tool;
using namespace std::string_view_literals;

TEST(Escape, ControlsAndMalformedBytesAreEscapedAndAllElseStays) {
  EXPECT_EQ(R"(a\n\r\t\x00\x1B\x7F\x9B\u061C\u200E\u2028\u202E\u2066 ä東😀)",
            escaped("a\n\r\t\0\x1B\x7F\u009B\u061C\u200E\u2028\u202E\u2066 ä東😀"sv));
  EXPECT_EQ(R"(\xFF\xC0\x80\xED\xA0\x80\xF4\x90\x80\x80\xE6\x9D)",
            escaped("\xFF\xC0\x80\xED\xA0\x80\xF4\x90\x80\x80\xE6\x9D"));
  EXPECT_EQ("a\n\tb\r\nc\\rd", escapedLines("a\n\tb\r\nc\rd"));
}

TEST(Escape, StringsOfJsonAreReadBack) {
  const std::string text = "\"\\/\b\f\n\r\t\x01\x7F\u0085\u202E ä東😀";
  std::string json;
  appendJsonString(json, text);
  EXPECT_EQ(text, Json::parse(json).get<std::string>());
  EXPECT_EQ(R"("\"\\/\b\f\n\r\t\u0001\u007F\u0085\u202E ä東😀")", json);
  json.clear();
  appendJsonString(json, "a\xFFz");
  EXPECT_EQ("\"a\uFFFDz\"", json);
}

TEST(Escape, CharactersThatXmlLacksAreTold) {
  EXPECT_EQ("U+FFFE is no character of XML", refusedByXml("a\t\n\r\u0085\uFFFE\x01"));
  EXPECT_EQ("U+000B is no character of XML", refusedByXml("\v"));
  EXPECT_EQ("", refusedByXml("ä東😀\uFFFD"));
}
