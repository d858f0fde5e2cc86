// Prints what became of the tasks of a request.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  DXUpdateObjectResponseHelper response(root);
  for (DXUpdateResponseTaskHelper* task : response.GetTasks()) {
    std::cout << DXUpdateRequestTaskHelper::ToString(task->GetTask()) << ": " << ToString(task->GetStatus());
    if (const auto* error = task->GetError()) std::cout << ", " << error->code << ": " << error->message;
    std::cout << "\n";
  }
}
