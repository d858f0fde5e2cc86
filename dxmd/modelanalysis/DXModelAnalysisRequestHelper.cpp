#include <dxmd/modelanalysis/DXModelAnalysisRequestHelper.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/resources/Vocabulary.h>

namespace {

using Task = DXAnalyzeRequestTaskHelper;

const I18NString STR_minimizedSQLconflict("minimizedSQLconflict");
const I18NString STR_embeddedCalculation("embeddedCalculation");
const I18NString STR_cachingConflict("cachingConflict");
const I18NString STR_id("id");

constexpr dxmd::EnumTexts<Task::ETask, 1> kTasks{{
    {Task::kTaskDoSpecifiedChecks, STR_doSpecifiedChecks},
}};

constexpr dxmd::EnumTexts<Task::ECheck, 9> kChecks{{
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
  TRNIDOM_Element objects = dxmd::appendElement(elem, STR_objects);
  for (const I18NString& id : m_objects) dxmd::appendElement(objects, STR_object, STR_id, id);
  TRNIDOM_Element checks = dxmd::appendElement(elem, STR_checks);
  for (const ECheck check : m_checks) dxmd::appendElement(checks, STR_check, STR_name, ToString(check));
}

void DXAnalyzeRequestTaskHelper::doTake(TRNIDOM_Element& elem) {
  for (const TRNIDOM_Element check : elem.getElementsByTagName(STR_check)) {
    const ECheck eCheck = ToCheck(check.getAttribute(STR_name));
    TRN_ASSERT(eCheck != kCheckUnknown);
    AddCheck(eCheck);
  }
  for (const TRNIDOM_Element object : elem.getElementsByTagName(STR_object)) {
    const I18NString idObj = object.getAttribute(STR_id);
    TRN_ASSERT_NAMED(!idObj.empty(), "Cannot be empty");
    AddObject(idObj);
  }
}

DXModelAnalysisRequestHelper::DXModelAnalysisRequestHelper() = default;

DXModelAnalysisRequestHelper::~DXModelAnalysisRequestHelper() = default;

DXAnalyzeRequestTaskHelper* DXModelAnalysisRequestHelper::AddTask(DXAnalyzeRequestTaskHelper::ETask task) {
  return m_tasks.emplace(task);
}

void DXModelAnalysisRequestHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_analyzeModelRequest);
  TRNIDOM_Element tasks = dxmd::appendElement(elem, STR_tasks);
  for (const DXAnalyzeRequestTaskHelper* task : m_tasks) dxmd::appendMade(tasks, doc, *task);
}

void DXModelAnalysisRequestHelper::doTake(TRNIDOM_Element& elem) {
  for (TRNIDOM_Element task : elem.getElementsByTagName(STR_task)) {
    const auto eTask = DXAnalyzeRequestTaskHelper::ToTask(task.getAttribute(STR_name));
    TRN_ASSERT(eTask != DXAnalyzeRequestTaskHelper::kTaskUnknown);
    AddTask(eTask)->doTake(task);
  }
}
