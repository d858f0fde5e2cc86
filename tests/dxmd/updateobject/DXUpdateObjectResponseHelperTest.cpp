#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using RequestTask = DXUpdateRequestTaskHelper;
using Task = DXUpdateResponseTaskHelper;

// A task that received that inside.
std::unique_ptr<Task> takenTask(const std::string& inside) {
  return taken<Task>("<task>" + inside + "</task>", RequestTask::kTaskAddObject, Task::kStatusUnknown);
}

// The values of a parameter, each with a bar behind it.
std::string values(Task& task, Task::EParameter parameter) {
  std::vector<I18NString> found{"replaced"};
  if (!task.GetParameter(parameter, found)) return found == std::vector<I18NString>{"replaced"} ? "none" : "changed";
  std::string all;
  for (const I18NString& value : found) all += value.toUtf8() + "|";
  return all;
}

std::string rendered(const Task& task) {
  TRNIDOM_Element element = task.GetFeedback();
  DXActionFeedbackHelper feedback;
  feedback.Take(element);
  I18NString text;
  feedback.Render(text);
  return text.toUtf8();
}

}  // namespace

TEST(DXUpdateObjectResponseHelper, WritesStatusParametersErrorAndFeedbackAndReadsThemBack) {
  DXUpdateObjectResponseHelper response;
  Task* task = response.AddTask(RequestTask::kTaskUpdateProperty);
  task->AddParameter(Task::kParamObject, "o2");
  task->AddParameter(Task::kParamProperty, "p");
  task->AddParameter(Task::kParamObject, "o1");
  task->SetError("1", "replaced");
  task->SetError("2", "message");
  DXActionFeedbackHelper feedback;
  feedback.AddEntry(DXFeedbackEntry::kEntryInfo, "note", "");
  task->SetFeedback(feedback);
  response.AddTask(RequestTask::kTaskAddObject)->SetStatus(Task::kStatusFailure);
  response.AddTask(RequestTask::kTaskAddObject)->SetStatus(static_cast<Task::EStatus>(3));
  const std::string expected =
      R"(<updateObjectResponse><tasks><task name="updateProperty" status="success"><param name="property" value="p"/>)"
      R"(<param name="object" value="o2"/><param name="object" value="o1"/><error code="2">message</error>)"
      R"(<feedback><entry class="info">note</entry></feedback></task><task name="addObject" status="failure"/>)"
      R"(<task name="addObject" status="unknown"/></tasks></updateObjectResponse>)";
  expectXml(expected, made(response));

  const auto read = taken<DXUpdateObjectResponseHelper>(expected);
  Task& first = *read->GetTask(RequestTask::kTaskUpdateProperty);
  EXPECT_EQ(Task::kStatusSuccess, first.GetStatus());
  EXPECT_EQ("p|", values(first, Task::kParamProperty));
  EXPECT_EQ("2", first.GetError()->code);
  EXPECT_EQ("message", first.GetError()->message);
  EXPECT_EQ("\n--- note", rendered(first));
  expectXml(expected, made(*read));
}

TEST(DXUpdateResponseTaskHelper, FeedbackIsACopyThatOutlivesItsHelper) {
  Task task(RequestTask::kTaskAddObject, Task::kStatusSuccess);
  {
    DXActionFeedbackHelper feedback;
    task.SetFeedback(feedback);
    EXPECT_TRUE(task.GetFeedback().isNull());
    DXFeedbackEntry* entry = feedback.AddEntry(DXFeedbackEntry::kEntryError, "kept", "");
    task.SetFeedback(feedback);
    entry->AddEntry(DXFeedbackEntry::kEntryInfo, "too late", "");
  }
  EXPECT_EQ("\n*** Error:kept", rendered(task));
  task.SetFeedback(DXActionFeedbackHelper());
  EXPECT_EQ("\n*** Error:kept", rendered(task));
}

TEST(DXUpdateResponseTaskHelper, IsReadByItselfToo) {
  const auto task = takenTask(R"(<param name="object" value="o"/><y><feedback><entry>i</entry></feedback></y>)");
  EXPECT_EQ("\n--- i", rendered(*task));
  EXPECT_EQ("o|", values(*task, Task::kParamObject));
}

