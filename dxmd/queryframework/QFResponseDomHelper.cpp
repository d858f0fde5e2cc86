#include <dxmd/queryframework/QFResponseDomHelper.h>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/EnumTexts.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

const I18NString STR_modelDSName("modelDSName");
const I18NString STR_collationSequenceName("collationSequenceName");
const I18NString STR_collationSequenceLevel("collationSequenceLevel");
const I18NString STR_originalCollationSequenceName("originalCollationSequenceName");
const I18NString STR_originalEncodingName("originalEncodingName");
const I18NString STR_v("v");

constexpr EnumTexts<QFResponseDomHelper::EColumnProp, 11> kColumnProps{
    {{QFResponseDomHelper::kColumnPropName, STR_name},
     {QFResponseDomHelper::kColumnPropSqlName, STR_sqlName},
     {QFResponseDomHelper::kColumnPropType, STR_type},
     {QFResponseDomHelper::kColumnPropScale, STR_scale},
     {QFResponseDomHelper::kColumnPropLength, STR_length},
     {QFResponseDomHelper::kColumnPropNullsAllowed, STR_nullsAllowed},
     {QFResponseDomHelper::kColumnPropPrecision, STR_precision},
     {QFResponseDomHelper::kColumnPropCollationSequenceName, STR_collationSequenceName},
     {QFResponseDomHelper::kColumnPropCollationSequenceLevel, STR_collationSequenceLevel},
     {QFResponseDomHelper::kColumnPropOriginalCollationSequenceName, STR_originalCollationSequenceName},
     {QFResponseDomHelper::kColumnPropOriginalEncodingName, STR_originalEncodingName}}};

}  // namespace

QFResponseDomHelper::QFResponseDomHelper() = default;

QFResponseDomHelper::~QFResponseDomHelper() = default;

void QFResponseDomHelper::doTake(TRNIDOM_Element& element) {
  m_responseElement = element;
}

bool QFResponseDomHelper::GetQueryFeedback(QFExecuteCommandHelper::EQueryFeedback kind, I18NString& value) const {
  return ExtractRetrieveProperty(QFExecuteCommandHelper::ToString(kind), value);
}

bool QFResponseDomHelper::ExtractRetrieveProperty(const I18NString& name, I18NString& value) const {
  // Locals are spelt as the assertions' texts have them. That what has a tag name is an element cannot fail.
  const TRNIDOM_NodeList elmRevtiveProps = m_responseElement.getElementsByTagName(STR_queryFeedbackResult);
  if (elmRevtiveProps.item(0).isNull()) return false;
  TRN_ASSERT(elmRevtiveProps.item(0).getNodeType() == TRNIDOM_Node::ELEMENT_NODE);

  for (const TRNIDOM_Element& nodeCurrent : DescendantElements(elmRevtiveProps.item(0), STR_property)) {
    TRN_ASSERT(nodeCurrent.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
    if (nodeCurrent.getAttribute(STR_name) != name || !nodeCurrent.hasChildNodes()) continue;
    value = nodeCurrent.getFirstChild().getNodeValue();
    return true;
  }
  return false;
}

void QFResponseDomHelper::GetResponseDataSources(std::vector<DataSource>& sources) const {
  // Spelt as the assertions' texts have it, spaces included.
  const TRNIDOM_NodeList elmExtraProps = m_responseElement.getElementsByTagName(STR_queryFeedbackResult);
  if (elmExtraProps.item(0).isNull()) return;
  TRN_ASSERT(elmExtraProps.item(0).getNodeType() == TRNIDOM_Node::ELEMENT_NODE);

  const TRNIDOM_NodeList elmDSs = TRNIDOM_Element(elmExtraProps.item(0)).getElementsByTagName(STR_connection);
  for (std::size_t idx = 0; idx < elmDSs.getLength(); ++idx) {
    TRN_ASSERT(elmDSs.item( idx ).getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
    const TRNIDOM_Element connection = elmDSs.item(idx);
    sources.push_back({connection.getAttribute(STR_value), connection.getAttribute(STR_catalog),
                       connection.getAttribute(STR_schema), connection.getAttribute(STR_modelDSName)});
  }
}

void QFResponseDomHelper::GetColumnList(std::vector<std::map<EColumnProp, I18NString>>& columns) const {
  // Spelt as the assertion's text has it, spaces included.
  const TRNIDOM_Node columnList = m_responseElement.getElementsByTagName(STR_columnList).item(0);
  const TRNIDOM_NodeList columnsList = columnList.getChildNodes();
  for (std::size_t idx = 0; idx < columnsList.getLength(); ++idx) {
    TRN_ASSERT(columnsList.item( idx ).getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
    const TRNIDOM_Element column = columnsList.item(idx);
    std::map<EColumnProp, I18NString> properties;
    for (const auto& [property, attribute] : kColumnProps) properties[property] = column.getAttribute(attribute.text());
    columns.push_back(std::move(properties));
  }
}

TRNIDOM_Element QFResponseDomHelper::GetFirstResultSetRow() const {
  // Spelt as the assertion's text has it.
  const TRNIDOM_NodeList listRsltData = m_responseElement.getElementsByTagName(STR_resultData);
  if (listRsltData.item(0).isNull()) return TRNIDOM_Element();
  TRN_ASSERT(listRsltData.item(0).getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  return TRNIDOM_Helper::findChildElement(listRsltData.item(0), STR_row);
}

TRNIDOM_Element QFResponseDomHelper::GetNextResultSetRow(TRNIDOM_Element row) const {
  return firstNamed(row.getNextSibling(), STR_row);
}

void QFResponseDomHelper::GetResultSetRowValues(TRNIDOM_Element row, std::vector<I18NString>& values) const {
  for (const TRNIDOM_Element& value : ChildElements(row, STR_value)) values.push_back(value.getAttribute(STR_v));
}
