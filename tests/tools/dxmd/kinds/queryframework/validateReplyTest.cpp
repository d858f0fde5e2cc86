#include <gtest/gtest.h>
#include <trn/TRNSeverity.h>

#include <dxmd/queryframework/QFValidateCommandHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// The JSON of a reply whose messages have those severities in that order.
std::string judged(const std::vector<std::string>& severities) {
  std::string messages;
  for (const std::string& severity : severities) messages += "<message severity=\"" + severity + "\">x</message>";
  return decoded("validateReply", "<r>" + messages + "</r>");
}

std::string jsonOf(const std::string& severity, const std::string& messages) {
  return R"({"severity":")" + severity + R"(","messages":")" + messages + "\"}\n";
}

}  // namespace

TEST(ValidateReplyKind, SeverityAndTexts) {
  EXPECT_EQ("{\n  \"severity\": \"warning\",\n  \"messages\": \"x\\ny\\n\"\n}\n",
            run({"decode", "validateReply"},
                R"(<r><message severity="fatal">x</message><message severity="warning">y</message></r>)")
                .out);
  EXPECT_EQ("{\n  \"severity\": \"none\",\n  \"messages\": \"\"\n}\n",
            run({"decode", "validateReply"}, "<response/>").out);
}

TEST(ValidateReplyKind, MessagesAreJudgedOneAfterTheOther) {
  EXPECT_EQ(jsonOf("fatal", R"(x\n)"), judged({"fatal"}));
  EXPECT_EQ(jsonOf("error", R"(x\n)"), judged({"error"}));
  EXPECT_EQ(jsonOf("warning", R"(x\n)"), judged({"warning"}));
  EXPECT_EQ(jsonOf("information", R"(x\n)"), judged({"information"}));
  EXPECT_EQ(jsonOf("none", R"(x\nx\n)"), judged({"unheardOf", ""}));
  EXPECT_EQ(jsonOf("fatal", R"(x\nx\n)"), judged({"fatal", "error"}));
  EXPECT_EQ(jsonOf("error", R"(x\nx\n)"), judged({"error", "warning"}));
  EXPECT_EQ(jsonOf("warning", R"(x\nx\nx\n)"), judged({"error", "fatal", "warning"}));
  EXPECT_EQ(jsonOf("information", R"(x\nx\n)"), judged({"fatal", "information"}));
}

TEST(ValidateReplyKind, EverySeverityIsWrittenForTheLibraryToRead) {
  const std::pair<const char*, TRNSeverity> all[] = {{"fatal", kSeverityFatal},
                                                     {"error", kSeverityError},
                                                     {"warning", kSeverityWarning},
                                                     {"information", kSeverityInformation}};
  for (const auto& [text, expected] : all) {
    const std::string attribute = std::string(" severity=\"") + text + "\"";
    const std::string json = jsonOf(text, R"(a < b\n\nc\n)");
    const std::string xml = encoded("validateReply", json);
    expectXml("<response><message" + attribute + ">a &lt; b</message><message" + attribute + "/><message" + attribute +
                  ">c</message></response>",
              xml);
    TRNSeverity severity = kSeverityNone;
    I18NString messages;
    QFValidateCommandHelper().CheckReponse(parsed(xml), severity, messages);
    EXPECT_EQ(expected, severity);
    EXPECT_EQ("a < b\n\nc\n", messages);
    EXPECT_EQ(json, decoded("validateReply", xml));
  }
  expectXml("<response><message>a</message></response>",
            encoded("validateReply", R"({"severity": "none", "messages": "a\n"})"));
  expectXml("<response/>", encoded("validateReply", R"({"severity": "none"})"));
}

TEST(ValidateReplyKind, WhatNoReplyAmountsToIsRefused) {
  expectFailure(kStatusUnfit,
                R"(standard input: $.severity: "worse" is none of "fatal", "error", "warning", "information", "none")",
                run({"encode", "validateReply"}, R"({"severity": "worse", "messages": ""})"));
  expectFailure(kStatusUnfit, "standard input: $.messages: a severity needs a message",
                run({"encode", "validateReply"}, R"({"severity": "information", "messages": ""})"));
  expectFailure(kStatusUnfit, "standard input: $.messages: must end with a line feed",
                run({"encode", "validateReply"}, R"({"severity": "none", "messages": "a\nb"})"));
}
