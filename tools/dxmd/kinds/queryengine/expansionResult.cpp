#include <dxmd/queryengine/VqeExpandParameterHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct ExpansionResult {
  I18NString expansionResult;
};

void shape(Shape& s, ExpansionResult& reply) {
  s.required("expansionResult", reply.expansionResult, "The expression, expanded", nonEmpty());
}

TRNIDOM_Element make(const ExpansionResult& reply) {
  TRNIDOM_Element response = newElement("response");
  appendTextElement(response, "expansionResult", reply.expansionResult);
  return response;
}

ExpansionResult take(TRNIDOM_Element& root) {
  VqeExpandParameterHelper helper("");
  helper.Take(root);
  return {helper.GetExpandedQuery()};
}

}  // namespace

Kind kinds::expansionResult() {
  Kind kind = kindOf(make, take);
  kind.summary = "Reply to expandParameter";
  kind.purpose = "The query engine's answer to expandParameter: the expression, expanded.";
  kind.helper = "VqeExpandParameterHelper";
  kind.writes = Does::kTool;
  kind.roots = {"response"};
  kind.orHolding = {"expansionResult"};
  kind.example = R"({"expansionResult": "[Sales].[Orders].[Year] = 2024"})";
  return kind;
}

}  // namespace dxmd_tool
