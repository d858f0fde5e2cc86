#include <dxmd/queryframework/QFExecuteCommandHelper.h>

#include <memory>
#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

const I18NString STR_columns("columns");
const I18NString STR_valueSet1("valueSet1");
const I18NString STR_groupBody1("groupBody1");
const I18NString STR_rsd("rsd");

constexpr EnumTexts<QFExecuteCommandHelper::EQueryOptimization, 3> kOptimizations{
    {{QFExecuteCommandHelper::kQueryOptimizationFirstRow, STR_firstRow},
     {QFExecuteCommandHelper::kQueryOptimizationAllRows, STR_allRows},
     {QFExecuteCommandHelper::kQueryOptimizationIncremental, STR_incremental}}};

constexpr EnumTexts<QFExecuteCommandHelper::EQueryFeedback, 6> kFeedbacks{
    {{QFExecuteCommandHelper::kQueryFeedbackNativeCommandText, STR_nativeCommandText},
     {QFExecuteCommandHelper::kQueryFeedbackVeltraCommandText, STR_VeltraCommandText},
     {QFExecuteCommandHelper::kQueryFeedbackConnections, STR_connections},
     {QFExecuteCommandHelper::kQueryFeedbackColumnList, STR_columnList},
     {QFExecuteCommandHelper::kQueryFeedbackExecutionPlan, STR_executionPlan},
     {QFExecuteCommandHelper::kQueryFeedbackTableType, STR_tableType}}};

constexpr EnumTexts<QFExecuteCommandHelper::EQOSSeverity, 4> kSeverities{
    {{QFExecuteCommandHelper::kQOSSeverityError, STR_error},
     {QFExecuteCommandHelper::kQOSSeverityWarning, STR_warning},
     {QFExecuteCommandHelper::kQOSSeverityKeyTransformation, STR_keyTransformation},
     {QFExecuteCommandHelper::kQOSSeverityInformation, STR_information}}};

// The element of each request hint, and the attribute that carries its value.
struct RequestHintShape {
  QFExecuteCommandHelper::ERequestHint hint;
  VocabularyEntry element;
  VocabularyEntry attribute;
};
constexpr RequestHintShape kRequestHintShapes[] = {
    {QFExecuteCommandHelper::kRequestHintNoDataMode, STR_noDataMode, STR_enabled},
    {QFExecuteCommandHelper::kRequestHintDesignMode, STR_designMode, STR_enabled},
    {QFExecuteCommandHelper::kRequestHintExecutionOptimization, STR_executionOptimization, STR_value},
    {QFExecuteCommandHelper::kRequestHintQueryProcessing, STR_queryProcessing, STR_value}};

TRNIDOM_Element findOrCreateNamed(const TRNIDOM_Node& parent, const I18NString& elementName, const I18NString& name) {
  TRNIDOM_Element element = TRNIDOM_Helper::findOrCreateElement(parent, elementName);
  element.setAttribute(STR_name, name);
  return element;
}

}  // namespace

const I18NString QFExecuteCommandHelper::STR_resultTemplate("resultTemplate");
const I18NString QFExecuteCommandHelper::STR_listResult("listResult");
const I18NString QFExecuteCommandHelper::STR_details("details");

QFExecuteCommandHelper::QFExecuteCommandHelper(const I18NString& modelPath, const I18NLocale* locale)
    : QFCommandHelper(modelPath), m_locale(locale) {}

QFExecuteCommandHelper::~QFExecuteCommandHelper() = default;

template <typename Query>
Query* QFExecuteCommandHelper::addQuery(std::unique_ptr<Query> query) {
  Query* added = query.get();
  m_queries.adopt(std::move(query));
  return added;
}

QFQueryHelper* QFExecuteCommandHelper::AddQuery(const I18NString& name) {
  return addQuery(std::make_unique<QFQueryHelper>(name));
}

QFJoinQueryHelper* QFExecuteCommandHelper::AddJoinQuery(const I18NString& name, const I18NString& leftQueryRef,
                                                        const I18NString& leftCardinality,
                                                        const I18NString& rightQueryRef,
                                                        const I18NString& rightCardinality,
                                                        const I18NString& joinFilterExpression) {
  return addQuery(std::make_unique<QFJoinQueryHelper>(name, leftQueryRef, leftCardinality, rightQueryRef,
                                                      rightCardinality, joinFilterExpression));
}

QFModelSetQueryHelper* QFExecuteCommandHelper::AddModelSetQuery(const I18NString& name,
                                                                std::vector<I18NString> projection,
                                                                const I18NString& setOperation,
                                                                const I18NString& duplicates) {
  return addQuery(std::make_unique<QFModelSetQueryHelper>(name, std::move(projection), setOperation, duplicates));
}

void QFExecuteCommandHelper::AddExecuteProperty(const I18NString& name, const I18NString& value) {
  m_executeProperties[name] = value;
}

void QFExecuteCommandHelper::AddRequestHint(ERequestHint hint, const I18NString& value) {
  m_requestHints[hint] = value;
}

