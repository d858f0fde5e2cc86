#include <sstream>
#include <string>

#include <trn/TRNSeverity.h>

#include <dxmd/queryframework/QFValidateCommandHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

// The attribute of a message, but for "none", which is not written.
I18NString severityText(TRNSeverity severity) {
  switch (severity) {
    case kSeverityFatal:
      return "fatal";
    case kSeverityError:
      return "error";
    case kSeverityWarning:
      return "warning";
    case kSeverityInformation:
      return "information";
    case kSeverityNone:
      return "none";
  }
  return I18NString();
}

const EnumTable<TRNSeverity> kSeverities{&severityText};

struct ValidateReply {
  TRNSeverity severity{};
  I18NString messages;
};

void shape(Shape& s, ValidateReply& reply) {
  s.choice<TRNSeverity>(
      "severity", reply.severity, "What the messages amount to", kSeverities, [&](TRNSeverity severity) {
        const char* const meaning = "The texts of the messages";
        if (severity == kSeverityNone)
          s.shown("messages", reply.messages, meaning, lines());
        else
          s.required("messages", reply.messages, meaning, lines(), nonEmpty("a severity needs a message"));
      });
}

TRNIDOM_Element make(const ValidateReply& reply) {
  TRNIDOM_Element response = newElement("response");
  std::istringstream messages(reply.messages.toUtf8());
  for (std::string line; std::getline(messages, line);) {
    TRNIDOM_Element message = appendTextElement(response, "message", line.c_str());
    if (reply.severity != kSeverityNone) message.setAttribute("severity", kSeverities.text(reply.severity));
  }
  return response;
}

ValidateReply take(TRNIDOM_Element& root) {
  ValidateReply reply;
  QFValidateCommandHelper().CheckReponse(root, reply.severity, reply.messages);
  return reply;
}

/// The messages that are errors, which a reply to another command may hold as well.
std::string errorsIn(const TRNIDOM_Element& root) {
  std::string errors;
  for (const TRNIDOM_Node message : root.getElementsByTagName("message")) {
    const I18NString severity = TRNIDOM_Element(message).getAttribute("severity");
    if (severity != severityText(kSeverityFatal) && severity != severityText(kSeverityError)) continue;
    errors += (errors.empty() ? "" : "; ") + severity.toUtf8() + ": " + textOf(message).toUtf8();
  }
  return errors;
}

}  // namespace

Kind kinds::validateReply() {
  Kind kind = kindOf(make, take);
  kind.summary = "Reply to a validate command: severity and messages";
  kind.purpose = R"(What the query framework service says to a validate command: messages, each with a severity.
Reading makes one severity and one text of them.)";
  kind.notes =
      R"("severity" is what the messages make of it one after the other: a warning after a fatal message
lowers it, and so does information after any other. Each line of "messages" is written as a message
of that severity; where it is "none", as one without a severity.)";
  kind.helper = "QFValidateCommandHelper";
  kind.writes = Does::kTool;
  kind.roots = {"response"};
  kind.orHolding = {"message"};
  kind.errors = errorsIn;
  kind.example = R"({
  "severity": "error",
  "messages": "Item is not used\nItem is unknown\n"
})";
  return kind;
}

}  // namespace dxmd_tool
