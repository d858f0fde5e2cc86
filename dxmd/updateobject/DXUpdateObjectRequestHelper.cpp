// Holds the task and the request: an assertion names its source file, and the task's name this one. In both, locals
// are spelt as the assertions' texts have them; that what has a tag name is an element cannot fail.

#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>

#include <cstddef>
#include <new>
#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

using Task = DXUpdateRequestTaskHelper;

constexpr EnumTexts<Task::ETask, 6> kTasks{{
    {Task::kTaskAddProperty, STR_addProperty},
    {Task::kTaskRemoveProperty, STR_removeProperty},
    {Task::kTaskUpdateProperty, STR_updateProperty},
    {Task::kTaskReorderProperty, STR_reorderProperty},
    {Task::kTaskAddObject, STR_addObject},
    {Task::kTaskRemoveObject, STR_removeObject},
}};

constexpr EnumTexts<Task::EParameter, 33> kParameters{{
    {Task::kParamPropertyType, STR_propertyType},
    {Task::kParamPropertyValue, STR_propertyValue},
    {Task::kParamForceUpdate, STR_forceUpdate},
    {Task::kParamCreateIfNeeded, STR_createIfNeeded},
    {Task::kParamPropertyIndex, STR_propertyIndex},
    {Task::kParamPropertyBeforeIndex, STR_propertyBeforeIndex},
    {Task::kParamObjectName, STR_objectName},
    {Task::kParamObjectType, STR_objectType},
    {Task::kParamMakeNameUnique, STR_makeNameUnique},
    {Task::kParamObjectID, STR_objectID},
    {Task::kParamObjectBeforeID, STR_objectBeforeID},
    {Task::kParamBasedOn, STR_basedOn},
    {Task::kParamCaption, STR_caption},
    {Task::kParamFilterApplyType, STR_filterApplyType},
    {Task::kParamQueryType, STR_queryType},
    {Task::kParamDefinitionType, STR_definitionType},
    {Task::kParamSubType, STR_subType},
    {Task::kParamCmDisplayPath, STR_cmDisplayPath},
    {Task::kParamCmSearchPath, STR_cmSearchPath},
    {Task::kParamFunctionSetID, STR_functionSetID},
    {Task::kParamOverrideFuncID, STR_overrideFuncID},
    {Task::kParamOverrideQOSLevel, STR_overrideQOSLevel},
    {Task::kParamOverrideDescription, STR_overrideDescription},
    {Task::kParamQuerySubjectRefs, STR_querySubjectRefs},
    {Task::kParamSetOperation, STR_setOperation},
    {Task::kParamDuplicates, STR_duplicates},
    {Task::kParamConvergenceLevel, STR_convergenceLevel},
    {Task::kParamKey, STR_key},
    {Task::kParamAttributes, STR_attributes},
    {Task::kParamCanGroup, STR_canGroup},
    {Task::kParamIdentifiesRow, STR_identifiesRow},
    {Task::kParamApplyAggregate, STR_applyAggregate},
    {Task::kParamDimensionRef, STR_dimensionRef},
}};

const I18NString STR_securityFilter("securityFilter");
const I18NString STR_previewFilter("previewFilter");

// Whether the value of a property of that type is object IDs.
bool isPropertyOfIDs(const I18NString& propertyType) {
  return propertyType == STR_filter || propertyType == STR_securityFilter || propertyType == STR_previewFilter ||
         propertyType == STR_dataSource || propertyType == STR_querySubjectRefs;
}

// The element that stands for the value of a "param" without a "value".
TRNIDOM_Element subtreeOf(const TRNIDOM_Element& param) {
  TRNIDOM_Node nodeValue = param.getFirstChild();
  TRN_ASSERT(!nodeValue.isNull() && nodeValue.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  return nodeValue;
}

}  // namespace

const I18NString& DXUpdateRequestTaskHelper::ToString(ETask task) {
  return kTasks.text(task);
}

const I18NString& DXUpdateRequestTaskHelper::ToString(EParameter parameter) {
  return kParameters.text(parameter);
}

