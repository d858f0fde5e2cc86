#include <string>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>

#include <dxmd/queryframework/QFValidateCommandHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct Validate {
  Envelope envelope;
  std::vector<TRNIDOM_Element> content;
};

void shape(Shape& s, Validate& validate) {
  shapeEnvelope(s, validate.envelope);
  s.required("content", validate.content, "What is to be validated");
}

TRNIDOM_Element make(const Validate& validate) {
  QFValidateCommandHelper helper;
  setEnvelope(helper, validate.envelope);
  // The helper copies what stands in the first child of the element that it is handed.
  TRNIDOM_Element element = newElement("request");
  TRNIDOM_Element content = appendElement(element, "content");
  for (const TRNIDOM_Element& part : validate.content)
    content.appendChild(content.getOwnerDocument().importNode(part, true));
  helper.Make(element);
  return element;
}

Validate take(TRNIDOM_Element& root) {
  const TRNIDOM_Element element = requiredChild(root, "validate");
  if (textOf(element).toUtf8().find_first_not_of(" \t\r\n") != std::string::npos)
    refuse(element, "text stands where only elements may");
  Validate validate;
  validate.envelope = takeEnvelope(root);
  for (TRNIDOM_Element part = firstChild(element); !part.isNull(); part = nextSibling(part))
    validate.content.push_back(part);
  return validate;
}

}  // namespace

Kind kinds::validate() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to validate what it holds";
  kind.purpose = R"(Hands content, such as expressions, to the query framework service, which says what is wrong
with it.)";
  kind.helper = "QFValidateCommandHelper";
  kind.reads = Does::kTool;
  kind.reply = "validateReply";
  kind.roots = {"command"};
  kind.wrapped = "validate";
  kind.example = R"({
  "commandID": "DXCommand",
  "requestID": "DXRequest",
  "connection": {"passport": "101:5f3c"},
  "content": ["<expression>[Sales].[Fact].[Revenue] / 2</expression>"]
})";
  return kind;
}

}  // namespace dxmd_tool
