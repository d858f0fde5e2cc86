#include <dxmd/materialize/DXMaterializeRequestHelper.h>

#include <algorithm>
#include <cstddef>
#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/resources/Vocabulary.h>

namespace {

using Request = DXMaterializeRequestHelper;
using dxmd::FixedText;
using dxmd::VocabularyEntry;

// The vocabulary's entries by the names they have here.
constexpr VocabularyEntry STR_Task = STR_task;
constexpr VocabularyEntry STR_TaskGenLoadDataFromFile = STR_genLoadDataFromFile;
constexpr VocabularyEntry STR_TaskLoadDataFromFile = STR_loadDataFromFile;
constexpr VocabularyEntry STR_TaskMaterializeQuerySubject = STR_materializeQuerySubject;
constexpr VocabularyEntry STR_TaskMaterializeResultSet = STR_materializeResultSet;
constexpr VocabularyEntry STR_DataFilePath = STR_dataFilePath;
constexpr VocabularyEntry STR_TableName = STR_tableName;
constexpr VocabularyEntry STR_ColumnDelimiter = STR_columnDelimiter;
constexpr VocabularyEntry STR_RowDelimiter = STR_rowDelimiter;
constexpr VocabularyEntry STR_DataEncoding = STR_dataEncoding;
constexpr VocabularyEntry STR_ObjectID = STR_objectID;

// Tasks are written and answered by these names, in which the materialise tasks share that of the generated load, ...
constexpr dxmd::EnumTexts<Request::ETasks, 4> kTaskNames{{
    {Request::kTaskGenLoadDataFromFile, STR_TaskGenLoadDataFromFile},
    {Request::kTaskLoadDataFromFile, STR_TaskLoadDataFromFile},
    {Request::kTaskMaterializeQuerySubject, STR_TaskGenLoadDataFromFile},
    {Request::kTaskMaterializeResultSet, STR_TaskGenLoadDataFromFile},
}};

// ... but read by one text each.
constexpr dxmd::EnumTexts<Request::ETasks, 4> kReceivedTasks{{
    {Request::kTaskGenLoadDataFromFile, STR_TaskGenLoadDataFromFile},
    {Request::kTaskLoadDataFromFile, STR_TaskLoadDataFromFile},
    {Request::kTaskMaterializeQuerySubject, STR_TaskMaterializeQuerySubject},
    {Request::kTaskMaterializeResultSet, STR_TaskMaterializeResultSet},
}};

constexpr dxmd::EnumTexts<Request::EParameters, 6> kParameters{{
    {Request::kParamDataFilePath, STR_DataFilePath},
    {Request::kParamTableName, STR_TableName},
    {Request::kParamColumnDelimiter, STR_ColumnDelimiter},
    {Request::kParamRowDelimiter, STR_RowDelimiter},
    {Request::kParamDataEncoding, STR_DataEncoding},
    {Request::kParamObjectID, STR_ObjectID},
}};

// The texts of a target data source in the order they are written: the type as an attribute, the others as elements.
struct Field {
  FixedText name;
  const I18NString* Request::TargetDataSource::*text;
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
  for (const TRNIDOM_Node task : m_requestRoot.getElementsByTagName(STR_Task)) {
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
  for (const TRNIDOM_Node nodeTemp : m_requestRoot.getElementsByTagName(STR_param)) {
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
  if (dxmd::isElement(subtree)) m_resultSet = subtree;
  return m_resultSet;
}

void DXMaterializeRequestHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  elem = doc.createElement(STR_materializeRequest);
  TRNIDOM_Element tasks = dxmd::appendElement(elem, STR_tasks);
  for (const ETasks task : m_tasks) dxmd::appendTextElement(tasks, STR_Task, GetTaskName(task));

  TRNIDOM_Element target = dxmd::appendElement(elem, STR_targetDataSource);
  if (m_targetDataSource[kType]) target.setAttribute(STR_type, *m_targetDataSource[kType]);
  for (std::size_t i = kFirstElement; i < std::size(kFields); ++i)
    if (m_targetDataSource[i])
      TRNIDOM_Helper::findOrCreateElementWithText(target, kFields[i].name.text(), *m_targetDataSource[i]);

  if (!m_parameters.empty()) {
    TRNIDOM_Element parameters = dxmd::appendElement(elem, STR_parameters);
    for (const auto& [parameter, value] : m_parameters)
      dxmd::appendElement(parameters, STR_param, STR_name, GetParameterName(parameter)).setAttribute(STR_value, value);
  }

  if (!m_resultSet.isNull()) {
    TRNIDOM_Element resultSet = dxmd::appendElement(elem, STR_resultSet);
    dxmd::appendImported(resultSet, m_resultSet);
  }
}

void DXMaterializeRequestHelper::doTake(TRNIDOM_Element& elem) {
  m_requestRoot = elem;
}

void DXMaterializeRequestHelper::parseTargetDataSource() {
  const TRNIDOM_Node nodeTemp = TRNIDOM_Helper::findFirstElement(m_requestRoot, STR_targetDataSource);
  if (nodeTemp.isNull()) return;
  TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  std::array<std::optional<I18NString>, std::size(kFields)> texts;
  texts[kType] = TRNIDOM_Element(nodeTemp).getAttribute(STR_type);
  for (TRNIDOM_Node child = nodeTemp.getFirstChild(); !child.isNull(); child = child.getNextSibling()) {
    const TRNIDOM_Node text = dxmd::firstText(child);
    if (!dxmd::isElement(child) || text.isNull()) continue;
    const I18NString name = child.getNodeName();
    for (std::size_t i = kFirstElement; i < std::size(kFields); ++i)
      if (name == kFields[i].name.text()) texts[i] = text.getNodeValue();
  }
  m_targetDataSource = std::move(texts);
}
