#include <dxmd/queryframework/QFJoinQueryHelper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

QFJoinQueryHelper::QFJoinQueryHelper(const I18NString& name, const I18NString& leftQueryRef,
                                     const I18NString& leftCardinality, const I18NString& rightQueryRef,
                                     const I18NString& rightCardinality, const I18NString& joinFilterExpression)
    : QFQueryHelper(name),
      m_leftQueryRef(leftQueryRef),
      m_leftCardinality(leftCardinality),
      m_rightQueryRef(rightQueryRef),
      m_rightCardinality(rightCardinality),
      m_joinFilterExpression(joinFilterExpression) {}

QFJoinQueryHelper::~QFJoinQueryHelper() = default;

void QFJoinQueryHelper::SetSource(TRNIDOM_Element& query) const {
  const TRNIDOM_Element source = appendElement(query, STR_source);
  const TRNIDOM_Element joinOperation = appendElement(source, STR_joinOperation);
  const TRNIDOM_Element joinOperands = appendElement(joinOperation, STR_joinOperands);

  const TRNIDOM_Element left = appendElement(joinOperands, STR_joinOperand, STR_cardinality, m_leftCardinality);
  appendElement(left, STR_queryRef, STR_refQuery, m_leftQueryRef);
  const TRNIDOM_Element right = appendElement(joinOperands, STR_joinOperand, STR_cardinality, m_rightCardinality);
  appendElement(right, STR_queryRef, STR_refQuery, m_rightQueryRef);

  const TRNIDOM_Element joinFilter = appendElement(joinOperation, STR_joinFilter);
  appendElementWithText(joinFilter, STR_filterExpression, m_joinFilterExpression);
}
