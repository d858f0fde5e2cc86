#include <set>
#include <vector>

#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct JoinPaths {
  bool pathExists = false;
  std::vector<I18NString> joins;
};

void shape(Shape& s, JoinPaths& reply) {
  s.needsTrue("joins", "pathExists");
  s.required("pathExists", reply.pathExists, "Whether there is a join path");
  s.shown("joins", reply.joins, "The joins of all paths", repeatedIsLost("A join named twice is read once"),
          orderIsLost("Joins are read in order of their texts"));
}

TRNIDOM_Element make(const JoinPaths& reply) {
  TRNIDOM_Element response = newElement("response");
  if (!reply.pathExists) return response;
  const TRNIDOM_Element joinPath = appendElement(response, "joinPath");
  for (const I18NString& join : reply.joins) appendTextElement(joinPath, "join", join);
  return response;
}

JoinPaths take(TRNIDOM_Element& root) {
  VqeGetJoinPathsHelper helper("");
  helper.Take(root);
  std::set<I18NString> joins;
  helper.GetJoins(joins);
  return {helper.PathExists(), {joins.begin(), joins.end()}};
}

}  // namespace

Kind kinds::joinPaths() {
  Kind kind = kindOf(make, take);
  kind.summary = "Reply to getJoinPaths";
  kind.purpose = "The query engine's answer to getJoinPaths: whether there is a join path, and the joins of all paths.";
  kind.notes = R"(Written, all joins stand in one path.)";
  kind.helper = "VqeGetJoinPathsHelper";
  kind.writes = Does::kTool;
  kind.roots = {"response"};
  kind.orHolding = {"joinPath"};
  kind.example = R"({
  "pathExists": true,
  "joins": ["[Sales].[Details_Products]", "[Sales].[Orders_Details]"]
})";
  return kind;
}

}  // namespace dxmd_tool
