// Prints what is to be checked.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/modelanalysis/DXModelAnalysisRequestHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  using Task = DXAnalyzeRequestTaskHelper;
  DXModelAnalysisRequestHelper request;
  request.Take(root);
  for (const Task* task : request.GetTasks()) {
    for (const I18NString& object : task->GetObjects()) std::cout << object << ":";
    for (const Task::ECheck check : task->GetChecks()) std::cout << " " << Task::ToString(check);
    std::cout << "\n";
  }
}
