// Prints which object each task of a request is about.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  using Task = DXUpdateRequestTaskHelper;
  DXUpdateObjectRequestHelper request(root);
  for (Task* task : request.GetTasks()) {
    Task::ParamValue* object = nullptr;
    if (!task->GetParameter(Task::kParamObjectID, object)) continue;
    std::cout << Task::ToString(task->GetTask()) << " " << object->value << "\n";
  }
}
