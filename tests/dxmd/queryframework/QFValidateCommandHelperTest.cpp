#include <dxmd/queryframework/QFValidateCommandHelper.h>

#include <type_traits>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

// The command made from what the element brings in.
std::string validated(TRNIDOM_Element element) {
  QFValidateCommandHelper().Make(element);
  return xmlOf(element);
}

// What the messages make of the severity, followed by their texts.
std::string checked(const std::string& response) {
  TRNSeverity severity = kSeverityFatal;
  I18NString messages;
  QFValidateCommandHelper().CheckReponse(parsed(response), severity, messages);
  return std::to_string(severity) + ":" + messages.toUtf8();
}

// The severity after messages of these severities.
int severityAfter(const std::vector<const char*>& severities) {
  std::string response = "<response>";
  for (const char* severity : severities) response += "<message severity=\"" + std::string(severity) + "\"/>";
  return std::stoi(checked(response + "</response>"));
}

}  // namespace

// A reply whose `getDocumentElement()` was forgotten would hold no message.
static_assert(!std::is_convertible_v<TRNIDOM_Document, TRNIDOM_Element>);
static_assert(!std::is_assignable_v<TRNIDOM_Element&, TRNIDOM_Document&>);
static_assert(!std::is_invocable_v<decltype(&QFValidateCommandHelper::CheckReponse), QFValidateCommandHelper&,
                                   TRNIDOM_Document&, TRNSeverity&, I18NString&>);
static_assert(std::is_convertible_v<TRNIDOM_Node, TRNIDOM_Element>);

TEST(QFValidateCommandHelper, ANodeThatStandsOnADocumentConvertsAndHoldsNoMessage) {
  const TRNIDOM_Node reply = parsed("<response><message severity='fatal'>m</message></response>").getOwnerDocument();
  TRNSeverity severity = kSeverityFatal;
  I18NString messages;
  QFValidateCommandHelper().CheckReponse(reply, severity, messages);
  EXPECT_EQ(kSeverityNone, severity);
}

TEST(QFValidateCommandHelper, CopiesTheChildrenOfTheFirstChildOnly) {
  const TRNIDOM_Element element = parsed("<e><first a=\"1\"><x>1</x> t<!--c--><y/></first><second><z/></second></e>");
  expectXml(inEnvelope("<validate><x>1</x> t<!--c--><y/></validate>"), validated(element));
  expectXml("<e><first a=\"1\"><x>1</x> t<!--c--><y/></first><second><z/></second></e>", element);
}

TEST(QFValidateCommandHelper, HasNothingToValidateInANullOrChildlessElement) {
  const std::string empty = inEnvelope("<validate/>");
  expectXml(empty, validated(TRNIDOM_Element()));
  expectXml(empty, validated(parsed("<e/>")));
  expectXml(empty, validated(parsed("<e><first/><second>ignored</second></e>")));
  expectXml(empty, validated(parsed("<e>text comes first<second><x/></second></e>")));
  expectXml(empty, validated(parsed("<e>text</e>").getFirstChild()));
}

TEST(QFValidateCommandHelper, CommandOutlivesTheContentAndCanItselfBeValidated) {
  TRNIDOM_Element element = parsed("<e><f><x/></f></e>");
  const QFValidateCommandHelper command;
  command.Make(element);
  expectXml(inEnvelope("<validate><x/></validate>"), element);
  command.Make(element);
  expectXml(inEnvelope("<validate><x/></validate>"), element);
}

TEST(QFValidateCommandHelper, EachMessageJudgesByTheOneBeforeOnly) {
  EXPECT_EQ(5, severityAfter({}));
  EXPECT_EQ(0, severityAfter({"fatal", "error"}));
  EXPECT_EQ(1, severityAfter({"error", "warning"}));
  EXPECT_EQ(0, severityAfter({"error", "fatal"}));
  EXPECT_EQ(2, severityAfter({"fatal", "warning"}));
  EXPECT_EQ(1, severityAfter({"fatal", "warning", "error"}));
  EXPECT_EQ(3, severityAfter({"fatal", "information"}));
  EXPECT_EQ(3, severityAfter({"warning", "information"}));
  EXPECT_EQ(2, severityAfter({"error", "information", "warning"}));
  // Other severities change nothing.
  EXPECT_EQ(5, severityAfter({"", "Fatal", "info"}));
  EXPECT_EQ(1, severityAfter({"error", "", "ERROR"}));
}

TEST(QFValidateCommandHelper, EveryMessageAddsALineAtAnyDepth) {
  EXPECT_EQ("2:a\nbc\n\nd\n",
            checked("<r><message severity=\"error\">a</message><x><message severity=\"fatal\">"
                    "b<y>no</y>c</message><message severity=\"warning\"/></x><message>d</message></r>"));
  EXPECT_EQ("5:", checked("<message severity=\"fatal\">the response itself</message>"));
}

TEST(QFValidateCommandHelper, MessagesAreAddedToTheCallersText) {
  TRNSeverity severity = kSeverityError;
  I18NString messages("held;");
  const QFValidateCommandHelper command;
  command.CheckReponse(TRNIDOM_Element(), severity, messages);
  EXPECT_EQ(kSeverityNone, severity);
  command.CheckReponse(parsed("<r><message severity=\"information\">a</message></r>"), severity, messages);
  EXPECT_EQ("held;a\n", messages);
}
