// Makes an answer with a task that succeeded and one that failed.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>
#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

int main() {
  DXUpdateObjectResponseHelper response;
  DXUpdateResponseTaskHelper* rename = response.AddTask(DXUpdateRequestTaskHelper::kTaskUpdateProperty);
  rename->AddParameter(DXUpdateResponseTaskHelper::kParamObject, "[Sales].[Region]");

  DXUpdateResponseTaskHelper* removal = response.AddTask(DXUpdateRequestTaskHelper::kTaskRemoveObject);
  removal->SetStatus(DXUpdateResponseTaskHelper::kStatusFailure);
  removal->SetError("DX-17", "The object is in use.");
  DXActionFeedbackHelper feedback;
  feedback.AddEntry(DXFeedbackEntry::kEntryError, "[Sales].[Totals] refers to it.", "");
  removal->SetFeedback(feedback);

  TRNIDOM_Element message;
  response.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
