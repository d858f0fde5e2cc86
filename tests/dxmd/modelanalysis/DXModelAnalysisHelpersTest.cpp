#include <dxmd/modelanalysis/DXModelAnalysisRequestHelper.h>
#include <dxmd/modelanalysis/DXModelAnalysisResponseHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Object = DXAnalyzeResponseIssueObjectHelper;
using Request = DXModelAnalysisRequestHelper;
using Task = DXAnalyzeRequestTaskHelper;

}  // namespace

TEST(DXModelAnalysisRequestHelper, WritesObjectsBeforeChecksAndKeepsRepeats) {
  Request request;
  Task* task = request.AddTask(Task::kTaskDoSpecifiedChecks);
  task->AddCheck(Task::kCheckCachingConflict);
  task->AddCheck(Task::kCheckJoinAtDifferentLevels);
  task->AddCheck(Task::kCheckCachingConflict);
  task->AddCheck(static_cast<Task::ECheck>(10));
  task->AddObject("o2");
  task->AddObject("o1");
  request.AddTask(Task::kTaskReserved1);
  expectXml(R"(<analyzeModelRequest><tasks><task name="doSpecifiedChecks">)"
            R"(<objects><object id="o2"/><object id="o1"/></objects>)"
            R"(<checks><check name="cachingConflict"/><check name="joinAtDifferentLevels"/>)"
            R"(<check name="cachingConflict"/><check name="unknown"/></checks></task>)"
            R"(<task name="unknown"><objects/><checks/></task></tasks></analyzeModelRequest>)",
            made(request));
}

TEST(DXAnalyzeRequestTaskHelper, NamesAreExactAndOnlySomeAreSupported) {
  for (int check = Task::kCheckUseOfCardinalityInFacts; check <= Task::kCheckCachingConflict; ++check)
    EXPECT_EQ(check, Task::ToCheck(Task::ToString(static_cast<Task::ECheck>(check))));
  EXPECT_EQ("minimizedSQLconflict", Task::ToString(Task::kCheckMinimizedSQLconflict).toUtf8());
  EXPECT_EQ("unknown", Task::ToString(Task::kTaskReserved2).toUtf8());
  EXPECT_EQ(Task::kTaskUnknown, Task::ToTask("DoSpecifiedChecks"));
  std::vector<Task::ECheck> checks{Task::kCheckUnknown};
  Task::GetSupportedChecks(checks);
  EXPECT_EQ((std::vector<int>{0, 1, 2, 3, 4, 5, 7, 8, 9}), std::vector<int>(checks.begin(), checks.end()));
}

TEST(DXAnalyzeRequestTaskHelper, ReadsChecksAndObjectsButNoName) {
  Task task(Task::kTaskReserved1);
  TRNIDOM_Element element =
      parsed(R"(<task name="doSpecifiedChecks"><check name="cachingConflict"/><object id="a"/></task>)");
  task.doTake(element);
  EXPECT_EQ(Task::kTaskReserved1, task.GetTask());
  EXPECT_EQ(std::vector<Task::ECheck>{Task::kCheckCachingConflict}, task.GetChecks());
  EXPECT_EQ(std::vector<I18NString>{"a"}, task.GetObjects());
}

TEST(DXModelAnalysisRequestHelper, ReadsChecksAndObjectsOfAnyDepth) {
  Request request;
  request.AddTask(Task::kTaskReserved1);
  take(request, R"(<r><x><task name="doSpecifiedChecks"><object id="a"/><check name="joinAtDifferentLevels"/>)"
                R"(<y><check name="circularDependency"/><object id="b"/></y></task></x></r>)");
  take(request, TRNIDOM_Element());
  ASSERT_EQ(2u, request.GetTasks().size());
  const Task& task = *request.GetTasks()[1];
  EXPECT_EQ(Task::kTaskDoSpecifiedChecks, task.GetTask());
  EXPECT_EQ((std::vector<Task::ECheck>{Task::kCheckJoinAtDifferentLevels, Task::kCheckCircularDependency}),
            task.GetChecks());
  EXPECT_EQ((std::vector<I18NString>{"a", "b"}), task.GetObjects());
}

