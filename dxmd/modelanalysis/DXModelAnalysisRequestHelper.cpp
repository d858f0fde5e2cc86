// Holds the task and the request: an assertion names its source file, and the task's name this one. In both, locals
// are spelt as the assertions' texts have them.

#include <dxmd/modelanalysis/DXModelAnalysisRequestHelper.h>

#include <trn/TRNAssert.h>

#include <dxmd/core/Descendants.h>
#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

using Task = DXAnalyzeRequestTaskHelper;

const I18NString STR_minimizedSQLconflict("minimizedSQLconflict");
const I18NString STR_embeddedCalculation("embeddedCalculation");
const I18NString STR_cachingConflict("cachingConflict");
const I18NString STR_id("id");

constexpr EnumTexts<Task::ETask, 1> kTasks{{
    {Task::kTaskDoSpecifiedChecks, STR_doSpecifiedChecks},
}};

constexpr EnumTexts<Task::ECheck, 9> kChecks{{
    {Task::kCheckUseOfCardinalityInFacts, STR_useOfCardinalityInFacts},
    {Task::kCheckAmbiguousCardinality, STR_ambiguousCardinality},
    {Task::kCheckAmbiguousRelationships, STR_ambiguousRelationships},
    {Task::kCheckCircularDependency, STR_circularDependency},
    {Task::kCheckKeyIndexVsRelationships, STR_keyIndexVsRelationships},
    {Task::kCheckJoinAtDifferentLevels, STR_joinAtDifferentLevels},
    {Task::kCheckMinimizedSQLconflict, STR_minimizedSQLconflict},
    {Task::kCheckEmbeddedCalculation, STR_embeddedCalculation},
    {Task::kCheckCachingConflict, STR_cachingConflict},
}};

// Indices of the names in what `contentOf` gathers.
enum Name { kTask, kCheck, kObject };

Descendants contentOf(const TRNIDOM_Element& elem) {
  return Descendants(elem, {STR_task, STR_check, STR_object});
}

void read(Task& task, const Descendants& all, const Descendants::Found& elem) {
  constexpr auto kCheckUnknown = Task::kCheckUnknown;  // spelt as the assertion's text has it
  for (const auto& check : all.below(elem, kCheck)) {
    const Task::ECheck eCheck = Task::ToCheck(check.element.getAttribute(STR_name));
    TRN_ASSERT(eCheck != kCheckUnknown);
    task.AddCheck(eCheck);
  }
  for (const auto& object : all.below(elem, kObject)) {
    const I18NString idObj = object.element.getAttribute(STR_id);
    TRN_ASSERT_NAMED(!idObj.empty(), "Cannot be empty");
    task.AddObject(idObj);
  }
}

}  // namespace

const I18NString DXAnalyzeRequestTaskHelper::STR_aggregationConflict("aggregationConflict");

const I18NString& DXAnalyzeRequestTaskHelper::ToString(ETask task) {
  return kTasks.text(task);
}

const I18NString& DXAnalyzeRequestTaskHelper::ToString(ECheck check) {
  return kChecks.text(check);
}

DXAnalyzeRequestTaskHelper::ETask DXAnalyzeRequestTaskHelper::ToTask(const I18NString& text) {
  return kTasks.value(text);
}

DXAnalyzeRequestTaskHelper::ECheck DXAnalyzeRequestTaskHelper::ToCheck(const I18NString& text) {
  return kChecks.value(text);
}

void DXAnalyzeRequestTaskHelper::GetSupportedChecks(std::vector<ECheck>& checks) {
  for (const auto& check : kChecks)
    if (check.value != kCheckJoinAtDifferentLevels) checks.push_back(check.value);
}

DXAnalyzeRequestTaskHelper::DXAnalyzeRequestTaskHelper(ETask task) : m_task(task) {}

void DXAnalyzeRequestTaskHelper::AddCheck(ECheck check) {
  m_checks.push_back(check);
}

void DXAnalyzeRequestTaskHelper::AddObject(const I18NString& id) {
  m_objects.push_back(id);
}

void DXAnalyzeRequestTaskHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_task);
  elem.setAttribute(STR_name, ToString(m_task));
  const TRNIDOM_Element objects = appendElement(elem, STR_objects);
  for (const I18NString& id : m_objects) appendElement(objects, STR_object, STR_id, id);
  const TRNIDOM_Element checks = appendElement(elem, STR_checks);
  for (const ECheck check : m_checks) appendElement(checks, STR_check, STR_name, ToString(check));
}

void DXAnalyzeRequestTaskHelper::doTake(TRNIDOM_Element& elem) {
  const Descendants all = contentOf(elem);
  read(*this, all, all.root());
}

DXModelAnalysisRequestHelper::DXModelAnalysisRequestHelper() = default;

DXModelAnalysisRequestHelper::~DXModelAnalysisRequestHelper() = default;

DXAnalyzeRequestTaskHelper* DXModelAnalysisRequestHelper::AddTask(DXAnalyzeRequestTaskHelper::ETask task) {
  return m_tasks.emplace(task);
}

void DXModelAnalysisRequestHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_analyzeModelRequest);
  const TRNIDOM_Element tasks = appendElement(elem, STR_tasks);
  for (const DXAnalyzeRequestTaskHelper* task : m_tasks) appendMade(tasks, doc, *task);
}

void DXModelAnalysisRequestHelper::doTake(TRNIDOM_Element& elem) {
  const Descendants all = contentOf(elem);
  for (const auto& task : all.below(all.root(), kTask)) {
    const auto eTask = DXAnalyzeRequestTaskHelper::ToTask(task.element.getAttribute(STR_name));
    TRN_ASSERT(eTask != DXAnalyzeRequestTaskHelper::kTaskUnknown);
    read(*AddTask(eTask), all, task);
  }
}
