#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/updateobject/feedback.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

static void shape(Shape& s, DXUpdateResponseTaskHelper::ErrorRecord& error) {
  s.required("code", error.code, "The error's code");
  s.required("message", error.message, "The error in words");
}

namespace {

using RequestTask = DXUpdateRequestTaskHelper;
using Helper = DXUpdateResponseTaskHelper;

const EnumTable<RequestTask::ETask> kTasks{&RequestTask::ToString};
const EnumTable<Helper::EStatus> kStatuses{&ToString, Helper::kStatusUnknown};
const EnumTable<Helper::EParameter> kParameters{&ToString};

const char* const kFeedback = "--feedback";

struct Parameter {
  Helper::EParameter name{};
  I18NString value;
};

void shape(Shape& s, Parameter& parameter) {
  s.required("name", parameter.name, "What was touched", kParameters);
  s.required("value", parameter.value, "Which one");
}

struct Task {
  RequestTask::ETask name{};
  Helper::EStatus status{};
  std::vector<Parameter> parameters;
  std::optional<Helper::ErrorRecord> error;
  std::vector<FeedbackEntry> feedback;
};

void shape(Shape& s, Task& task) {
  s.required("name", task.name, "The task that was asked for", kTasks);
  s.shown("status", task.status, "What became of it", kStatuses, otherwise(Helper::kStatusSuccess));
  s.optional("parameters", task.parameters, "The properties and objects that it touched",
             orderIsLost("Parameters are written in order of their names as listed here", "name"));
  s.optional("error", task.error, "Why it failed");
  s.optional("feedback", task.feedback, "The messages reported, as the kind feedback has them");
}

struct UpdateObjectResponse {
  std::vector<Task> tasks;
};

void shape(Shape& s, UpdateObjectResponse& response) {
  s.required("tasks", response.tasks, "What became of the tasks, in order");
}

TRNIDOM_Element make(const UpdateObjectResponse& response) {
  DXUpdateObjectResponseHelper helper;
  for (const Task& task : response.tasks) {
    Helper* const added = helper.AddTask(task.name);
    added->SetStatus(task.status);
    for (const Parameter& parameter : task.parameters) added->AddParameter(parameter.name, parameter.value);
    if (task.error) added->SetError(task.error->code, task.error->message);
    DXActionFeedbackHelper feedback;
    addEntries(feedback, task.feedback);
    added->SetFeedback(feedback);
  }
  return made(helper);
}

/// A task without its feedback.
Task takeTask(Helper& helper) {
  Task task;
  task.name = helper.GetTask();
  task.status = helper.GetStatus();
  for (const Helper::EParameter name : kParameters.values()) {
    std::vector<I18NString> values;
    helper.GetParameter(name, values);
    for (const I18NString& value : values) task.parameters.push_back({name, value});
  }
  if (const Helper::ErrorRecord* error = helper.GetError()) task.error = *error;
  return task;
}

UpdateObjectResponse take(TRNIDOM_Element& root) {
  refuseNested(root, "task");
  const DXUpdateObjectResponseHelper helper(root);
  UpdateObjectResponse response;
  for (Helper* task : helper.GetTasks())
    response.tasks.emplace_back(takeTask(*task)).feedback = takeEntries(task->GetFeedback(), 4);
  return response;
}

/// The JSON with each feedback as the text that it renders to.
Decoded decodeRendered(TRNIDOM_Element& root) {
  refuseNested(root, "task");
  const DXUpdateObjectResponseHelper helper(root);
  UpdateObjectResponse response;
  for (Helper* task : helper.GetTasks()) response.tasks.push_back(takeTask(*task));
  Decoded decoded = decodedRecord(response);
  Json& tasks = (*decoded.json())["tasks"];
  for (std::size_t i = 0; i < tasks.size(); ++i) {
    const I18NString feedback = rendered(helper.GetTasks()[i]->GetFeedback());
    if (!feedback.empty()) tasks[i]["feedback"] = feedback;
  }
  return decoded;
}

Decoded decodeResponse(TRNIDOM_Element& root, const KindOptions& options) {
  return options.value(kFeedback) == "text" ? decodeRendered(root) : decodedRecord(take(root));
}

/// The errors of its tasks.
std::string errorsIn(const TRNIDOM_Element& root) {
  std::string errors;
  for (const TRNIDOM_Node task : root.getElementsByTagName("task")) {
    const TRNIDOM_Element error = firstChild(task, "error");
    if (!error.isNull())
      errors += (errors.empty() ? "" : "; ") + error.getAttribute("code").toUtf8() + ": " + textOf(error).toUtf8();
  }
  return errors;
}

}  // namespace

Kind kinds::updateObjectResponse() {
  Kind kind = kindOf(make, take);
  kind.decode = decodeResponse;
  kind.summary = "Answer to an updateObjectRequest: what became of each task";
  kind.purpose = R"(The modelling service's answer to an updateObjectRequest: for each task its status, what it
touched, the error if it failed, and the messages reported.)";
  kind.notes = R"(A received task and its parts are found at any depth, but no task may stand inside another.)";
  kind.helper = "DXUpdateObjectResponseHelper";
  kind.roots = {"updateObjectResponse"};
  kind.errors = errorsIn;
  kind.options = {{KindOption::kDecode,
                   kFeedback,
                   "json|text",
                   "Give feedback as JSON, or as one text with a line for each entry",
                   {"json", "text"}}};
  kind.example = R"({
  "tasks": [
    {
      "name": "addProperty",
      "status": "failure",
      "parameters": [{"name": "property", "value": "filter"}, {"name": "object", "value": "[m].[s]"}],
      "error": {"code": "DX-17", "message": "The property is there already."},
      "feedback": [
        {"class": "error", "text": "Not added.", "name": "[m].[s]", "entries": [{"class": "info", "text": "It exists."}]}
      ]
    },
    {"name": "removeObject", "status": "success", "parameters": [{"name": "object", "value": "[m].[t]"}]}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
