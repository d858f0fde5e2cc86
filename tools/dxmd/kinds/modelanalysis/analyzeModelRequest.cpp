#include <algorithm>
#include <string>
#include <vector>

#include <dxmd/modelanalysis/DXModelAnalysisRequestHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

using Helper = DXAnalyzeRequestTaskHelper;

const EnumTable<Helper::ETask> kTasks{&Helper::ToString};
const EnumTable<Helper::ECheck> kChecks{&Helper::ToString};

struct Task {
  Helper::ETask name{};
  std::vector<I18NString> objects;
  std::vector<Helper::ECheck> checks;
};

void shape(Shape& s, Task& task) {
  s.required("name", task.name, "What to do", kTasks);
  s.optional("objects", task.objects, "The IDs of the objects to check, rather than the whole model", nonEmptyItems());
  s.optional("checks", task.checks, "What to look for", kChecks);
}

struct AnalyzeModelRequest {
  std::vector<Task> tasks;
};

void shape(Shape& s, AnalyzeModelRequest& request) {
  s.required("tasks", request.tasks, "The tasks, in order");
}

TRNIDOM_Element make(const AnalyzeModelRequest& request) {
  DXModelAnalysisRequestHelper helper;
  for (const Task& task : request.tasks) {
    Helper* const added = helper.AddTask(task.name);
    for (const I18NString& id : task.objects) added->AddObject(id);
    for (const Helper::ECheck check : task.checks) added->AddCheck(check);
  }
  return made(helper);
}

AnalyzeModelRequest take(TRNIDOM_Element& root) {
  refuseNested(root, "task");
  DXModelAnalysisRequestHelper helper;
  helper.Take(root);
  AnalyzeModelRequest request;
  for (const Helper* task : helper.GetTasks())
    request.tasks.push_back({task->GetTask(), task->GetObjects(), task->GetChecks()});
  return request;
}

std::string unsupportedChecks() {
  std::vector<Helper::ECheck> supported;
  Helper::GetSupportedChecks(supported);
  std::string names;
  for (const Helper::ECheck check : kChecks.values())
    if (std::find(supported.begin(), supported.end(), check) == supported.end())
      names += (names.empty() ? "" : ", ") + kChecks.text(check).toUtf8();
  return names;
}

}  // namespace

Kind kinds::analyzeModelRequest() {
  Kind kind = kindOf(make, take);
  kind.summary = "Request to check a model, or some of its objects";
  kind.purpose = R"(Asks the modelling service to run checks over a model, or over the objects listed, and to report
the issues that it finds.)";
  kind.notes =
      "A received task and its parts are found at any depth, but no task may stand inside another.\n"
      "Checks that are written and read, but not supported: " +
      unsupportedChecks();
  kind.helper = "DXModelAnalysisRequestHelper";
  kind.reply = "analyzeModelResponse";
  kind.roots = {"analyzeModelRequest"};
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

}  // namespace dxmd_tool