DXUpdateRequestTaskHelper::ETask DXUpdateRequestTaskHelper::ToTask(const I18NString& text) {
  return kTasks.value(text);
}

DXUpdateRequestTaskHelper::EParameter DXUpdateRequestTaskHelper::ToParameter(const I18NString& text) {
  return kParameters.value(text);
}

DXUpdateRequestTaskHelper::DXUpdateRequestTaskHelper(ETask task) : m_task(task) {}

DXUpdateRequestTaskHelper::~DXUpdateRequestTaskHelper() = default;

void DXUpdateRequestTaskHelper::AddParameter(EParameter parameter, const I18NString& value, const I18NString& locale) {
  addValue(parameter, value, locale);
}

void DXUpdateRequestTaskHelper::AddParameter(EParameter parameter, const TRNIDOM_Element& element) {
  addValue(parameter, element);
}

template <typename... Arguments>
void DXUpdateRequestTaskHelper::addValue(EParameter parameter, const Arguments&... arguments) {
  // When memory runs out, no empty list stays in the map: parameters are parsed only while the map is empty.
  if (const auto found = m_parameters.find(parameter); found != m_parameters.end()) {
    found->second.emplace(arguments...);
    return;
  }
  OwnedList<ParamValue> values;
  values.emplace(arguments...);
  m_parameters.emplace(parameter, std::move(values));
}

bool DXUpdateRequestTaskHelper::GetParameter(EParameter parameter, std::vector<ParamValue*>& values) {
  const std::vector<ParamValue*>* found = findValues(parameter);
  if (found == nullptr) return false;
  values = *found;
  return true;
}

bool DXUpdateRequestTaskHelper::GetParameter(EParameter parameter, ParamValue*& value) {
  const std::vector<ParamValue*>* found = findValues(parameter);
  if (found == nullptr) return false;
  value = found->front();
  return true;
}

const std::vector<DXUpdateRequestTaskHelper::ParamValue*>* DXUpdateRequestTaskHelper::findValues(EParameter parameter) {
  if (m_parameters.empty()) parseParameters();
  const auto found = m_parameters.find(parameter);
  return found == m_parameters.end() || found->second.empty() ? nullptr : &found->second.items();
}

void DXUpdateRequestTaskHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_task);
  elem.setAttribute(STR_name, ToString(m_task));
  const TRNIDOM_Element parameters = appendElement(elem, STR_parameters);
  for (const auto& [parameter, values] : m_parameters) {
    for (const ParamValue* value : values) {
      TRNIDOM_Element param = appendElement(parameters, STR_param, STR_name, ToString(parameter));
      if (!value->locale.empty()) param.setAttribute(STR_locale, value->locale);
      if (value->element.isNull())
        param.setAttribute(STR_value, value->value);
      else
        appendImported(param, value->element);
    }
  }
}

void DXUpdateRequestTaskHelper::doTake(TRNIDOM_Element& elem) {
  m_taskElement = elem;
}

void DXUpdateRequestTaskHelper::parseParameters() {
  try {
    for (const TRNIDOM_Node& nodeTemp : DescendantElements(m_taskElement, STR_param)) {
      TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
      const TRNIDOM_Element param = nodeTemp;
      const EParameter eParam = ToParameter(param.getAttribute(STR_name));
      TRN_ASSERT(eParam != kParamUnknown);
      if (param.hasAttribute(STR_value))
        AddParameter(eParam, param.getAttribute(STR_value), param.getAttribute(STR_locale));
      else
        AddParameter(eParam, subtreeOf(param));
    }
  } catch (const std::bad_alloc&) {
    m_parameters.clear();  // so that the next call parses them all
    throw;
  }
}