TEST(DXUpdateObjectResponseHelper, FindsTheFirstTaskOfAKind) {
  const auto response = taken<DXUpdateObjectResponseHelper>(
      R"(<r><task name="addObject" status="Success"/><x><task name="removeObject" status="success"/>)"
      R"(<task name="removeObject" status="failure"/></x></r>)");
  ASSERT_EQ(3u, response->GetTasks().size());
  EXPECT_EQ(Task::kStatusUnknown, response->GetTasks()[0]->GetStatus());
  EXPECT_EQ(response->GetTasks()[1], response->GetTask(RequestTask::kTaskRemoveObject));
  EXPECT_EQ(nullptr, response->GetTask(RequestTask::kTaskAddProperty));
}

TEST(DXUpdateResponseTaskHelper, ReadsTheFirstErrorOnceAndOnlyItsLeadingText) {
  const auto none = takenTask("<x/>");
  EXPECT_EQ(nullptr, none->GetError());
  EXPECT_EQ(nullptr, none->GetError());

  const auto task = takenTask(R"(<x><error code="1"><b/>late</error></x><error code="2">second</error>)");
  Task::ErrorRecord* error = task->GetError();
  ASSERT_NE(nullptr, error);
  EXPECT_EQ("1", error->code);
  EXPECT_EQ("", error->message);
  task->SetError("3", "set");
  EXPECT_EQ(error, task->GetError());
  EXPECT_EQ("set", error->message);
}

TEST(DXUpdateResponseTaskHelper, ParsesParametersOnlyWhileThereAreNone) {
  const auto task = takenTask(R"(<x><param name="object"/></x><param name="object" value="v"/>)");
  for (int time = 0; time < 2; ++time) EXPECT_EQ("|v|", values(*task, Task::kParamObject));
  EXPECT_EQ("none", values(*task, Task::kParamProperty));

  const auto filled = takenTask(R"(<param name="object" value="received"/>)");
  filled->AddParameter(Task::kParamProperty, "added");
  EXPECT_EQ("none", values(*filled, Task::kParamObject));
}

TEST(DXUpdateResponseTaskHelper, RefusesParametersItDoesNotKnow) {
  const auto task = takenTask(R"(<param name="object" value="o"/><param name="caption" value="c"/>)");
  expectAssert("TRN_ASSERT(eParam != kParamUnknown);", "DXUpdateObjectResponseHelper",
               [&] { values(*task, Task::kParamObject); });
  EXPECT_EQ("o|", values(*task, Task::kParamObject));
}

TEST(DXUpdateObjectResponseHelper, TasksNestedAHundredThousandDeepAreReadInOneWalk) {
  auto [root, innermost] = nestedDeep("task", "addObject");
  const DXUpdateObjectResponseHelper without(root);
  EXPECT_TRUE(without.GetTasks().front()->GetFeedback().isNull());

  TRNIDOM_Node feedback = innermost.getParentNode().appendChild(root.getOwnerDocument().createElement("feedback"));
  const DXUpdateObjectResponseHelper with(root);
  ASSERT_EQ(100'000U, with.GetTasks().size());
  EXPECT_EQ(feedback, with.GetTasks().front()->GetFeedback());
  EXPECT_TRUE(with.GetTasks().back()->GetFeedback().isNull()) << "it is no part of the innermost task";
}

TEST(DXUpdateObjectResponseHelper, TasksBeforeARefusedOneHaveFeedbackThatFollowsIt) {
  DXUpdateObjectResponseHelper response;
  expectAssert("TRN_ASSERT(eTask != DXUpdateRequestTaskHelper::kTaskUnknown);", "DXUpdateObjectResponseHelper", [&] {
    take(response, "<r><task name='addObject'><task name='AddObject'/><feedback/></task><task name='addObject'/></r>");
  });
  ASSERT_EQ(1U, response.GetTasks().size());
  EXPECT_FALSE(response.GetTasks()[0]->GetFeedback().isNull());
}
