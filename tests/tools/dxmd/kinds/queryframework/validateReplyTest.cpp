#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

namespace {

/// Reads a reply whose messages have those severities in that order.
void expectJudged(const std::vector<std::string>& severities, const std::string& severity) {
  std::string messages;
  for (const std::string& each : severities) messages += "<message severity=\"" + each + "\">x</message>";
  expectDecoded("validateReply", "<response>" + messages + "</response>",
                R"({"severity":")" + severity + R"(","messages":")" + repeated(severities.size(), R"(x\n)") + "\"}");
}

}  // namespace

TEST(ValidateReplyKind, MessagesAreJudgedOneAfterTheOther) {
  for (const char* severity : {"fatal", "error", "warning", "information"}) expectJudged({severity}, severity);
  expectJudged({}, "none");
  expectJudged({"unheardOf", ""}, "none");
  expectJudged({"fatal", "error"}, "fatal");
  expectJudged({"error", "warning"}, "error");
  expectJudged({"error", "fatal", "warning"}, "warning");
  expectJudged({"fatal", "information"}, "information");
}

TEST(ValidateReplyKind, EachLineIsAMessageOfTheSeverity) {
  expectBothWays("validateReply", R"({"severity":"information","messages":"a < b\n\nc\n"})",
                 R"(<response><message severity="information">a &lt; b</message><message severity="information"/>)"
                 R"(<message severity="information">c</message></response>)");
  expectBothWays("validateReply", R"({"severity":"none","messages":"a\n"})",
                 "<response><message>a</message></response>");
  expectEncoded("validateReply", R"({"severity": "none"})", "<response/>");
}

TEST(ValidateReplyKind, WhatNoReplyAmountsToIsRefused) {
  expectNotEncoded("validateReply", R"({"severity": "worse", "messages": ""})",
                   R"($.severity: "worse" is none of "fatal", "error", "warning", "information", "none")");
  expectNotEncoded("validateReply", R"({"severity": "information", "messages": ""})",
                   "$.messages: a severity needs a message");
  expectNotEncoded("validateReply", R"({"severity": "none", "messages": "a\nb"})",
                   "$.messages: must end with a line feed");
}
