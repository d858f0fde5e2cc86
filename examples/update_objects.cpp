// Prints a request to change a model, or, given the file of a reply to it, what became of each task.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>
#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>
#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

#include "errors.h"

namespace {

using Request = DXUpdateRequestTaskHelper;
using Response = DXUpdateResponseTaskHelper;

void printRequest() {
  DXUpdateObjectRequestHelper request;

  // The tasks stay owned by the request. A parameter may be added more than once, as for two languages.
  Request* rename = request.AddTask(Request::kTaskUpdateProperty);
  rename->AddParameter(Request::kParamObjectID, "[Sales].[Region]", "");
  rename->AddParameter(Request::kParamPropertyType, "name", "");
  rename->AddParameter(Request::kParamPropertyValue, "Sales region", "en");
  rename->AddParameter(Request::kParamPropertyValue, "Verkaufsgebiet", "de");

  Request* removal = request.AddTask(Request::kTaskRemoveObject);
  removal->AddParameter(Request::kParamObjectID, "[Sales].[Obsolete]", "");

  TRNIDOM_Element element;
  request.Make(element);
  std::cout << TRNIDOM_Writer::toString(element) << "\n";
}

void printOutcome(Response& task) {
  std::cout << Request::ToString(task.GetTask()) << ": " << ToString(task.GetStatus());

  std::vector<I18NString> objects;
  if (task.GetParameter(Response::kParamObject, objects))
    for (const I18NString& object : objects) std::cout << " " << object;
  std::cout << "\n";

  if (const Response::ErrorRecord* error = task.GetError())
    std::cout << "  " << error->code << ": " << error->message << "\n";

  TRNIDOM_Element received = task.GetFeedback();
  if (received.isNull()) return;
  DXActionFeedbackHelper feedback;
  feedback.Take(received);
  I18NString lines;  // each begins with a line feed
  feedback.Render(lines);
  std::cout << "  feedback:" << lines << "\n";
}

void printReply(const char* path) {
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(path).getDocumentElement();
  DXUpdateObjectResponseHelper response(root);
  for (Response* task : response.GetTasks()) printOutcome(*task);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 2) {
    std::cerr << "usage: update_objects [REPLY]\n";
    return 2;
  }
  if (argc == 2) return exitStatus(argv[1], [&] { printReply(argv[1]); });
  return exitStatus("update_objects", printRequest);
}