bool DXUpdateRequestTaskHelper::ContainsIDs(const TRNIDOM_Element& param) {
  const EParameter eParam = ToParameter(param.getAttribute(STR_name));
  TRN_ASSERT(eParam != kParamUnknown);
  if (eParam == kParamPropertyType && (m_task == kTaskAddProperty || m_task == kTaskUpdateProperty))
    m_currentPropertyType = param.getAttribute(STR_value);
  switch (eParam) {
    case kParamObjectID:
    case kParamObjectBeforeID:
    case kParamBasedOn:
    case kParamKey:
    case kParamAttributes:
    case kParamDimensionRef:
      return true;
    case kParamPropertyValue:
      return isPropertyOfIDs(m_currentPropertyType);
    default:
      return false;
  }
}

bool DXUpdateRequestTaskHelper::GetNextIDParameters(std::vector<I18NString>& vIDs) {
  const TRNIDOM_Element cursorBefore = idCrap_elmCurrIDParam;
  const I18NString propertyTypeBefore = m_currentPropertyType;
  try {
    vIDs.clear();
    TRNIDOM_Element param = idCrap_elmCurrIDParam.isNull() ? TRNIDOM_Helper::findFirstElement(m_taskElement, STR_param)
                                                           : idCrap_elmCurrIDParam.getNextSibling();
    while (!param.isNull() && !(isElement(param) && param.getNodeName() == STR_param && ContainsIDs(param)))
      param = param.getNextSibling();
    if (param.isNull()) return false;

    idCrap_elmCurrIDParam = param;
    if (param.hasAttribute(STR_value)) {
      vIDs.push_back(param.getAttribute(STR_value));
      return true;
    }
    for (const TRNIDOM_Node& ref : DescendantElements(subtreeOf(param), STR_refobj)) {
      const TRNIDOM_Node text = firstText(ref);
      if (!text.isNull()) vIDs.push_back(text.getNodeValue());
    }
    return true;
  } catch (const std::bad_alloc&) {
    idCrap_elmCurrIDParam = cursorBefore;  // so that the next call passes nothing over
    m_currentPropertyType = propertyTypeBefore;
    throw;
  }
}

void DXUpdateRequestTaskHelper::UpdateCurrentIDParameters(const std::vector<I18NString>& vIDs) {
  TRN_ASSERT(!idCrap_elmCurrIDParam.isNull());
  if (idCrap_elmCurrIDParam.hasAttribute(STR_value)) {
    TRN_ASSERT(vIDs.size() == 1);
    idCrap_elmCurrIDParam.setAttribute(STR_value, vIDs.front());
    return;
  }
  const TRNIDOM_NodeList listRefs = subtreeOf(idCrap_elmCurrIDParam).getElementsByTagName(STR_refobj);
  TRN_ASSERT(listRefs.getLength() == vIDs.size());
  for (std::size_t i = 0; i < vIDs.size(); ++i) {
    TRNIDOM_Node text = firstText(listRefs.item(i));
    if (!text.isNull()) text.setNodeValue(vIDs[i]);
  }
}

DXUpdateObjectRequestHelper::DXUpdateObjectRequestHelper() = default;

DXUpdateObjectRequestHelper::DXUpdateObjectRequestHelper(TRNIDOM_Element& elem) {
  DXUpdateObjectRequestHelper::doTake(elem);
}

DXUpdateObjectRequestHelper::~DXUpdateObjectRequestHelper() = default;

DXUpdateRequestTaskHelper* DXUpdateObjectRequestHelper::AddTask(DXUpdateRequestTaskHelper::ETask task) {
  return m_tasks.emplace(task);
}

void DXUpdateObjectRequestHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_updateObjectRequest);
  const TRNIDOM_Element tasks = appendElement(elem, STR_tasks);
  for (const DXUpdateRequestTaskHelper* task : m_tasks) appendMade(tasks, doc, *task);
}

void DXUpdateObjectRequestHelper::doTake(TRNIDOM_Element& elem) {
  for (TRNIDOM_Element& task : DescendantElements(elem, STR_task)) {
    const auto eTask = DXUpdateRequestTaskHelper::ToTask(task.getAttribute(STR_name));
    TRN_ASSERT(eTask != DXUpdateRequestTaskHelper::kTaskUnknown);
    AddTask(eTask)->doTake(task);
  }
}
