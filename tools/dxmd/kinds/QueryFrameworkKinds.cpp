#include <trn/TRNSeverity.h>
#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>

#include <dxmd/queryframework/QFUpdateCommandHelper.h>
#include <dxmd/queryframework/QFValidateCommandHelper.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/Envelope.h>
#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

namespace {

TRNIDOM_Element encodeUpdate(JsonObject& json, const KindOptions&) {
  QFUpdateCommandHelper command(json.required("modelPath").text());
  readEnvelope(json, command);
  json.optional("updateSubjects").objects([&](JsonObject& subject) {
    const I18NString name = subject.required("name").text();
    command.AddUpdateSubject(name, subject.required("text").text());
  });
  return made(command);
}

TRNIDOM_Element encodeValidate(JsonObject& json, const KindOptions&) {
  QFValidateCommandHelper command;
  readEnvelope(json, command);
  // The command copies what stands in the first child of the element that it is handed.
  TRNIDOM_Document document =
      TRNIDOM_DOMImplementation::getInstance().createDocument("", "request", TRNIDOM_DocumentType());
  TRNIDOM_Element element = document.getDocumentElement();
  TRNIDOM_Node content = element.appendChild(document.createElement("content"));
  json.required("content").each(
      [&](const JsonValue& part) { content.appendChild(document.importNode(part.xml(), true)); });
  command.Make(element);
  return element;
}

Decoded decodeValidateReply(TRNIDOM_Element& root, const KindOptions&) {
  TRNSeverity severity = kSeverityNone;
  I18NString messages;
  QFValidateCommandHelper().CheckReponse(root, severity, messages);
  const char* const texts[] = {"fatal", "error", "warning", "information"};
  Json json = Json::object();
  json["severity"] = severity <= kSeverityInformation ? texts[severity] : "none";
  json["messages"] = messages;
  return json;
}

Kind updateKind() {
  Kind kind;
  kind.name = "update";
  kind.summary = "Command to send texts for the subjects of a model";
  kind.notes = kEnvelopeNotes;
  kind.roots = {"command"};
  kind.encode = encodeUpdate;
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='model']",
  "commandID": "DXCommand",
  "requestID": "DXRequest",
  "connection": {"passport": "101:5f3c"},
  "updateSubjects": [{"name": "[Sales].[Region]", "text": "<region/>"}]
})";
  return kind;
}

Kind validateKind() {
  Kind kind;
  kind.name = "validate";
  kind.summary = "Command to validate what it holds";
  kind.notes = std::string(R"("content" lists what is to be validated, each a text of XML.)") + "\n" + kEnvelopeNotes;
  kind.roots = {"command"};
  kind.encode = encodeValidate;
  kind.example = R"({
  "commandID": "DXCommand",
  "requestID": "DXRequest",
  "connection": {"passport": "101:5f3c"},
  "content": ["<expression>[Sales].[Fact].[Revenue] / 2</expression>"]
})";
  return kind;
}

Kind validateReplyKind() {
  Kind kind;
  kind.name = "validateReply";
  kind.summary = "Reply to a validate command: severity and messages";
  kind.notes = R"("severity" is what the messages make of it one after the other: a warning after a fatal message
lowers it, and so does information after any other.)";
  kind.roots = {"response"};
  kind.orHolding = {"message"};
  kind.decode = decodeValidateReply;
  kind.example = R"(<response><message severity="warning">Item is not used</message>)"
                 R"(<message severity="error">Item is unknown</message></response>)";
  return kind;
}

}  // namespace

std::vector<Kind> queryFrameworkKinds() {
  return {validateKind(), validateReplyKind(), updateKind()};
}

}  // namespace dxmd_tool
