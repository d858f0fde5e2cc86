#include <vector>

#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct GetJoinPaths {
  I18NString modelPath;
  std::vector<I18NString> expressions;
  DXEnvelope envelope;
};

void shape(Shape& s, GetJoinPaths& command) {
  s.required("modelPath", command.modelPath, "The model that has the joins");
  s.required("expressions", command.expressions, "The expressions to find join paths between",
             emptyIsLost("Empty texts in it are not written"));
  shapeEnvelope(s, command.envelope);
}

TRNIDOM_Element make(const GetJoinPaths& command) {
  VqeGetJoinPathsHelper helper(command.modelPath);
  setEnvelope(helper, command.envelope);
  for (const I18NString& expression : command.expressions) helper.AddItem(expression);
  return made(helper);
}

GetJoinPaths take(TRNIDOM_Element& root) {
  const TRNIDOM_Element getJoinPaths = requiredChild(requiredChild(root, "dxCommand"), "getJoinPaths");
  return {takeDXModelPath(root), nonEmptyChildTexts(getJoinPaths, "expression"), takeDXEnvelope(root)};
}

}  // namespace

Kind kinds::getJoinPaths() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to ask for the join paths between expressions";
  kind.purpose = R"(Asks the query engine whether the things that several expressions refer to can be joined, and by
which joins.)";
  kind.helper = "VqeGetJoinPathsHelper";
  kind.reads = Does::kTool;
  kind.reply = "joinPaths";
  kind.roots = {"command"};
  kind.wrapped = "getJoinPaths";
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='2024']",
  "expressions": ["[Sales].[Orders].[Order number]", "[Sales].[Products].[Product name]"],
  "commandID": "JoinPaths7",
  "requestID": "Request7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"},
  "queryLocale": "en-gb",
  "queryFeedback": ["executionPlan"]
})";
  return kind;
}

}  // namespace dxmd_tool
