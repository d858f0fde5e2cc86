#include <vector>

#include <dxmd/queryframework/QFUpdateCommandHelper.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/kinds/queryframework/Envelope.h>
#include <tools/dxmd/xml/Elements.h>

namespace dxmd_tool {

namespace {

struct UpdateSubject {
  I18NString name;
  I18NString text;
};

void shape(Shape& s, UpdateSubject& subject) {
  s.required("name", subject.name, "The subject's name");
  s.required("text", subject.text, "What is sent for it, written as plain text");
}

struct Update {
  I18NString modelPath;
  Envelope envelope;
  std::vector<UpdateSubject> updateSubjects;
};

void shape(Shape& s, Update& update) {
  s.required("modelPath", update.modelPath, "The model to update");
  shapeEnvelope(s, update.envelope);
  s.optional("updateSubjects", update.updateSubjects, "The subjects to update");
}

TRNIDOM_Element make(const Update& update) {
  QFUpdateCommandHelper helper(update.modelPath);
  setEnvelope(helper, update.envelope);
  for (const UpdateSubject& subject : update.updateSubjects) helper.AddUpdateSubject(subject.name, subject.text);
  return made(helper);
}

Update take(TRNIDOM_Element& root) {
  const TRNIDOM_Element updateSet = requiredChild(requiredChild(root, "update"), "updateSet");
  Update update;
  update.modelPath = childText(updateSet, "modelPath");
  update.envelope = takeEnvelope(root);
  for (TRNIDOM_Element subject = firstChild(updateSet, "updateSubject"); !subject.isNull();
       subject = nextSibling(subject, "updateSubject"))
    update.updateSubjects.push_back({subject.getAttribute("name"), textOf(subject)});
  return update;
}

}  // namespace

Kind kinds::update() {
  Kind kind = kindOf(make, take);
  kind.summary = "Command to send texts for the subjects of a model";
  kind.purpose = "Sends the query framework service a text for each of several named subjects of a model.";
  kind.helper = "QFUpdateCommandHelper";
  kind.reads = Does::kTool;
  kind.roots = {"command"};
  kind.wrapped = "update";
  kind.example = R"({
  "modelPath": "/content/package[@name='Sales']/model[@name='model']",
  "commandID": "DXCommand",
  "requestID": "DXRequest",
  "connection": {"passport": "101:5f3c"},
  "updateSubjects": [{"name": "[Sales].[Region]", "text": "<region/>"}]
})";
  return kind;
}

}  // namespace dxmd_tool
