#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>
#include <tools/dxmd/Files.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/json/JsonParser.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

using Helper = DXUpdateRequestTaskHelper;

const EnumTable<Helper::ETask> kTasks{&Helper::ToString};
const EnumTable<Helper::EParameter> kParameters{&Helper::ToString};

const char* const kMapIDs = "--map-ids";

struct Parameter {
  Helper::EParameter name{};
  std::optional<I18NString> value;
  TRNIDOM_Element element;
  I18NString locale;
};

void shape(Shape& s, Parameter& parameter) {
  s.oneOf({"value", "element"});
  s.exclusive({"element", "locale"});
  s.required("name", parameter.name, "What the value is for", kParameters);
  s.optional("value", parameter.value, "The value as a text");
  s.optional("element", parameter.element,
             "The value as an element, in which each \"refobj\" holds the ID of an object");
  s.optional("locale", parameter.locale, "The locale of the text");
}

struct Task {
  Helper::ETask name{};
  std::vector<Parameter> parameters;
};

void shape(Shape& s, Task& task) {
  s.required("name", task.name, "What to do to the model", kTasks);
  s.optional("parameters", task.parameters, "What to do it to, and how",
             orderIsLost("Parameters are written in order of their names as listed here", "name"));
}

struct UpdateObjectRequest {
  std::vector<Task> tasks;
};

void shape(Shape& s, UpdateObjectRequest& request) {
  s.required("tasks", request.tasks, "The tasks, in order");
}

TRNIDOM_Element make(const UpdateObjectRequest& request) {
  DXUpdateObjectRequestHelper helper;
  for (const Task& task : request.tasks) {
    Helper* const added = helper.AddTask(task.name);
    for (const Parameter& parameter : task.parameters) {
      if (parameter.value)
        added->AddParameter(parameter.name, *parameter.value, parameter.locale);
      else
        added->AddParameter(parameter.name, parameter.element);
    }
  }
  return made(helper);
}

Task takeTask(Helper& helper) {
  Task task;
  task.name = helper.GetTask();
  for (const Helper::EParameter name : kParameters.values()) {
    std::vector<Helper::ParamValue*> values;
    helper.GetParameter(name, values);
    for (const Helper::ParamValue* value : values) {
      Parameter& parameter = task.parameters.emplace_back();
      parameter.name = name;
      if (value->element.isNull()) parameter.value = value->value;
      parameter.element = value->element;
      parameter.locale = value->locale;
    }
  }
  return task;
}

UpdateObjectRequest take(TRNIDOM_Element& root) {
  refuseNested(root, "task");
  refuseNested(root, "param");
  const DXUpdateObjectRequestHelper helper(root);
  UpdateObjectRequest request;
  for (Helper* task : helper.GetTasks()) request.tasks.push_back(takeTask(*task));
  return request;
}

/// Old identifiers and those that take their place.
using IDTable = std::unordered_map<I18NString, I18NString>;

IDTable readIDTable(const std::string& file) {
  const Json json = parseJson(readFile(file), file);
  IDTable table;
  JsonValue(&json, JsonPlace{nullptr, file}).members([&](const I18NString& id, const JsonValue& mapped) {
    table.emplace(id, mapped.text());
  });
  return table;
}

/// Replaces the identifiers that are in the table, in the document.
void mapIDs(TRNIDOM_Element& root, const IDTable& table) {
  refuseNested(root, "task");
  const DXUpdateObjectRequestHelper helper(root);
  for (Helper* task : helper.GetTasks()) {
    std::vector<I18NString> ids;
    while (task->GetNextIDParameters(ids)) {
      for (I18NString& id : ids)
        if (const auto found = table.find(id); found != table.end()) id = found->second;
      task->UpdateCurrentIDParameters(ids);
    }
  }
}

Decoded decodeRequest(TRNIDOM_Element& root, const KindOptions& options) {
  const std::optional<std::string> file = options.value(kMapIDs);
  if (!file) return decodedRecord(take(root));
  mapIDs(root, readIDTable(*file));
  return root;
}

}  // namespace

Kind kinds::updateObjectRequest() {
  Kind kind = kindOf(make, take);
  kind.decode = decodeRequest;
  kind.summary = "Request to change properties and objects of a model";
  kind.purpose = R"(Asks the modelling service to change a model, task by task: to add, remove, reorder or update a
property of an object, or to add or remove an object.)";
  kind.notes = R"(A received task and its parameters are found at any depth, but no task may stand inside another, and
no parameter inside another.

With --map-ids the object IDs of the request are replaced by the table's, the others stay, and the
document is written back as XML. A "refobj" that does not begin with text is refused.)";
  kind.helper = "DXUpdateObjectRequestHelper";
  kind.reply = "updateObjectResponse";
  kind.roots = {"updateObjectRequest"};
  KindOption mapIDsOption{KindOption::kDecode, kMapIDs, "FILE",
                          "Replace object IDs by this JSON object of old and new ones, and write XML"};
  mapIDsOption.keepsDocument = true;
  kind.options = {mapIDsOption};
  kind.example = R"({
  "tasks": [
    {
      "name": "addProperty",
      "parameters": [
        {"name": "propertyType", "value": "filter"},
        {"name": "propertyValue", "element": "<refs><refobj>[m].[f1]</refobj><refobj>[m].[f2]</refobj></refs>"},
        {"name": "objectID", "value": "[m].[s]"},
        {"name": "caption", "value": "Sales", "locale": "en"},
        {"name": "caption", "value": "Umsatz", "locale": "de"}
      ]
    },
    {"name": "removeObject", "parameters": [{"name": "objectID", "value": "[m].[t]"}]}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
