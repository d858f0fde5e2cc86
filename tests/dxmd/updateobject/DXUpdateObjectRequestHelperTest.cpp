#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Task = DXUpdateRequestTaskHelper;
using IDs = std::vector<I18NString>;

// A task that received these parameters.
std::unique_ptr<Task> takenTask(const std::string& params, Task::ETask task = Task::kTaskAddObject) {
  return taken<Task>("<task><parameters>" + params + "</parameters></task>", task);
}

// What the cursor gives at each of its steps: "a,b|c|" for two IDs, one, none.
std::string walk(Task& task) {
  std::string steps;
  for (IDs ids{"stale"}; task.GetNextIDParameters(ids); steps += '|')
    for (const I18NString& id : ids) steps += (steps.empty() || steps.back() == '|' ? "" : ",") + id.toUtf8();
  return steps;
}

std::string walk(Task::ETask task, const std::string& params) {
  return walk(*takenTask(params, task));
}

// The values of a parameter: plain ones as VALUE@LOCALE, subtrees as XML.
std::string values(Task& task, Task::EParameter parameter) {
  std::string all;
  std::vector<Task::ParamValue*> found;
  if (!task.GetParameter(parameter, found)) return "none";
  for (const Task::ParamValue* value : found)
    all +=
        (value->element.isNull() ? value->value.toUtf8() + "@" + value->locale.toUtf8() : xmlOf(value->element)) + " ";
  return all;
}

}  // namespace

TEST(DXUpdateObjectRequestHelper, WritesParametersByEnumeratorAndValuesAsAddedWithCopiesOfSubtrees) {
  DXUpdateObjectRequestHelper request;
  Task* task = request.AddTask(Task::kTaskAddProperty);
  task->AddParameter(Task::kParamObjectName, "second", "");
  task->AddParameter(Task::kParamPropertyType, "", "");
  task->AddParameter(Task::kParamObjectName, "first", "en");
  request.AddTask(static_cast<Task::ETask>(7));
  {
    TRNIDOM_Element refs = parsed("<refs><refobj>a</refobj></refs>");
    request.AddTask(Task::kTaskAddObject)->AddParameter(Task::kParamBasedOn, refs);
    refs.getFirstChild().getFirstChild().setNodeValue("changed before writing");
  }
  expectXml(R"(<updateObjectRequest><tasks><task name="addProperty"><parameters>)"
            R"(<param name="propertyType" value=""/><param name="objectName" value="second"/>)"
            R"(<param locale="en" name="objectName" value="first"/></parameters></task>)"
            R"(<task name="unknown"><parameters/></task><task name="addObject"><parameters><param name="basedOn">)"
            R"(<refs><refobj>changed before writing</refobj></refs></param></parameters></task></tasks>)"
            R"(</updateObjectRequest>)",
            made(request));
}

TEST(DXUpdateObjectRequestHelper, NamesAreExactAndCoverBothEnumerations) {
  for (int task = Task::kTaskAddProperty; task <= Task::kTaskRemoveObject; ++task)
    EXPECT_EQ(task, Task::ToTask(Task::ToString(static_cast<Task::ETask>(task))));
  for (int parameter = Task::kParamPropertyType; parameter <= Task::kParamDimensionRef; ++parameter)
    EXPECT_EQ(parameter, Task::ToParameter(Task::ToString(static_cast<Task::EParameter>(parameter))));
  EXPECT_EQ("reorderProperty", Task::ToString(Task::kTaskReorderProperty).toUtf8());
  EXPECT_EQ("overrideQOSLevel", Task::ToString(Task::kParamOverrideQOSLevel).toUtf8());
  EXPECT_EQ("unknown", Task::ToString(Task::kParamUnknown).toUtf8());
  EXPECT_EQ("unknown", Task::ToString(static_cast<Task::EParameter>(34)).toUtf8());
  EXPECT_EQ(Task::kParamUnknown, Task::ToParameter("Caption"));
  EXPECT_EQ(Task::kTaskUnknown, Task::ToTask("unknown"));
}

TEST(DXUpdateObjectRequestHelper, ReadsTasksOfAnyDepthAndAddsThemToThoseHeld) {
  DXUpdateObjectRequestHelper request;
  request.AddTask(Task::kTaskAddObject);
  for (int time = 0; time < 2; ++time)
    take(request,
         R"(<r><task name="removeObject"><x><task name="addProperty"/></x></task><task name="removeObject"/></r>)");
  take(request, TRNIDOM_Element());
  std::vector<int> kinds;
  for (const Task* task : request.GetTasks()) kinds.push_back(task->GetTask());
  EXPECT_EQ((std::vector<int>{5, 6, 1, 6, 6, 1, 6}), kinds);
}

