#include <dxmd/materialize/DXMaterializeRequestHelper.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

using Request = DXMaterializeRequestHelper;

// The names that tasks are written and answered by. The materialise tasks have the name of the generated load.
constexpr EnumTexts<Request::ETasks, 4> kTaskNames{{
    {Request::kTaskGenLoadDataFromFile, STR_genLoadDataFromFile},
    {Request::kTaskLoadDataFromFile, STR_loadDataFromFile},
    {Request::kTaskMaterializeQuerySubject, STR_genLoadDataFromFile},
    {Request::kTaskMaterializeResultSet, STR_genLoadDataFromFile},
}};

// The texts that tasks are read by, each its own.
constexpr EnumTexts<Request::ETasks, 4> kReceivedTasks{{
    {Request::kTaskGenLoadDataFromFile, STR_genLoadDataFromFile},
    {Request::kTaskLoadDataFromFile, STR_loadDataFromFile},
    {Request::kTaskMaterializeQuerySubject, STR_materializeQuerySubject},
    {Request::kTaskMaterializeResultSet, STR_materializeResultSet},
}};

constexpr EnumTexts<Request::EParameters, 6> kParameters{{
    {Request::kParamDataFilePath, STR_dataFilePath},
    {Request::kParamTableName, STR_tableName},
    {Request::kParamColumnDelimiter, STR_columnDelimiter},
    {Request::kParamRowDelimiter, STR_rowDelimiter},
    {Request::kParamDataEncoding, STR_dataEncoding},
    {Request::kParamObjectID, STR_objectID},
}};

// The texts of a target data source in the order they are written: the type as an attribute, the others as elements.
struct Field {
  FixedText name;
  I18NString* Request::TargetDataSource::*text;
};

constexpr Field kFields[] = {
    {STR_type, &Request::TargetDataSource::type},
    {STR_connectionString, &Request::TargetDataSource::connectionString},
    {STR_database, &Request::TargetDataSource::database},
    {STR_username, &Request::TargetDataSource::userName},
    {STR_password, &Request::TargetDataSource::password},
    {STR_SSOTicket, &Request::TargetDataSource::ssoTicket},
};
constexpr std::size_t kType = 0;
constexpr std::size_t kFirstElement = 1;

}  // namespace

const I18NString& DXMaterializeRequestHelper::GetTaskName(ETasks task) {
  return kTaskNames.text(task);
}

const I18NString& DXMaterializeRequestHelper::GetParameterName(EParameters parameter) {
  return kParameters.text(parameter);
}

DXMaterializeRequestHelper::DXMaterializeRequestHelper() = default;

DXMaterializeRequestHelper::~DXMaterializeRequestHelper() = default;

void DXMaterializeRequestHelper::AddTask(ETasks task) {
  if (std::find(m_tasks.begin(), m_tasks.end(), task) == m_tasks.end()) m_tasks.push_back(task);
}

const std::vector<DXMaterializeRequestHelper::ETasks>& DXMaterializeRequestHelper::GetTasks() {
  if (!m_tasks.empty()) return m_tasks;
  std::vector<ETasks> tasks;
  for (const TRNIDOM_Node& task : DescendantElements(m_requestRoot, STR_task)) {
    const TRNIDOM_Node name = task.getFirstChild();
    if (!name.isNull()) tasks.push_back(kReceivedTasks.value(name.getNodeValue()));
  }
  m_tasks = std::move(tasks);
  return m_tasks;
}

void DXMaterializeRequestHelper::SetTargetDataSource(const TargetDataSource& source) {
  for (std::size_t i = 0; i < std::size(kFields); ++i)
    if (const I18NString* text = source.*kFields[i].text) m_targetDataSource[i] = *text;
}

DXMaterializeRequestHelper::TargetDataSource DXMaterializeRequestHelper::GetTargetDataSourceInfo() {
  const bool isUnset = std::none_of(m_targetDataSource.begin(), m_targetDataSource.end(),
                                    [](const std::optional<I18NString>& text) { return text.has_value(); });
  if (isUnset) parseTargetDataSource();
  TargetDataSource source;
  for (std::size_t i = 0; i < std::size(kFields); ++i)
    if (m_targetDataSource[i]) source.*kFields[i].text = &*m_targetDataSource[i];
  return source;
}

void DXMaterializeRequestHelper::AddParameter(EParameters parameter, const I18NString& value) {
  m_parameters[parameter] = value;
}

bool DXMaterializeRequestHelper::GetParameter(EParameters parameter, I18NString& value) {
  if (!m_parameters.empty()) return false;
  // Spelt as the assertion's text has it, which cannot fail: what has a tag name is an element.
  for (const TRNIDOM_Node& nodeTemp : DescendantElements(m_requestRoot, STR_param)) {
    TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
    const TRNIDOM_Element param = nodeTemp;
    if (kParameters.value(param.getAttribute(STR_name)) != parameter) continue;
    value = param.getAttribute(STR_value);
    return true;
  }
  return false;
}

TRNIDOM_Element DXMaterializeRequestHelper::GetResultSet() {
  if (!m_resultSet.isNull()) return m_resultSet;
  const TRNIDOM_Node subtree = TRNIDOM_Helper::findFirstElement(m_requestRoot, STR_resultSet).getFirstChild();
  if (isElement(subtree)) m_resultSet = subtree;
  return m_resultSet;
}

void DXMaterializeRequestHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_materializeRequest);
  const TRNIDOM_Element tasks = appendElement(elem, STR_tasks);
  for (const ETasks task : m_tasks) appendElementWithText(tasks, STR_task, GetTaskName(task));

  TRNIDOM_Element target = appendElement(elem, STR_targetDataSource);
  if (m_targetDataSource[kType]) target.setAttribute(STR_type, *m_targetDataSource[kType]);
  for (std::size_t i = kFirstElement; i < std::size(kFields); ++i)
    if (m_targetDataSource[i]) appendElementWithText(target, kFields[i].name.text(), *m_targetDataSource[i]);

  if (!m_parameters.empty()) {
    const TRNIDOM_Element parameters = appendElement(elem, STR_parameters);
    for (const auto& [parameter, value] : m_parameters)
      appendElement(parameters, STR_param, STR_name, GetParameterName(parameter)).setAttribute(STR_value, value);
  }

  if (!m_resultSet.isNull()) {
    appendImported(appendElement(elem, STR_resultSet), m_resultSet);
  }
}

void DXMaterializeRequestHelper::doTake(TRNIDOM_Element& elem) {
  m_requestRoot = elem;
}

void DXMaterializeRequestHelper::parseTargetDataSource() {
  // Spelt as the assertion's text has it, which cannot fail: what has a tag name is an element.
  const TRNIDOM_Node nodeTemp = TRNIDOM_Helper::findFirstElement(m_requestRoot, STR_targetDataSource);
  if (nodeTemp.isNull()) return;
  TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  std::array<std::optional<I18NString>, std::size(kFields)> texts;
  texts[kType] = TRNIDOM_Element(nodeTemp).getAttribute(STR_type);
  for (TRNIDOM_Node child = nodeTemp.getFirstChild(); !child.isNull(); child = child.getNextSibling()) {
    const TRNIDOM_Node text = firstText(child);
    if (!isElement(child) || text.isNull()) continue;
    const I18NString name = child.getNodeName();
    for (std::size_t i = kFirstElement; i < std::size(kFields); ++i)
      if (name == kFields[i].name.text()) texts[i] = text.getNodeValue();
  }
  m_targetDataSource = std::move(texts);
}
