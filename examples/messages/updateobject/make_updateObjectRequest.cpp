// Makes a request to rename an object and to remove another one.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>

int main() {
  using Task = DXUpdateRequestTaskHelper;
  DXUpdateObjectRequestHelper request;
  Task* rename = request.AddTask(Task::kTaskUpdateProperty);  // stays the request's
  rename->AddParameter(Task::kParamObjectID, "[Sales].[Region]", "");
  rename->AddParameter(Task::kParamPropertyType, "caption", "");
  rename->AddParameter(Task::kParamPropertyValue, "Sales region", "en");
  request.AddTask(Task::kTaskRemoveObject)->AddParameter(Task::kParamObjectID, "[Sales].[Old region]", "");
  TRNIDOM_Element message;
  request.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