TEST(DXUpdateObjectRequestHelper, TaskOfUnknownNameStopsTheReadingButNotThoseBefore) {
  TRNIDOM_Element element = parsed(R"(<r><task name="addObject"/><task/><task name="addObject"/></r>)");
  const std::string text = "TRN_ASSERT(eTask != DXUpdateRequestTaskHelper::kTaskUnknown);";
  DXUpdateObjectRequestHelper request;
  expectAssert(text, "DXUpdateObjectRequestHelper", [&] { request.Take(element); });
  EXPECT_EQ(1u, request.GetTasks().size());
  expectAssert(text, "DXUpdateObjectRequestHelper", [&] { DXUpdateObjectRequestHelper atOnce(element); });
}

TEST(DXUpdateRequestTaskHelper, ReadsParametersOnDemandFromADocumentNobodyElseHolds) {
  const auto request = taken<DXUpdateObjectRequestHelper>(
      R"(<r><task name="addObject"><param name="caption" value="A" locale="de"/><deep>)"
      R"(<param name="caption"><sub/>tail</param></deep><param name="caption" value=""><ignored/></param></task></r>)");
  Task& task = *request->GetTasks().front();
  EXPECT_EQ("A@de <sub/> @ ", values(task, Task::kParamCaption));
  Task::ParamValue* first = nullptr;
  ASSERT_TRUE(task.GetParameter(Task::kParamCaption, first));
  EXPECT_EQ("A", first->value);
  Task::ParamValue* untouched = first;
  EXPECT_FALSE(task.GetParameter(Task::kParamKey, untouched));
  EXPECT_EQ(first, untouched);
  std::vector<Task::ParamValue*> found(2, nullptr);
  EXPECT_FALSE(task.GetParameter(Task::kParamKey, found));
  EXPECT_EQ(2u, found.size());
  EXPECT_TRUE(task.GetParameter(Task::kParamCaption, found));
  EXPECT_EQ(3u, found.size());
}

TEST(DXUpdateRequestTaskHelper, ParsesOnlyWhileThereAreNoParameters) {
  const char* const xml = R"(<task><param name="key" value="received"/></task>)";
  Task filled(Task::kTaskAddObject);
  filled.AddParameter(Task::kParamCaption, "added", "");
  take(filled, xml);
  EXPECT_EQ("none", values(filled, Task::kParamKey));

  Task received(Task::kTaskAddObject);
  EXPECT_EQ("none", values(received, Task::kParamKey));
  take(received, xml);
  EXPECT_EQ("received@ ", values(received, Task::kParamKey));
  take(received, R"(<task><param name="key" value="later"/></task>)");
  EXPECT_EQ("received@ ", values(received, Task::kParamKey));
  expectXml(R"(<task name="addObject"><parameters><param name="key" value="received"/></parameters></task>)",
            made(received));
}

TEST(DXUpdateRequestTaskHelper, MalformedParametersFailWhenTheyAreParsedOrWalked) {
  const auto failsWith = [](const std::string& text, const std::string& params) {
    expectAssert(text, "DXUpdateObjectRequestHelper", [&] { walk(Task::kTaskAddObject, params); });
    const auto task = takenTask(R"(<param name="key" value="before"/>)" + params);
    expectAssert(text, "DXUpdateObjectRequestHelper", [&] { values(*task, Task::kParamKey); });
    EXPECT_EQ("before@ ", values(*task, Task::kParamKey));
  };
  failsWith("TRN_ASSERT(eParam != kParamUnknown);", R"(<param value="v"/>)");
  failsWith("TRN_ASSERT(eParam != kParamUnknown);", R"(<param name="Key" value="v"/>)");
  const std::string subtreeText =
      "TRN_ASSERT(!nodeValue.isNull() && nodeValue.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);";
  failsWith(subtreeText, R"(<param name="key"/>)");
  failsWith(subtreeText, R"(<param name="key"> <sub/></param>)");
}

TEST(DXUpdateRequestTaskHelper, CursorStopsAtParametersThatCarryIDs) {
  EXPECT_EQ("1|2|3|4|5|6|",
            walk(Task::kTaskRemoveObject,
                 R"(<param name="objectID" value="1"/><param name="caption" value="c"/><!-- --> <other/>)"
                 R"(<param name="objectBeforeID" value="2"/><param name="basedOn" value="3"/>)"
                 R"(<param name="querySubjectRefs" value="q"/><param name="key" value="4"/>)"
                 R"(<param name="attributes" value="5"/><param name="dimensionRef" value="6"/>)"));
  EXPECT_EQ("", walk(Task::kTaskRemoveObject, ""));
  Task empty(Task::kTaskAddObject);
  EXPECT_EQ("", walk(empty));
}

