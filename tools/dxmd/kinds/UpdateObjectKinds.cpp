#include <string>
#include <unordered_map>
#include <vector>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>
#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>
#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/json/JsonParser.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/Families.h>

namespace dxmd_tool {

namespace {

using RequestTask = DXUpdateRequestTaskHelper;
using ResponseTask = DXUpdateResponseTaskHelper;

const EnumTable<RequestTask::ETask> kTasks{RequestTask::kTaskAddProperty, RequestTask::kTaskRemoveObject,
                                           &RequestTask::ToString};
const EnumTable<RequestTask::EParameter> kRequestParameters{RequestTask::kParamPropertyType,
                                                            RequestTask::kParamDimensionRef, &RequestTask::ToString};
const EnumTable<ResponseTask::EStatus> kStatuses{ResponseTask::kStatusUnknown, ResponseTask::kStatusFailure, &ToString};
const EnumTable<ResponseTask::EParameter> kResponseParameters{ResponseTask::kParamProperty, ResponseTask::kParamObject,
                                                              &ToString};
const EnumTable<DXFeedbackEntry::EEntryClass> kEntryClasses{DXFeedbackEntry::kEntryUnknown,
                                                            DXFeedbackEntry::kEntryTrace, &ToString};

const char* const kMapIDs = "--map-ids";

// updateObjectRequest

void readParameter(JsonObject& json, RequestTask& task) {
  const RequestTask::EParameter name = json.required("name").enumerator(kRequestParameters);
  if (const JsonValue element = json.optional("element")) {
    task.AddParameter(name, element.xml());
  } else {
    const I18NString value = json.required("value").text();
    task.AddParameter(name, value, json.optional("locale").text());
  }
}

TRNIDOM_Element encodeRequest(JsonObject& json, const KindOptions&) {
  DXUpdateObjectRequestHelper request;
  json.required("tasks").objects([&](JsonObject& object) {
    RequestTask* task = request.AddTask(object.required("name").enumerator(kTasks));
    object.optional("parameters").objects([&](JsonObject& parameter) { readParameter(parameter, *task); });
  });
  return made(request);
}

Json parametersOf(RequestTask& task) {
  Json parameters = Json::array();
  for (const RequestTask::EParameter name : kRequestParameters.values()) {
    std::vector<RequestTask::ParamValue*> values;
    task.GetParameter(name, values);
    for (const RequestTask::ParamValue* value : values) {
      Json parameter = Json::object();
      parameter["name"] = kRequestParameters.text(name);
      if (value->element.isNull())
        parameter["value"] = value->value;
      else
        parameter["element"] = xmlText(value->element);
      putUnlessEmpty(parameter, "locale", value->locale);
      parameters.push_back(std::move(parameter));
    }
  }
  return parameters;
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

/// Replaces the identifiers that are in the table, in the document that the tasks were received in.
void mapIDs(const DXUpdateObjectRequestHelper& request, const IDTable& table) {
  for (RequestTask* task : request.GetTasks()) {
    std::vector<I18NString> ids;
    while (task->GetNextIDParameters(ids)) {
      for (I18NString& id : ids)
        if (const auto found = table.find(id); found != table.end()) id = found->second;
      task->UpdateCurrentIDParameters(ids);
    }
  }
}

Decoded decodeRequest(TRNIDOM_Element& root, const KindOptions& options) {
  DXUpdateObjectRequestHelper request(root);
  if (const auto file = options.value(kMapIDs)) {
    mapIDs(request, readIDTable(*file));
    return root;
  }
  Json json = Json::object();
  json["tasks"] = Json::array();
  for (RequestTask* task : request.GetTasks()) {
    Json object = Json::object();
    object["name"] = kTasks.text(task->GetTask());
    putUnlessEmpty(object, "parameters", parametersOf(*task));
    json["tasks"].push_back(std::move(object));
  }
  return json;
}

Kind updateObjectRequest() {
  Kind kind;
  kind.name = "updateObjectRequest";
  kind.summary = "Request to change properties and objects of a model";
  kind.notes = R"(A parameter has a "value" with an optional "locale", or an "element", a text of XML. Parameters are
written, and decoded, in the order of their kinds; those of one kind in the order given.

With --map-ids the object IDs of the request are replaced by the table's, the others stay, and the
document is written back as XML. A "refobj" that does not begin with text is refused.)";
  kind.roots = {"updateObjectRequest"};
  kind.encode = encodeRequest;
  kind.decode = decodeRequest;
  kind.roundTrips = true;
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
  kind.options = {{KindOption::kDecode, kMapIDs, "FILE",
                   "Replace object IDs by this JSON object of old and new ones, and write XML"}};
  return kind;
}

// feedback

/// Adds entries to what takes them: the feedback, or the entry they stand below.
template <typename Parent>
void readEntries(const JsonValue& json, Parent& parent) {
  json.objects([&](JsonObject& object) {
    const DXFeedbackEntry::EEntryClass entryClass = object.required("class").enumerator(kEntryClasses);
    const I18NString text = object.optional("text").text();
    DXFeedbackEntry* entry = parent.AddEntry(entryClass, text, object.optional("name").text());
    readEntries(object.optional("entries"), *entry);
  });
}

I18NString rendered(TRNIDOM_Element element) {
  DXActionFeedbackHelper feedback;
  feedback.Take(element);
  I18NString text;
  feedback.Render(text);
  return text;
}

TRNIDOM_Element encodeFeedback(JsonObject& json, const KindOptions&) {
  DXActionFeedbackHelper feedback;
  readEntries(json.optional("entries"), feedback);
  return made(feedback);
}

Decoded decodeFeedback(TRNIDOM_Element& root, const KindOptions&) {
  return rendered(root).toUtf8() + "\n";
}

Kind feedback() {
  Kind kind;
  kind.name = "feedback";
  kind.summary = "Messages that an action of the modelling tool reports";
  kind.notes = R"(Entries nest. Decoded it is plain text, one line for each entry.)";
  kind.roots = {"feedback"};
  kind.encode = encodeFeedback;
  kind.decode = decodeFeedback;
  kind.example = R"({
  "entries": [
    {
      "class": "error", "text": "The object cannot be added.", "name": "[m].[s]",
      "entries": [{"class": "info", "text": "Its name is taken."}]
    },
    {"class": "trace", "text": "Done in 12 ms"}
  ]
})";
  return kind;
}

