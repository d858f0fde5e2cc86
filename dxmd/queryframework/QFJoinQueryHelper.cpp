#include <dxmd/queryframework/QFJoinQueryHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

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
  TRNIDOM_Element source = TRNIDOM_Helper::findOrCreateElement(query, STR_source);
  TRNIDOM_Element joinOperation = TRNIDOM_Helper::findOrCreateElement(source, STR_joinOperation);
  TRNIDOM_Element joinOperands = TRNIDOM_Helper::findOrCreateElement(joinOperation, STR_joinOperands);

  TRNIDOM_Element left = TRNIDOM_Helper::findOrCreateElementWithAttribute(joinOperands, STR_joinOperand,
                                                                          STR_cardinality, m_leftCardinality);
  TRNIDOM_Helper::findOrCreateElementWithAttribute(left, STR_queryRef, STR_refQuery, m_leftQueryRef);

  // Always a second operand, even when both cardinalities are the same.
  TRNIDOM_Element right = appendElement(joinOperands, STR_joinOperand, STR_cardinality, m_rightCardinality);
  TRNIDOM_Helper::findOrCreateElementWithAttribute(right, STR_queryRef, STR_refQuery, m_rightQueryRef);

  TRNIDOM_Element joinFilter = TRNIDOM_Helper::findOrCreateElement(joinOperation, STR_joinFilter);
  TRNIDOM_Helper::findOrCreateElementWithText(joinFilter, STR_filterExpression, m_joinFilterExpression);
}
