#include <dxmd/queryengine/VqeExpandParameterHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct ExpandParameter {
  I18NString modelPath;
  I18NString expression;
  DXEnvelope envelope;
};

void shape(Shape& s, ExpandParameter& command) {
  s.required("modelPath", command.modelPath, "The model that the expression is about");
  s.required("expression", command.expression, "The expression to expand");
  shapeEnvelope(s, command.envelope);
}

TRNIDOM_Element make(const ExpandParameter& command) {
  VqeExpandParameterHelper helper(command.modelPath);
  setEnvelope(helper, command.envelope);
  helper.SetParameterisedValue(command.expression);
  return made(helper);
}

ExpandParameter take(TRNIDOM_Element& root) {
  const TRNIDOM_Element expand = requiredChild(requiredChild(root, "dxCommand"), "expand");
  return {takeDXModelPath(root), childText(expand, "expression"), takeDXEnvelope(root)};
}

}  // namespace

Kind kinds::expandParameter() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to expand a parameterised expression";
  kind.purpose = "Asks the query engine for an expression with the parameters in it expanded.";
  kind.helper = "VqeExpandParameterHelper";
  kind.reads = Does::kTool;
  kind.reply = "expansionResult";
  kind.roots = {"command"};
  kind.wrapped = "expand";
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='2024']",
  "expression": "[Sales].[Orders].[Year] = ?Year?",
  "commandID": "Expand7",
  "requestID": "Request7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"},
  "queryLocale": "en-gb",
  "queryFeedback": ["nativeCommandText", "connections"]
})";
  return kind;
}

}  // namespace dxmd_tool
