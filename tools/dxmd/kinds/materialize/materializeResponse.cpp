#include <map>

#include <dxmd/materialize/DXMaterializeResponseHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

using ETasks = DXMaterializeRequestHelper::ETasks;

// The names under which tasks are answered; several tasks may share one.
const EnumTable<ETasks> kTaskNames{&DXMaterializeRequestHelper::GetTaskName};

/// The answers by the first task of each name.
struct MaterializeResponse {
  std::map<ETasks, I18NString> answers;
};

void shape(Shape& s, MaterializeResponse& response) {
  for (const ETasks task : kTaskNames.values()) {
    const I18NString name = kTaskNames.text(task);
    if (kTaskNames.value(name) == task)
      s.optional(name.toUtf8(), response.answers[task], "The answer to the tasks of that name");
  }
}

TRNIDOM_Element make(const MaterializeResponse& response) {
  TRNIDOM_Element root = newElement("materializeResponse");
  for (const auto& [task, answer] : response.answers)
    if (!answer.empty()) appendTextElement(appendElement(root, kTaskNames.text(task)), "response", answer);
  return root;
}

MaterializeResponse take(TRNIDOM_Element& root) {
  DXMaterializeResponseHelper helper;
  helper.Take(root);
  MaterializeResponse response;
  for (const ETasks task : kTaskNames.values()) helper.GetResponse(task, response.answers[task]);
  return response;
}

}  // namespace

Kind kinds::materializeResponse() {
  Kind kind = kindOf(make, take);
  kind.summary = "Answers to the tasks of a materializeRequest";
  kind.purpose = "The service's answer to a materializeRequest: a text for each task.";
  kind.notes = R"(The materialise tasks are answered under "genLoadDataFromFile".)";
  kind.helper = "DXMaterializeResponseHelper";
  kind.writes = Does::kTool;
  kind.roots = {"materializeResponse"};
  kind.example = R"({
  "genLoadDataFromFile": "LOAD DATA INFILE '/data/sales.csv' INTO TABLE SALES",
  "loadDataFromFile": "1200 rows"
})";
  return kind;
}

}  // namespace dxmd_tool