// updateObjectResponse

void readResponseTask(JsonObject& json, ResponseTask& task) {
  if (const JsonValue status = json.optional("status")) task.SetStatus(status.enumerator(kStatuses));
  json.optional("parameters").objects([&](JsonObject& parameter) {
    const ResponseTask::EParameter name = parameter.required("name").enumerator(kResponseParameters);
    task.AddParameter(name, parameter.required("value").text());
  });
  json.optional("error").object([&](JsonObject& error) {
    const I18NString code = error.required("code").text();
    task.SetError(code, error.required("message").text());
  });
  DXActionFeedbackHelper feedback;
  readEntries(json.optional("feedback"), feedback);
  task.SetFeedback(feedback);
}

TRNIDOM_Element encodeResponse(JsonObject& json, const KindOptions&) {
  DXUpdateObjectResponseHelper response;
  json.required("tasks").objects([&](JsonObject& object) {
    readResponseTask(object, *response.AddTask(object.required("name").enumerator(kTasks)));
  });
  return made(response);
}

Json parametersOf(ResponseTask& task) {
  Json parameters = Json::array();
  for (const ResponseTask::EParameter name : kResponseParameters.values()) {
    std::vector<I18NString> values;
    task.GetParameter(name, values);
    for (const I18NString& value : values)
      parameters.push_back(Json{{"name", kResponseParameters.text(name)}, {"value", value}});
  }
  return parameters;
}

Decoded decodeResponse(TRNIDOM_Element& root, const KindOptions&) {
  const DXUpdateObjectResponseHelper response(root);
  Json json = Json::object();
  json["tasks"] = Json::array();
  for (ResponseTask* task : response.GetTasks()) {
    Json object = Json::object();
    object["name"] = kTasks.text(task->GetTask());
    object["status"] = kStatuses.text(task->GetStatus());
    putUnlessEmpty(object, "parameters", parametersOf(*task));
    if (const ResponseTask::ErrorRecord* error = task->GetError())
      object["error"] = Json{{"code", error->code}, {"message", error->message}};
    putUnlessEmpty(object, "feedback", rendered(task->GetFeedback()));
    json["tasks"].push_back(std::move(object));
  }
  return json;
}

Kind updateObjectResponse() {
  Kind kind;
  kind.name = "updateObjectResponse";
  kind.summary = "Answer to an updateObjectRequest: what became of each task";
  kind.notes = R"("status" is "success" unless given. "feedback" is the list of entries that the kind feedback takes;
decoded it is plain text, one line for each entry.)";
  kind.roots = {"updateObjectResponse"};
  kind.encode = encodeResponse;
  kind.decode = decodeResponse;
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

}  // namespace

std::vector<Kind> updateObjectKinds() {
  return {updateObjectRequest(), updateObjectResponse(), feedback()};
}

}  // namespace dxmd_tool
