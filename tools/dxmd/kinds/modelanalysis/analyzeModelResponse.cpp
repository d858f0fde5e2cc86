#include <vector>

#include <dxmd/modelanalysis/DXModelAnalysisResponseHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

using RequestTask = DXAnalyzeRequestTaskHelper;
using ObjectHelper = DXAnalyzeResponseIssueObjectHelper;

const EnumTable<RequestTask::ETask> kTasks{&RequestTask::ToString};
// The library writes these by themselves, without a conversion.
const EnumTable<int> kStatuses{0, {"failure", "success"}};
const EnumTable<ObjectHelper::ESubType> kSubTypes{ObjectHelper::kSubTypeMeasure, {"measure"}};

struct RelatedObject {
  I18NString name;
  I18NString id;
  I18NString className;
  I18NString path;
};

void shape(Shape& s, RelatedObject& object) {
  s.optional("name", object.name, "Its name");
  s.optional("id", object.id, "Its ID");
  s.optional("class", object.className, "What it is, such as querySubject");
  s.optional("path", object.path, "Where it is in the model");
}

struct IssueObject {
  RelatedObject object;
  I18NString refclass;
  ObjectHelper::ESubType subtype{};
  std::vector<I18NString> messages;
  std::vector<RelatedObject> relatedObjects;
};

void shape(Shape& s, IssueObject& object) {
  shape(s, object.object);
  s.optional("refclass", object.refclass, "What refers to it, such as relationship");
  s.optional("subtype", object.subtype, "What it is in particular", kSubTypes);
  s.optional("messages", object.messages, "What is the matter with it");
  s.optional("relatedObjects", object.relatedObjects, "The objects that have to do with it");
}

struct Issue {
  I18NString name;
  std::vector<IssueObject> objects;
};

void shape(Shape& s, Issue& issue) {
  s.required("name", issue.name, "What was found, such as the name of the check");
  s.optional("objects", issue.objects, "The objects that it concerns");
}

struct Task {
  RequestTask::ETask name{};
  int status = 0;
  std::vector<Issue> issues;
};

void shape(Shape& s, Task& task) {
  s.required("name", task.name, "The task that was asked for", kTasks);
  s.shown("status", task.status, "Whether it was carried out", kStatuses, otherwise(1));
  s.optional("issues", task.issues, "What it found");
}

struct AnalyzeModelResponse {
  std::vector<Task> tasks;
};

void shape(Shape& s, AnalyzeModelResponse& response) {
  s.required("tasks", response.tasks, "What became of the tasks, in order");
}

// make

void makeObject(DXAnalyzeResponseIssueHelper& issue, const IssueObject& concerned) {
  const RelatedObject& object = concerned.object;
  ObjectHelper* const added = issue.AddObject(object.name, object.id, object.className, object.path, concerned.refclass,
                                              concerned.subtype, concerned.messages);
  for (const RelatedObject& related : concerned.relatedObjects)
    added->AddRelatedObject(related.name, related.id, related.className, related.path);
}

TRNIDOM_Element make(const AnalyzeModelResponse& response) {
  DXModelAnalysisResponseHelper helper;
  for (const Task& task : response.tasks) {
    DXAnalyzeResponseTaskHelper* const addedTask = helper.AddTask(task.name);
    addedTask->SetSuccess(task.status);
    for (const Issue& issue : task.issues) {
      DXAnalyzeResponseIssueHelper* const addedIssue = addedTask->AddIssue(issue.name);
      for (const IssueObject& object : issue.objects) makeObject(*addedIssue, object);
    }
  }
  return made(helper);
}

// take: top to bottom as the helpers write it.

RelatedObject takeRelatedObject(const TRNIDOM_Element& element) {
  return {element.getAttribute("name"), element.getAttribute("id"), element.getAttribute("class"),
          element.getAttribute("path")};
}

IssueObject takeObject(const TRNIDOM_Element& element) {
  IssueObject concerned;
  concerned.object = takeRelatedObject(element);
  concerned.refclass = element.getAttribute("refclass");
  // An object of no particular kind has an empty one.
  if (!element.getAttribute("subtype").empty()) concerned.subtype = enumerator(element, "subtype", kSubTypes);

  const TRNIDOM_Element messages = firstChild(element, "messages");
  for (TRNIDOM_Element message = firstChild(messages, "message"); !message.isNull();
       message = nextSibling(message, "message"))
    concerned.messages.push_back(textOf(message));

  const TRNIDOM_Element relatedObjects = firstChild(element, "relatedObjects");
  for (TRNIDOM_Element related = firstChild(relatedObjects, "relatedObject"); !related.isNull();
       related = nextSibling(related, "relatedObject"))
    concerned.relatedObjects.push_back(takeRelatedObject(related));
  return concerned;
}

Issue takeIssue(const TRNIDOM_Element& element) {
  Issue issue;
  issue.name = element.getAttribute("name");
  for (TRNIDOM_Element object = firstChild(element, "object"); !object.isNull(); object = nextSibling(object, "object"))
    issue.objects.push_back(takeObject(object));
  return issue;
}

AnalyzeModelResponse take(TRNIDOM_Element& root) {
  const TRNIDOM_Element tasks = requiredChild(root, "tasks");
  AnalyzeModelResponse response;
  for (TRNIDOM_Element element = firstChild(tasks, "task"); !element.isNull(); element = nextSibling(element, "task")) {
    Task& task = response.tasks.emplace_back();
    task.name = requiredEnumerator(element, "name", kTasks);
    task.status = requiredEnumerator(element, "status", kStatuses);
    for (TRNIDOM_Element issue = firstChild(element, "issue"); !issue.isNull(); issue = nextSibling(issue, "issue"))
      task.issues.push_back(takeIssue(issue));
  }
  return response;
}

}  // namespace

Kind kinds::analyzeModelResponse() {
  Kind kind = kindOf(make, take);
  kind.summary = "Answer to an analyzeModelRequest: the issues found";
  kind.purpose = R"(The modelling service's answer to an analyzeModelRequest: for each task whether it succeeded and
what it found, with the objects concerned.)";
  kind.helper = "DXModelAnalysisResponseHelper";
  kind.reads = Does::kTool;
  kind.roots = {"analyzeModelResponse"};
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

}  // namespace dxmd_tool