TEST(DXModelAnalysisRequestHelper, TasksNestedAHundredThousandDeepAreReadInOneWalk) {
  auto [root, innermost] = nestedDeep("task", "doSpecifiedChecks");
  TRNIDOM_Element object = innermost.appendChild(root.getOwnerDocument().createElement("object"));
  object.setAttribute("id", "deep");
  Request request;
  request.Take(root);
  ASSERT_EQ(100'000U, request.GetTasks().size());
  for (const Task* task : {request.GetTasks().front(), request.GetTasks().back()})
    EXPECT_EQ(std::vector<I18NString>{"deep"}, task->GetObjects());
}

TEST(DXModelAnalysisRequestHelper, WhatWasReadBeforeARefusalStays) {
  const auto failsWith = [](const std::string& text, const std::string& tasks) {
    Request request;
    expectAssert(text, "DXModelAnalysisRequestHelper", [&] { take(request, "<r>" + tasks + "</r>"); });
    ASSERT_EQ(1u, request.GetTasks().size());
    EXPECT_EQ((std::vector<Task::ECheck>{Task::kCheckCachingConflict}), request.GetTasks()[0]->GetChecks());
  };
  const auto task = [](const std::string& inside) {
    return R"(<task name="doSpecifiedChecks"><check name="cachingConflict"/>)" + inside + "</task>";
  };
  failsWith("TRN_ASSERT(eTask != DXAnalyzeRequestTaskHelper::kTaskUnknown);", task("") + R"(<task name="unknown"/>)");
  failsWith("TRN_ASSERT(eCheck != kCheckUnknown);", task(R"(<check name="aggregationConflict"/>)") + task(""));
  failsWith(R"(TRN_ASSERT_NAMED(!idObj.empty(), "Cannot be empty");)", task("<object/>") + task(""));
  failsWith(R"(TRN_ASSERT_NAMED(!idObj.empty(), "Cannot be empty");)", task(R"(<object id=""/>)") + task(""));
}

TEST(DXModelAnalysisResponseHelper, WritesIssuesWithObjectsMessagesAndRelatedObjects) {
  DXModelAnalysisResponseHelper response;
  DXAnalyzeResponseTaskHelper* task = response.AddTask(Task::kTaskDoSpecifiedChecks);
  DXAnalyzeResponseIssueHelper* issue = task->AddIssue("i");
  Object* object = issue->AddObject("n", "1", "c", "p", "r", Object::kSubTypeMeasure, {"m1", "", "m2"});
  object->AddRelatedObject("rn", "2", "rc", "rp");
  object->AddRelatedObject("", "", "", "");
  issue->AddObject("", "", "", "", "", static_cast<Object::ESubType>(2), {});
  task->AddIssue("bare");
  response.AddTask(Task::kTaskUnknown)->SetSuccess(0);
  response.AddTask(Task::kTaskUnknown)->SetSuccess(-1);
  EXPECT_EQ(2u, issue->GetObjects().size());
  EXPECT_EQ(issue, task->GetIssues().front());
  expectXml(
      R"(<analyzeModelResponse><tasks><task name="doSpecifiedChecks" status="success"><issue name="i">)"
      R"(<object class="c" id="1" name="n" path="p" refclass="r" subtype="measure">)"
      R"(<messages><message>m1</message><message></message><message>m2</message></messages><relatedObjects>)"
      R"(<relatedObject class="rc" id="2" name="rn" path="rp"/><relatedObject class="" id="" name="" path=""/>)"
      R"(</relatedObjects></object><object class="" id="" name="" path="" refclass="" subtype="">)"
      R"(<messages/><relatedObjects/></object></issue><issue name="bare"/></task>)"
      R"(<task name="unknown" status="failure"/><task name="unknown" status="success"/></tasks></analyzeModelResponse>)",
      made(response));
}
