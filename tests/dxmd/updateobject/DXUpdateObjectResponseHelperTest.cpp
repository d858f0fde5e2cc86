#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

#include <dxmd/updateobject/DXActionFeedbackHelper.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <trnidom/TRNIDOM_Helper.h>

#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using RequestTask = DXUpdateRequestTaskHelper;
using Task = DXUpdateResponseTaskHelper;

// A response that received one task with that inside.
std::unique_ptr<DXUpdateObjectResponseHelper> takenTask(const std::string& inside) {
  return taken<DXUpdateObjectResponseHelper>("<r><task name=\"addObject\" status=\"failure\">" + inside +
                                             "</task></r>");
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

TEST(DXUpdateObjectResponseHelper, WritesStatusParametersErrorAndFeedback) {
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
  expectXml(expected, made(response));
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

TEST(DXUpdateObjectResponseHelper, ReadsWhatItWrote) {
  DXUpdateObjectResponseHelper response;
  {
    DXUpdateObjectResponseHelper sent;
    Task* task = sent.AddTask(RequestTask::kTaskReorderProperty);
    task->SetStatus(Task::kStatusFailure);
    task->AddParameter(Task::kParamProperty, "p");
    task->SetError("code", "message");
    DXActionFeedbackHelper feedback;
    feedback.AddEntry(DXFeedbackEntry::kEntryWarning, "w", "");
    task->SetFeedback(feedback);
    TRNIDOM_Element element = madeElement(sent);
    response.Take(element);
  }
  Task* task = response.GetTask(RequestTask::kTaskReorderProperty);
  ASSERT_NE(nullptr, task);
  EXPECT_EQ(Task::kStatusFailure, task->GetStatus());
  std::vector<I18NString> values{"replaced"};
  EXPECT_FALSE(task->GetParameter(Task::kParamObject, values));
  EXPECT_EQ((std::vector<I18NString>{"replaced"}), values);
  EXPECT_TRUE(task->GetParameter(Task::kParamProperty, values));
  EXPECT_EQ((std::vector<I18NString>{"p"}), values);
  ASSERT_NE(nullptr, task->GetError());
  EXPECT_EQ("code", task->GetError()->code.toUtf8());
  EXPECT_EQ("message", task->GetError()->message.toUtf8());
  EXPECT_EQ("\n--- w", rendered(*task));
}

TEST(DXUpdateResponseTaskHelper, IsReadByItselfToo) {
  Task task(RequestTask::kTaskAddObject, Task::kStatusSuccess);
  TRNIDOM_Element element = parsed(
      R"(<task name="x"><param name="object" value="o"/><y><feedback><entry class="info">i</entry></feedback></y></task>)");
  task.Take(element);
  EXPECT_EQ("\n--- i", rendered(task));
  std::vector<I18NString> objects;
  task.GetParameter(Task::kParamObject, objects);
  EXPECT_EQ(std::vector<I18NString>{"o"}, objects);
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
  EXPECT_EQ(nullptr, none->GetTasks()[0]->GetError());
  EXPECT_EQ(nullptr, none->GetTasks()[0]->GetError());

  const auto response = takenTask(R"(<x><error code="1"><b/>late</error></x><error code="2">second</error>)");
  Task::ErrorRecord* error = response->GetTasks()[0]->GetError();
  ASSERT_NE(nullptr, error);
  EXPECT_EQ("1", error->code.toUtf8());
  EXPECT_EQ("", error->message.toUtf8());
  response->GetTasks()[0]->SetError("3", "set");
  EXPECT_EQ(error, response->GetTasks()[0]->GetError());
  EXPECT_EQ("set", error->message.toUtf8());
}

TEST(DXUpdateResponseTaskHelper, ParsesParametersOnlyWhileThereAreNone) {
  const auto response = takenTask(R"(<x><param name="object"/></x><param name="object" value="v"/>)");
  Task& task = *response->GetTasks()[0];
  std::vector<I18NString> values;
  EXPECT_TRUE(task.GetParameter(Task::kParamObject, values));
  EXPECT_EQ((std::vector<I18NString>{"", "v"}), values);
  EXPECT_TRUE(task.GetParameter(Task::kParamObject, values));
  EXPECT_EQ(2u, values.size());

  const auto filled = takenTask(R"(<param name="object" value="received"/>)");
  filled->GetTasks()[0]->AddParameter(Task::kParamProperty, "added");
  EXPECT_FALSE(filled->GetTasks()[0]->GetParameter(Task::kParamObject, values));
}

TEST(DXUpdateObjectResponseHelper, RefusesNamesItDoesNotKnow) {
  TRNIDOM_Element element = parsed(R"(<r><task name="addObject"/><task name="AddObject"/></r>)");
  DXUpdateObjectResponseHelper response;
  expectAssert("TRN_ASSERT(eTask != DXUpdateRequestTaskHelper::kTaskUnknown);", "DXUpdateObjectResponseHelper",
               [&] { response.Take(element); });
  EXPECT_EQ(1u, response.GetTasks().size());

  const auto task = takenTask(R"(<param name="object" value="o"/><param name="caption" value="c"/>)");
  std::vector<I18NString> values;
  expectAssert("TRN_ASSERT(eParam != kParamUnknown);", "DXUpdateObjectResponseHelper",
               [&] { task->GetTasks()[0]->GetParameter(Task::kParamObject, values); });
  EXPECT_TRUE(task->GetTasks()[0]->GetParameter(Task::kParamObject, values));
}

TEST(DXUpdateObjectResponseHelper, NoTreeCrashesTheReader) {
  const TreeWords words{{"task", "task", "param", "error", "feedback", "entry"},
                        {"name", "status", "value", "code"},
                        {"addObject", "removeObject", "success", "property", "object"}};
  feedRandomTrees(words, [](TRNIDOM_Element& element) {
    DXUpdateObjectResponseHelper response(element);
    const TRNIDOM_NodeList tasks = element.getElementsByTagName("task");
    for (std::size_t i = 0; i < tasks.getLength(); ++i)
      EXPECT_EQ(TRNIDOM_Helper::findFirstElement(tasks.item(i), "feedback"), response.GetTasks()[i]->GetFeedback());
    for (Task* task : response.GetTasks()) {
      task->GetError();
      rendered(*task);
      std::vector<I18NString> values;
      task->GetParameter(Task::kParamObject, values);
    }
    madeElement(response);
  });
}

TEST(DXUpdateObjectResponseHelper, TasksNestedAHundredThousandDeepAreReadInOneWalk) {
  TRNIDOM_Element innermost;
  TRNIDOM_Element root = nestedDeep("task", "addObject", innermost);
  const DXUpdateObjectResponseHelper without(root);
  EXPECT_TRUE(without.GetTasks().front()->GetFeedback().isNull());

  TRNIDOM_Node feedback = innermost.getParentNode().appendChild(root.getOwnerDocument().createElement("feedback"));
  const DXUpdateObjectResponseHelper with(root);
  ASSERT_EQ(100'000U, with.GetTasks().size());
  EXPECT_EQ(feedback, with.GetTasks().front()->GetFeedback());
  EXPECT_TRUE(with.GetTasks().back()->GetFeedback().isNull()) << "it is no part of the innermost task";
}

TEST(DXUpdateObjectResponseHelper, TasksBeforeARefusedOneHaveFeedbackThatFollowsIt) {
  TRNIDOM_Element element =
      parsed("<r><task name='addObject'><task name='odd'/><feedback/></task><task name='addObject'/></r>");
  DXUpdateObjectResponseHelper response;
  expectAssert("TRN_ASSERT(eTask != DXUpdateRequestTaskHelper::kTaskUnknown);", "DXUpdateObjectResponseHelper",
               [&] { response.Take(element); });
  ASSERT_EQ(1U, response.GetTasks().size());
  EXPECT_FALSE(response.GetTasks()[0]->GetFeedback().isNull());
}
