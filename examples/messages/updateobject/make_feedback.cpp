// Makes a feedback of one message with another one below it.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>

int main() {
  DXActionFeedbackHelper feedback;
  DXFeedbackEntry* entry = feedback.AddEntry(DXFeedbackEntry::kEntryError, "The object cannot be added.", "[m].[s]");
  entry->AddEntry(DXFeedbackEntry::kEntryInfo, "Its name is taken.", "");
  TRNIDOM_Element message;
  feedback.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
