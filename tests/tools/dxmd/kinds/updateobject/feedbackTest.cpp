#include <gtest/gtest.h>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(FeedbackKind, NestedEntriesAreWrittenReadAndRendered) {
  const std::string json = R"({"entries":[{"class":"error","text":"X","entries":[)"
                           R"({"class":"warning","text":"Y","name":"n"},{"class":"trace"}]},{"class":"unknown"}]})";
  const std::string xml = encoded("feedback", json);
  expectXml(R"(<feedback><entry class="error">X<entry class="warning" name="n">Y</entry><entry class="trace"></entry>)"
            R"(</entry><entry class="unknown"></entry></feedback>)",
            xml);
  EXPECT_EQ(json + "\n", decoded("feedback", xml));
  EXPECT_EQ("\n*** Error:X\n--- Y\n--- \n--- \n", run({"decode", "feedback", "--format", "text"}, xml).out);
  I18NString text;
  taken<DXActionFeedbackHelper>(xml)->Render(text);
  EXPECT_EQ("\n*** Error:X\n--- Y\n--- \n--- ", text);
}

TEST(FeedbackKind, TextIsWhatStandsInFrontOfTheEntriesBelow) {
  EXPECT_EQ(R"({"entries":[{"class":"info","text":" a < b ","entries":[{"class":"info","text":"c"}]}]})"
            "\n",
            decoded("feedback", R"(<feedback> <other/> <entry class="info"> a <!-- --><![CDATA[<]]> b )"
                                R"(<entry class="info">c</entry>
                                   <other/>
                                 </entry></feedback>)"));
}

TEST(FeedbackKind, FeedbackThatNoJsonMakesIsRefusedWithItsPlaceButRendered) {
  const auto expectRefused = [](const std::string& message, const std::string& entries) {
    const std::string xml = "<feedback>" + entries + "</feedback>";
    expectFailure(kStatusUnfit, "standard input: /feedback" + message, run({"decode", "feedback"}, xml));
    EXPECT_EQ(0, run({"decode", "feedback", "--format", "text"}, xml).status);
  };
  expectRefused(R"(/entry[2]: the attribute "class" is missing)", R"(<entry class="info"/><entry/>)");
  expectRefused(R"(/entry/entry: "class" is "Error", none of "unknown", "info", "warning", "error", "trace")",
                R"(<entry class="info"><entry class="Error"/></entry>)");
  expectRefused("/entry: text stands behind an element",
                R"(<entry class="info">a<entry class="info">b</entry>c</entry>)");
}

TEST(FeedbackKind, NestsAsDeepAsJsonMay) {
  const auto nested = [](int depth) {
    std::string xml;
    for (int i = 0; i < depth; ++i) xml += R"(<entry class="info">)";
    for (int i = 0; i < depth; ++i) xml += "</entry>";
    return "<feedback>" + xml + "</feedback>";
  };
  // With an option the JSON is not kept for the schemas, whose validator does not go as deep.
  EXPECT_EQ(nested(249) + "\n", run({"encode", "feedback", "--indent", "0"}, decoded("feedback", nested(249))).out);
  expectFailure(kStatusUnfit, "standard input: the JSON for this document would nest deeper than 500 levels",
                run({"decode", "feedback"}, nested(50000)));
  EXPECT_EQ(50000 * std::string("\n--- ").size() + 1,
            run({"decode", "feedback", "--format", "text"}, nested(50000)).out.size());
}
