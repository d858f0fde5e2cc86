#include <vector>

#include <dxmd/queryengine/VqeRefineObjectsHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct RefinedObjects {
  std::vector<I18NString> objectIDs;
};

void shape(Shape& s, RefinedObjects& reply) {
  s.required("objectIDs", reply.objectIDs, "The objects that the model was refined to", nonEmptyItems());
}

TRNIDOM_Element make(const RefinedObjects& reply) {
  TRNIDOM_Element response = newElement("response");
  for (const I18NString& objectID : reply.objectIDs) appendTextElement(response, "expression", objectID);
  return response;
}

RefinedObjects take(TRNIDOM_Element& root) {
  VqeRefineObjectsHelper helper("");
  helper.Take(root);
  RefinedObjects reply;
  for (I18NString objectID; helper.getResponseObject(objectID);) reply.objectIDs.push_back(objectID);
  return reply;
}

}  // namespace

Kind kinds::refinedObjects() {
  Kind kind = kindOf(make, take);
  kind.summary = "Reply to refineObjects";
  kind.purpose = "The query engine's answer to refineObjects: the IDs of objects, to be read one by one.";
  kind.notes = R"(With --exact nothing, not even white space, may stand between the "expression" elements.)";
  kind.helper = "VqeRefineObjectsHelper";
  kind.writes = Does::kTool;
  kind.roots = {"response"};
  kind.orHolding = {"response"};
  kind.marks = {"expression"};
  kind.example = R"({"objectIDs": ["[Sales].[Orders]", "[Sales].[Products].[Product name]"]})";
  return kind;
}

}  // namespace dxmd_tool