TEST(DXUpdateRequestTaskHelper, CursorReadsTheTextsOfRefobjsBelowTheSubtree) {
  EXPECT_EQ("a,b||",
            walk(Task::kTaskAddObject, R"(<param name="key"><refobj><refobj>a</refobj><x><refobj>b</refobj></x>)"
                                       R"(<refobj/><refobj><y/>late</refobj></refobj></param>)"
                                       R"(<param name="key"><refobj>not below</refobj></param>)"));
}

TEST(DXUpdateRequestTaskHelper, CursorTakesPropertyValuesByTheTypePassedBefore) {
  const auto params = [](const std::string& type) {
    return R"(<param name="propertyValue" value="early"/><param name="propertyType" value=")" + type +
           R"("/><param name="propertyValue" value="late"/>)";
  };
  for (const char* type : {"filter", "securityFilter", "previewFilter", "dataSource", "querySubjectRefs"}) {
    EXPECT_EQ("late|", walk(Task::kTaskAddProperty, params(type))) << type;
    EXPECT_EQ("late|", walk(Task::kTaskUpdateProperty, params(type))) << type;
    EXPECT_EQ("", walk(Task::kTaskRemoveProperty, params(type))) << type;
  }
  EXPECT_EQ("", walk(Task::kTaskAddProperty, params("Filter")));
  EXPECT_EQ("late|early|", walk(Task::kTaskAddProperty, params("filter") + params("caption")));
}

TEST(DXUpdateRequestTaskHelper, CursorWalksTheSiblingsOfTheFirstParameterOnly) {
  const auto task = takenTask(R"(<a><param name="key" value="1"/></a><param name="key" value="2"/>)");
  EXPECT_EQ("1|", walk(*task));
  EXPECT_EQ("", walk(*task));
  task->UpdateCurrentIDParameters({"still there"});
  EXPECT_EQ("still there@ 2@ ", values(*task, Task::kParamKey));
}

TEST(DXUpdateRequestTaskHelper, MappedIDsAreWrittenInPlace) {
  TRNIDOM_Element element =
      parsed(R"(<r><task name="addObject"><param name="objectID" value="a"/><param name="caption" value="a"/>)"
             R"(<param name="key"><refs><refobj>b</refobj><refobj><x/></refobj><refobj>c<x/></refobj></refs></param>)"
             R"(</task></r>)");
  DXUpdateObjectRequestHelper request(element);
  Task& task = *request.GetTasks().front();
  IDs ids;
  ASSERT_TRUE(task.GetNextIDParameters(ids));
  task.UpdateCurrentIDParameters({"A"});
  ASSERT_TRUE(task.GetNextIDParameters(ids));
  EXPECT_EQ((IDs{"b", "c"}), ids);
  expectAssert("TRN_ASSERT(listRefs.getLength() == vIDs.size());", "DXUpdateObjectRequestHelper",
               [&] { task.UpdateCurrentIDParameters(ids); });
  task.UpdateCurrentIDParameters({"B", "unused", "C"});
  EXPECT_FALSE(task.GetNextIDParameters(ids));
  EXPECT_TRUE(ids.empty());
  expectXml(R"(<r><task name="addObject"><param name="objectID" value="A"/><param name="caption" value="a"/>)"
            R"(<param name="key"><refs><refobj>B</refobj><refobj><x/></refobj><refobj>C<x/></refobj></refs></param>)"
            R"(</task></r>)",
            element);
}

TEST(DXUpdateRequestTaskHelper, UpdateRefusesAnotherNumberOfIDs) {
  const auto task = takenTask(R"(<param name="key" value="a"/>)");
  expectAssert("TRN_ASSERT(!idCrap_elmCurrIDParam.isNull());", "DXUpdateObjectRequestHelper",
               [&] { task->UpdateCurrentIDParameters({"b"}); });
  EXPECT_EQ("a|", walk(*task));
  for (const auto& wrong : {IDs{}, IDs{"b", "c"}})
    expectAssert("TRN_ASSERT(vIDs.size() == 1);", "DXUpdateObjectRequestHelper",
                 [&] { task->UpdateCurrentIDParameters(wrong); });
  EXPECT_EQ("a@ ", values(*task, Task::kParamKey));
}

TEST(DXUpdateObjectRequestHelper, TasksNestedAHundredThousandDeepAreRead) {
  DXUpdateObjectRequestHelper request;
  take(request, nestedDeep("task", "addObject").first);
  EXPECT_EQ(100'000U, request.GetTasks().size());
  EXPECT_EQ("", walk(*request.GetTasks().front()));
}
