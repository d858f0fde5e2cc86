// Makes an answer with one issue.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelanalysis/DXModelAnalysisResponseHelper.h>

int main() {
  DXModelAnalysisResponseHelper response;
  DXAnalyzeResponseTaskHelper* task = response.AddTask(DXAnalyzeRequestTaskHelper::kTaskDoSpecifiedChecks);
  DXAnalyzeResponseIssueHelper* issue = task->AddIssue("ambiguousCardinality");
  issue
      ->AddObject("Sales", "[m].[sales]", "querySubject", "m/sales", "relationship",
                  DXAnalyzeResponseIssueObjectHelper::kSubTypeNone, {"Both ends are optional."})
      ->AddRelatedObject("Stock", "[m].[stock]", "querySubject", "m/stock");
  TRNIDOM_Element message;
  response.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
