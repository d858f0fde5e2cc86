#include "Envelope.h"

#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

const EnumTable<QFExecuteCommandHelper::EQueryFeedback> kQueryFeedbacks{&QFExecuteCommandHelper::ToString};

void shapeEnvelope(Shape& s, Envelope& envelope, const I18NString& commandID, const I18NString& requestID) {
  s.shown("commandID", envelope.commandID, "Identifies the command", otherwise(commandID));
  s.shown("requestID", envelope.requestID, "Identifies the request", otherwise(requestID));
  s.optional("connection", envelope.connection, "What the command runs against", asKind("connection"));
}

void setEnvelope(QFCommandHelper& command, const Envelope& envelope) {
  command.SetProperty(QFCommandHelper::kPropertyCommandID, envelope.commandID);
  command.SetProperty(QFCommandHelper::kPropertyRequestID, envelope.requestID);
  if (!envelope.connection) return;
  TRNIDOM_Element connection = makeConnection(*envelope.connection);
  command.SetConnection(connection);
}

Envelope takeEnvelope(const TRNIDOM_Element& command) {
  Envelope envelope;
  envelope.commandID = firstChild(command, "commandID").getAttribute("value");
  envelope.requestID = firstChild(command, "requestID").getAttribute("value");
  if (TRNIDOM_Element connection = firstChild(command, "connection"); !connection.isNull())
    envelope.connection = takeConnection(connection);
  return envelope;
}

void shapeEnvelope(Shape& s, DXEnvelope& envelope) {
  shapeEnvelope(s, envelope.outer);
  s.optional("queryLocale", envelope.queryLocale, "The locale of the answer");
  s.optional("queryFeedback", envelope.queryFeedback, "What the service is to report beside the answer",
             kQueryFeedbacks);
}

void setEnvelope(QFDXCommandHelper& command, const DXEnvelope& envelope) {
  setEnvelope(static_cast<QFCommandHelper&>(command), envelope.outer);
  if (envelope.queryLocale) command.SetQueryLocale(&*envelope.queryLocale);
  for (const auto feedback : envelope.queryFeedback) command.AddQueryFeedback(feedback);
}

DXEnvelope takeDXEnvelope(const TRNIDOM_Element& command) {
  const TRNIDOM_Element dxCommand = requiredChild(command, "dxCommand");
  DXEnvelope envelope;
  envelope.outer = takeEnvelope(command);
  if (const auto locale = attribute(dxCommand, "queryLocale")) envelope.queryLocale = I18NLocale(*locale);
  envelope.queryFeedback = takeQueryFeedbacks(firstChild(dxCommand, "queryFeedback"));
  return envelope;
}

I18NString takeDXModelPath(const TRNIDOM_Element& command) {
  return childText(requiredChild(requiredChild(command, "dxCommand"), "source"), "model");
}

std::vector<QFExecuteCommandHelper::EQueryFeedback> takeQueryFeedbacks(const TRNIDOM_Element& queryFeedback) {
  std::vector<QFExecuteCommandHelper::EQueryFeedback> feedbacks;
  for (TRNIDOM_Element property = firstChild(queryFeedback, "property"); !property.isNull();
       property = nextSibling(property, "property"))
    feedbacks.push_back(enumerator(property, "name", kQueryFeedbacks));
  return feedbacks;
}

}  // namespace dxmd_tool