void QFExecuteCommandHelper::AddQueryFeedback(EQueryFeedback feedback) {
  m_queryFeedbacks.push_back(feedback);
}

void QFExecuteCommandHelper::SetQOSSeverityLevel(EQOSSeverity level) {
  m_severityLevel = level;
}

const I18NString& QFExecuteCommandHelper::ToString(EQueryOptimization optimization) {
  return kOptimizations.text(optimization);
}

const I18NString& QFExecuteCommandHelper::ToString(EQueryFeedback feedback) {
  return kFeedbacks.text(feedback);
}

const I18NString& QFExecuteCommandHelper::ToString(EQOSSeverity severity) {
  return kSeverities.text(severity);
}

QFExecuteCommandHelper::EQOSSeverity QFExecuteCommandHelper::ConvertNagLevel2SeverityLevel(unsigned long nagLevel) {
  switch (nagLevel) {
    case 0:
    case 1:
      return kQOSSeverityError;
    case 2:
      return kQOSSeverityWarning;
    case 3:
      return kQOSSeverityKeyTransformation;
    default:
      return kQOSSeverityInformation;
  }
}

void QFExecuteCommandHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& parent) const {
  // The result definition is named after queries, so a command without one cannot be written.
  TRN_ASSERT(!m_queries.empty());

  TRNIDOM_Element execute = doc.createElement(STR_execute);
  TRNIDOM_Element querySet = appendElement(execute, STR_querySet);
  if (m_locale != nullptr) querySet.setAttribute(STR_expressionLocale, m_locale->getName());
  MakeModelPath(querySet);
  MakeReportName(querySet, STR_default);

  const TRNIDOM_Element queries = appendElement(querySet, STR_queries);
  for (const QFQueryHelper* query : m_queries) appendMade(queries, doc, *query);
  makeResultDefinitions(querySet);
  makeRequestHints(querySet);

  for (const auto& [name, value] : m_executeProperties)
    appendElement(execute, STR_property, STR_name, name).setAttribute(STR_value, value);
  makeQueryFeedbacks(execute);
  Incorporate(doc, parent, execute);
}

void QFExecuteCommandHelper::makeResultDefinitions(TRNIDOM_Element& querySet) const {
  const TRNIDOM_Element definitions = appendElement(querySet, STR_queryResultDefinitions);
  const I18NString& firstName = m_queries.items().front()->GetName();
  const bool singleDefinition = firstName == STR_SingleCount || firstName == STR_querySet;

  // Each level is found again for the next query: all queries merge into one definition, which the last one names.
  for (const QFQueryHelper* query : m_queries) {
    TRNIDOM_Element definition = findOrCreateNamed(definitions, STR_queryResultDefinition, STR_rsd + query->GetName());
    definition.setAttribute(STR_refQuery, query->GetName());
    TRNIDOM_Element edges = TRNIDOM_Helper::findOrCreateElement(definition, STR_edges);
    TRNIDOM_Element edge = findOrCreateNamed(edges, STR_edge, STR_columns);
    TRNIDOM_Element edgeGroups = TRNIDOM_Helper::findOrCreateElement(edge, STR_edgeGroups);
    TRNIDOM_Element edgeGroup = TRNIDOM_Helper::findOrCreateElement(edgeGroups, STR_edgeGroup);
    TRNIDOM_Element valueSets = TRNIDOM_Helper::findOrCreateElement(edgeGroup, STR_valueSets);
    TRNIDOM_Element valueSet = findOrCreateNamed(valueSets, STR_valueSet, STR_valueSet1);
    TRNIDOM_Element groupBody = findOrCreateNamed(valueSet, STR_groupBody, STR_groupBody1);
    for (const QFQueryDataItem* item : query->GetDataItems())
      appendElement(groupBody, STR_dataItemRef, STR_refDataItem, item->name);
    if (singleDefinition) break;
  }
}

void QFExecuteCommandHelper::makeRequestHints(TRNIDOM_Element& querySet) const {
  if (m_requestHints.empty()) return;
  const TRNIDOM_Element requestHints = appendElement(querySet, STR_requestHints);
  for (const auto& [hint, value] : m_requestHints)
    for (const RequestHintShape& shape : kRequestHintShapes)
      if (shape.hint == hint) appendElement(requestHints, shape.element, shape.attribute, value);
}

void QFExecuteCommandHelper::makeQueryFeedbacks(TRNIDOM_Element& execute) const {
  if (m_queryFeedbacks.empty() && m_severityLevel == kQOSSeverityUnset) return;
  TRNIDOM_Element queryFeedback = appendElement(execute, STR_queryFeedback);
  if (m_severityLevel != kQOSSeverityUnset) queryFeedback.setAttribute(STR_severityLevel, ToString(m_severityLevel));
  for (const EQueryFeedback feedback : m_queryFeedbacks)
    appendElement(queryFeedback, STR_property, STR_name, ToString(feedback));
}
