#include <string>
#include <vector>

#include <dxmd/modelanalysis/DXModelAnalysisRequestHelper.h>
#include <dxmd/modelanalysis/DXModelAnalysisResponseHelper.h>

#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

namespace {

using Issue = DXAnalyzeResponseIssueHelper;
using IssueObject = DXAnalyzeResponseIssueObjectHelper;
using Task = DXAnalyzeRequestTaskHelper;

const EnumTable<Task::ETask> kTasks{Task::kTaskDoSpecifiedChecks, Task::kTaskDoSpecifiedChecks, &Task::ToString};
const EnumTable<Task::ECheck> kChecks{Task::kCheckUseOfCardinalityInFacts, Task::kCheckCachingConflict,
                                      &Task::ToString};
const EnumTable<int> kStatuses{0, {"failure", "success"}};
const EnumTable<IssueObject::ESubType> kSubTypes{IssueObject::kSubTypeMeasure, {"measure"}};

// analyzeModelRequest

TRNIDOM_Element encodeRequest(JsonObject& json, const KindOptions&) {
  DXModelAnalysisRequestHelper request;
  json.required("tasks").objects([&](JsonObject& object) {
    Task* task = request.AddTask(object.required("name").enumerator(kTasks));
    object.optional("objects").each([&](const JsonValue& id) { task->AddObject(id.text()); });
    object.optional("checks").each([&](const JsonValue& check) { task->AddCheck(check.enumerator(kChecks)); });
  });
  return made(request);
}

Decoded decodeRequest(TRNIDOM_Element& root, const KindOptions&) {
  DXModelAnalysisRequestHelper request;
  request.Take(root);
  Json json = Json::object();
  json["tasks"] = Json::array();
  for (const Task* task : request.GetTasks()) {
    Json object = Json::object();
    object["name"] = kTasks.text(task->GetTask());
    putUnlessEmpty(object, "objects", Json(task->GetObjects()));
    Json checks = Json::array();
    for (const Task::ECheck check : task->GetChecks()) checks.push_back(kChecks.text(check));
    putUnlessEmpty(object, "checks", std::move(checks));
    json["tasks"].push_back(std::move(object));
  }
  return json;
}

std::string supportedChecks() {
  std::vector<Task::ECheck> checks;
  Task::GetSupportedChecks(checks);
  std::string names;
  for (const Task::ECheck check : checks) names += "\n  " + kChecks.text(check).toUtf8();
  return names;
}

Kind analyzeModelRequest() {
  Kind kind;
  kind.name = "analyzeModelRequest";
  kind.summary = "Request to check a model, or some of its objects";
  kind.notes = R"("objects" are IDs. The checks supported are:)" + supportedChecks();
  kind.roots = {"analyzeModelRequest"};
  kind.encode = encodeRequest;
  kind.decode = decodeRequest;
  kind.roundTrips = true;
  kind.example = R"({
  "tasks": [
    {
      "name": "doSpecifiedChecks",
      "objects": ["[m].[sales]", "[m].[stock]"],
      "checks": ["ambiguousCardinality", "circularDependency"]
    }
  ]
})";
  return kind;
}

// analyzeModelResponse

void readIssueObject(JsonObject& json, Issue& issue) {
  const auto text = [&](const char* key) { return json.optional(key).text(); };
  const I18NString name = text("name");
  const I18NString id = text("id");
  const I18NString className = text("class");
  const I18NString path = text("path");
  const I18NString refclass = text("refclass");
  const IssueObject::ESubType subtype = json.optional("subtype").enumerator(kSubTypes);
  IssueObject* object =
      issue.AddObject(name, id, className, path, refclass, subtype, json.optional("messages").texts());
  json.optional("relatedObjects").objects([&](JsonObject& related) {
    const I18NString relatedName = related.optional("name").text();
    const I18NString relatedID = related.optional("id").text();
    const I18NString relatedClass = related.optional("class").text();
    object->AddRelatedObject(relatedName, relatedID, relatedClass, related.optional("path").text());
  });
}

TRNIDOM_Element encodeResponse(JsonObject& json, const KindOptions&) {
  DXModelAnalysisResponseHelper response;
  json.required("tasks").objects([&](JsonObject& object) {
    DXAnalyzeResponseTaskHelper* task = response.AddTask(object.required("name").enumerator(kTasks));
    if (const JsonValue status = object.optional("status")) task->SetSuccess(status.enumerator(kStatuses));
    object.optional("issues").objects([&](JsonObject& item) {
      Issue* issue = task->AddIssue(item.required("name").text());
      item.optional("objects").objects([&](JsonObject& concerned) { readIssueObject(concerned, *issue); });
    });
  });
  return made(response);
}

Kind analyzeModelResponse() {
  Kind kind;
  kind.name = "analyzeModelResponse";
  kind.summary = "Answer to an analyzeModelRequest: the issues found";
  kind.notes = R"("status" is "success" unless given; "subtype" is "measure" or absent.)";
  kind.roots = {"analyzeModelResponse"};
  kind.encode = encodeResponse;
  kind.example = R"({
  "tasks": [
    {
      "name": "doSpecifiedChecks",
      "status": "success",
      "issues": [
        {
          "name": "ambiguousCardinality",
          "objects": [
            {
              "name": "Sales",
              "id": "[m].[sales]",
              "class": "querySubject",
              "path": "m/sales",
              "refclass": "relationship",
              "subtype": "measure",
              "messages": ["Both ends are optional."],
              "relatedObjects": [
                {"name": "Stock", "id": "[m].[stock]", "class": "querySubject", "path": "m/stock"}
              ]
            }
          ]
        }
      ]
    }
  ]
})";
  return kind;
}

}  // namespace

std::vector<Kind> modelAnalysisKinds() {
  return {analyzeModelRequest(), analyzeModelResponse()};
}

}  // namespace dxmd_tool
