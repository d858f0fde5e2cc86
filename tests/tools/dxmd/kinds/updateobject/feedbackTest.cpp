#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(FeedbackKind, NestedEntriesAreWrittenReadAndRendered) {
  const std::string xml = R"(<feedback><entry class="error">X<entry class="warning" name="n">Y</entry>)"
                          R"(<entry class="trace"></entry></entry><entry class="unknown"></entry></feedback>)";
  expectBothWays("feedback",
                 R"({"entries":[{"class":"error","text":"X","entries":[)"
                 R"({"class":"warning","text":"Y","name":"n"},{"class":"trace"}]},{"class":"unknown"}]})",
                 xml);
  EXPECT_EQ("\n*** Error:X\n--- Y\n--- \n--- \n", run({"decode", "feedback", "--format", "text"}, xml).out);
}

TEST(FeedbackKind, TextIsWhatStandsInFrontOfTheEntriesBelow) {
  expectDecoded("feedback",
                R"(<feedback> <other/> <entry class="info"> a <!-- --><![CDATA[<]]> b <entry class="info">c</entry>
                                   <other/>
                                 </entry></feedback>)",
                R"({"entries":[{"class":"info","text":" a < b ","entries":[{"class":"info","text":"c"}]}]})");
}

TEST(FeedbackKind, FeedbackThatNoJsonMakesIsRefusedWithItsPlaceButRendered) {
  const auto expectRefused = [](const std::string& entries, const std::string& message) {
    const std::string xml = "<feedback>" + entries + "</feedback>";
    expectNotDecoded("feedback", xml, "/feedback" + message);
    EXPECT_EQ(0, run({"decode", "feedback", "--format", "text"}, xml).status);
  };
  expectRefused(R"(<entry class="info"/><entry/>)", R"(/entry[2]: the attribute "class" is missing)");
  expectRefused(R"(<entry class="info"><entry class="Error"/></entry>)",
                R"(/entry/entry: "class" is "Error", none of "unknown", "info", "warning", "error", "trace")");
  expectRefused(R"(<entry class="info">a<entry class="info">b</entry>c</entry>)",
                "/entry: text stands behind an element");
}

TEST(FeedbackKind, NestsAsDeepAsJsonMay) {
  const auto nested = [](std::size_t depth) {
    return "<feedback>" + repeated(depth, R"(<entry class="info">)") + repeated(depth, "</entry>") + "</feedback>";
  };
  // With an option the JSON is not kept for the schemas, whose validator does not go as deep.
  EXPECT_EQ(nested(249) + "\n", run({"encode", "feedback", "--indent", "0"}, decoded("feedback", nested(249))).out);
  expectNotDecoded("feedback", nested(50000), "the JSON for this document would nest deeper than 500 levels");
  EXPECT_EQ(50000 * std::string("\n--- ").size() + 1,
            run({"decode", "feedback", "--format", "text"}, nested(50000)).out.size());
}
