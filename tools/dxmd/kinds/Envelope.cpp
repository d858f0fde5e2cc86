#include "Envelope.h"

namespace dxmd_tool {

const char* const kEnvelopeNotes =
    R"("commandID" and "requestID" are "DXCommand" and "DXRequest" unless given. "connection" is what
the kind connection takes.)";

const char* const kDXEnvelopeNotes =
    R"("commandID" and "requestID" are "DXCommand" and "DXRequest" unless given. "connection" is what
the kind connection takes. "queryLocale" and "queryFeedback", a list, ask for the locale of the
answer and for what the service is to report.)";

void readEnvelope(JsonObject& json, QFCommandHelper& command) {
  if (const JsonValue id = json.optional("commandID"))
    command.SetProperty(QFCommandHelper::kPropertyCommandID, id.text());
  if (const JsonValue id = json.optional("requestID"))
    command.SetProperty(QFCommandHelper::kPropertyRequestID, id.text());
  json.optional("connection").object([&](JsonObject& object) {
    Connection record;
    readRecord(object, record);
    TRNIDOM_Element connection = makeConnection(record);
    command.SetConnection(connection);
  });
}

void readDXEnvelope(JsonObject& json, QFDXCommandHelper& command, std::optional<I18NLocale>& locale) {
  readEnvelope(json, command);
  locale = json.optional("queryLocale").locale();
  if (locale) command.SetQueryLocale(&*locale);
  json.optional("queryFeedback").each([&](const JsonValue& feedback) {
    command.AddQueryFeedback(feedback.enumerator(kQueryFeedbacks));
  });
}

}  // namespace dxmd_tool
