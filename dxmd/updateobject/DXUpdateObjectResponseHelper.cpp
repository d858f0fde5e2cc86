// Holds the task and the response: an assertion names its source file, and the task's name this one. In both, locals
// are spelt as the assertions' texts have them; that what has a tag name is an element cannot fail.

#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

#include <new>
#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Descendants.h>
#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>
#include <dxmd/updateobject/DXActionFeedbackHelper.h>

using namespace dxmd;

namespace {

using Task = DXUpdateResponseTaskHelper;

constexpr EnumTexts<Task::EStatus, 2> kStatuses{{
    {Task::kStatusSuccess, STR_success},
    {Task::kStatusFailure, STR_failure},
}};

constexpr EnumTexts<Task::EParameter, 2> kParameters{{
    {Task::kParamProperty, STR_property},
    {Task::kParamObject, STR_object},
}};

}  // namespace

const I18NString& ToString(DXUpdateResponseTaskHelper::EStatus status) {
  return kStatuses.text(status);
}

const I18NString& ToString(DXUpdateResponseTaskHelper::EParameter parameter) {
  return kParameters.text(parameter);
}

DXUpdateResponseTaskHelper::EStatus ToStatus(const I18NString& text) {
  return kStatuses.value(text);
}

DXUpdateResponseTaskHelper::EParameter ToParameter(const I18NString& text) {
  return kParameters.value(text);
}

DXUpdateResponseTaskHelper::DXUpdateResponseTaskHelper(DXUpdateRequestTaskHelper::ETask task, EStatus status)
    : m_task(task), m_status(status) {}

DXUpdateResponseTaskHelper::~DXUpdateResponseTaskHelper() = default;

void DXUpdateResponseTaskHelper::AddParameter(EParameter parameter, const I18NString& value) {
  // When memory runs out, no empty list stays in the map: parameters are parsed only while the map is empty.
  if (const auto found = m_parameters.find(parameter); found != m_parameters.end())
    found->second.push_back(value);
  else
    m_parameters.emplace(parameter, std::vector<I18NString>{value});
}

bool DXUpdateResponseTaskHelper::GetParameter(EParameter parameter, std::vector<I18NString>& values) {
  if (m_parameters.empty()) parseParameters();
  const auto found = m_parameters.find(parameter);
  if (found == m_parameters.end()) return false;
  values = found->second;
  return true;
}

void DXUpdateResponseTaskHelper::SetError(const I18NString& code, const I18NString& message) {
  ErrorRecord error{code, message};
  if (m_error)
    *m_error = std::move(error);
  else
    m_error = std::make_unique<ErrorRecord>(std::move(error));
}

DXUpdateResponseTaskHelper::ErrorRecord* DXUpdateResponseTaskHelper::GetError() {
  if (m_error) return m_error.get();
  const TRNIDOM_Node nodeTemp = TRNIDOM_Helper::findFirstElement(m_taskElement, STR_error);
  if (nodeTemp.isNull()) return nullptr;
  TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  SetError(TRNIDOM_Element(nodeTemp).getAttribute(STR_code), firstText(nodeTemp).getNodeValue());
  return m_error.get();
}

void DXUpdateResponseTaskHelper::SetFeedback(const DXActionFeedbackHelper& feedback) {
  if (feedback.IsEmpty()) return;
  TRNIDOM_Element made;
  feedback.Make(made);
  m_feedback = std::move(made);
}

void DXUpdateResponseTaskHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_task);
  elem.setAttribute(STR_name, DXUpdateRequestTaskHelper::ToString(m_task));
  elem.setAttribute(STR_status, ToString(m_status));
  for (const auto& [parameter, values] : m_parameters) {
    for (const I18NString& value : values)
      appendElement(elem, STR_param, STR_name, ToString(parameter)).setAttribute(STR_value, value);
  }
  if (m_error) appendElementWithText(elem, STR_error, m_error->message).setAttribute(STR_code, m_error->code);
  if (!m_feedback.isNull()) appendImported(elem, m_feedback);
}

void DXUpdateResponseTaskHelper::doTake(TRNIDOM_Element& elem) {
  take(elem, TRNIDOM_Helper::findFirstElement(elem, STR_feedback));
}

void DXUpdateResponseTaskHelper::take(const TRNIDOM_Element& elem, const TRNIDOM_Node& nodeTemp) {
  m_taskElement = elem;
  if (nodeTemp.isNull()) return;
  TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  m_feedback = nodeTemp;
}

void DXUpdateResponseTaskHelper::parseParameters() {
  try {
    for (const TRNIDOM_Node& nodeTemp : DescendantElements(m_taskElement, STR_param)) {
      TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
      const TRNIDOM_Element param = nodeTemp;
      const EParameter eParam = ToParameter(param.getAttribute(STR_name));
      TRN_ASSERT(eParam != kParamUnknown);
      AddParameter(eParam, param.getAttribute(STR_value));
    }
  } catch (const std::bad_alloc&) {
    m_parameters.clear();  // so that the next call parses them all
    throw;
  }
}

DXUpdateObjectResponseHelper::DXUpdateObjectResponseHelper() = default;

DXUpdateObjectResponseHelper::DXUpdateObjectResponseHelper(TRNIDOM_Element& elem) {
  DXUpdateObjectResponseHelper::doTake(elem);
}

DXUpdateObjectResponseHelper::~DXUpdateObjectResponseHelper() = default;

DXUpdateResponseTaskHelper* DXUpdateObjectResponseHelper::AddTask(DXUpdateRequestTaskHelper::ETask task) {
  return m_tasks.emplace(task, DXUpdateResponseTaskHelper::kStatusSuccess);
}

DXUpdateResponseTaskHelper* DXUpdateObjectResponseHelper::GetTask(DXUpdateRequestTaskHelper::ETask task) const {
  for (DXUpdateResponseTaskHelper* held : m_tasks)
    if (held->GetTask() == task) return held;
  return nullptr;
}

void DXUpdateObjectResponseHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_updateObjectResponse);
  const TRNIDOM_Element tasks = appendElement(elem, STR_tasks);
  for (const DXUpdateResponseTaskHelper* task : m_tasks) appendMade(tasks, doc, *task);
}

void DXUpdateObjectResponseHelper::doTake(TRNIDOM_Element& elem) {
  enum Name { kTask, kFeedback };
  const Descendants all(elem, {STR_task, STR_feedback});
  for (const auto& task : all.below(all.root(), kTask)) {
    const auto eTask = DXUpdateRequestTaskHelper::ToTask(task.element.getAttribute(STR_name));
    TRN_ASSERT(eTask != DXUpdateRequestTaskHelper::kTaskUnknown);
    const auto eStatus = ToStatus(task.element.getAttribute(STR_status));
    m_tasks.emplace(eTask, eStatus)->take(task.element, all.below(task, kFeedback).first());
  }
}
