#include <tools/dxmd/json/JsonParser.h>

#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

void expectRefused(JsonError::Cause cause, const std::string& message, const std::string& text) {
  expectJsonError(cause, message, [&] { parseJson(text, "in"); });
}

std::string nested(std::size_t levels) {
  return std::string(levels, '[') + std::string(levels, ']');
}

}  // namespace

TEST(JsonParser, MembersKeepTheirOrder) {
  EXPECT_EQ(R"({"b":1,"a":[true,null,"x",-2,0.5],"c":{}})",
            parseJson(R"( { "b": 1, "a": [true, null, "x", -2, 0.5], "c": {} } )", "in").dump());
}

TEST(JsonParser, SyntaxErrorsNamePlaceAndShowNoText) {
  expectRefused(JsonError::kMalformed,
                "in:2:18: not JSON: syntax error while parsing object - invalid literal; expected '}'",
                "{\n \"password\": \"s\" secret }");
  expectRefused(JsonError::kMalformed,
                "in:1:21: not JSON: syntax error while parsing value - invalid string: missing closing quote",
                R"({"password": "secret)");
  expectRefused(JsonError::kMalformed,
                "in:1:25: not JSON: syntax error while parsing object - unexpected string literal; expected '}'",
                R"({"password": "secret" "x"})");
  const std::string open = "{\"\xC3\xA4\": \"secret\xFF\"}";
  expectRefused(JsonError::kMalformed,
                "in:1:14: not JSON: syntax error while parsing value - invalid string: ill-formed UTF-8 byte", open);
  expectRefused(JsonError::kMalformed, "in:1:5: a number is out of range", "1e999");
}

TEST(JsonParser, SaysWhenInputIsEmptyOrXml) {
  expectRefused(JsonError::kMalformed, "in:1:1: empty where JSON is expected", " \n");
  expectRefused(JsonError::kMalformed, "in:1:1: not JSON: this looks like XML", " <command/>");
  expectRefused(JsonError::kMalformed, "in:2:1: U+0000 is no character of JSON", std::string("{}\n\0{", 5));
}

TEST(JsonParser, KeyThatOccursTwiceIsRefusedWithItsPlace) {
  expectRefused(JsonError::kUnfit, R"(in: $.queries[1]: the key "name" occurs twice)",
                R"({"queries": [{"name": "a"}, {"name": "b", "x": {"name": 1}, "name": "c"}]})");
}

TEST(JsonParser, RefusesMoreThan500Levels) {
  EXPECT_EQ(nested(500), parseJson(nested(500), "in").dump());
  expectRefused(JsonError::kUnfit, "in: the JSON nests deeper than 500 levels", nested(501));
  expectRefused(JsonError::kUnfit, "in: the JSON nests deeper than 500 levels", std::string(1000000, '['));
}
