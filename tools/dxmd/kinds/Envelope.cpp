#include "Envelope.h"

#include <dxmd/queryservice/QsApiConnectHelper.h>

namespace dxmd_tool {

const EnumTable<QFExecuteCommandHelper::EQueryFeedback> kQueryFeedbacks{
    QFExecuteCommandHelper::kQueryFeedbackNativeCommandText, QFExecuteCommandHelper::kQueryFeedbackTableType,
    &QFExecuteCommandHelper::ToString};

const char* const kEnvelopeNotes =
    R"("commandID" and "requestID" are "DXCommand" and "DXRequest" unless given. "connection" is what
the kind connection takes.)";

const char* const kDXEnvelopeNotes =
    R"("commandID" and "requestID" are "DXCommand" and "DXRequest" unless given. "connection" is what
the kind connection takes. "queryLocale" and "queryFeedback", a list, ask for the locale of the
answer and for what the service is to report.)";

TRNIDOM_Element readConnection(JsonObject& json) {
  QsApiConnectHelper connection;
  const auto set = [&](const char* key, void (QsApiConnectHelper::*setter)(const I18NString&)) {
    if (const JsonValue value = json.optional(key)) (connection.*setter)(value.text());
  };
  set("providerType", &QsApiConnectHelper::SetProviderType);
  set("namespace", &QsApiConnectHelper::SetNamespace);
  set("username", &QsApiConnectHelper::SetUserName);
  set("password", &QsApiConnectHelper::SetPassword);
  set("passport", &QsApiConnectHelper::SetPassport);
  set("contentManagerURI", &QsApiConnectHelper::SetContentManagerURI);
  set("modelPath", &QsApiConnectHelper::SetModelPath);
  if (const auto locale = json.optional("runLocale").locale()) connection.SetRunLocale(*locale);
  if (const auto locale = json.optional("productLocale").locale()) connection.SetProductLocale(*locale);
  if (const JsonValue id = json.optional("sessionID"))
    connection.SetSessionID(id.integerWithin<unsigned long>(0, 0xFFFFFFFF));
  json.optional("properties").members([&](const I18NString& key, const JsonValue& value) {
    connection.AddProperty(key, value.text());
  });
  json.optional("models").objects([&](JsonObject& model) {
    const I18NString name = model.required("name").text();
    connection.AddModel(name, model.optional("bme").boolean());
  });
  if (const JsonValue retain = json.optional("retainConnection")) connection.SetRetainConnection(retain.boolean());
  if (const JsonValue disable = json.optional("disableAuthentication"))
    connection.SetDisableAuthentication(disable.boolean());
  return made(connection);
}

void readEnvelope(JsonObject& json, QFCommandHelper& command) {
  if (const JsonValue id = json.optional("commandID"))
    command.SetProperty(QFCommandHelper::kPropertyCommandID, id.text());
  if (const JsonValue id = json.optional("requestID"))
    command.SetProperty(QFCommandHelper::kPropertyRequestID, id.text());
  json.optional("connection").object([&](JsonObject& object) {
    TRNIDOM_Element connection = readConnection(object);
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
