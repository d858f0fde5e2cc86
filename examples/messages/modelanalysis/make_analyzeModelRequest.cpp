// Makes a request for two checks of one object.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelanalysis/DXModelAnalysisRequestHelper.h>

int main() {
  using Task = DXAnalyzeRequestTaskHelper;
  DXModelAnalysisRequestHelper request;
  Task* task = request.AddTask(Task::kTaskDoSpecifiedChecks);  // stays the request's
  task->AddObject("[m].[sales]");                              // without any, the whole model
  task->AddCheck(Task::kCheckAmbiguousCardinality);
  task->AddCheck(Task::kCheckCircularDependency);
  TRNIDOM_Element message;
  request.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
