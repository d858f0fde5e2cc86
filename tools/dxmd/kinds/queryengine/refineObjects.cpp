#include <vector>

#include <dxmd/queryengine/VqeRefineObjectsHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct RefineObjects {
  I18NString modelPath;
  std::vector<I18NString> objectIDs;
  DXEnvelope envelope;
};

void shape(Shape& s, RefineObjects& command) {
  s.required("modelPath", command.modelPath, "The published model");
  s.required("objectIDs", command.objectIDs, "The objects to refine it for", nonEmptyItems());
  shapeEnvelope(s, command.envelope);
}

TRNIDOM_Element make(const RefineObjects& command) {
  VqeRefineObjectsHelper helper(command.modelPath);
  setEnvelope(helper, command.envelope);
  // Objects join the request that was made.
  TRNIDOM_Element element = made(helper);
  for (const I18NString& objectID : command.objectIDs) helper.addRequestObject(objectID);
  return element;
}

RefineObjects take(TRNIDOM_Element& root) {
  const TRNIDOM_Element refine = requiredChild(requiredChild(root, "dxCommand"), "refinePublishedModel");
  return {takeDXModelPath(root), nonEmptyChildTexts(refine, "expression"), takeDXEnvelope(root)};
}

}  // namespace

Kind kinds::refineObjects() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to refine a published model for a list of objects";
  kind.purpose = R"(Asks the query engine to refine a published model for the objects listed. It answers with object
IDs.)";
  kind.helper = "VqeRefineObjectsHelper";
  kind.reads = Does::kTool;
  kind.reply = "refinedObjects";
  kind.roots = {"command"};
  kind.wrapped = "refinePublishedModel";
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='2024']",
  "objectIDs": ["[Sales].[Orders]", "[Sales].[Products].[Product name]"],
  "commandID": "Refine7",
  "requestID": "Request7",
  "connection": {"passport": "101:5f3c", "runLocale": "en"},
  "queryLocale": "en-gb",
  "queryFeedback": ["tableType"]
})";
  return kind;
}

}  // namespace dxmd_tool
