#ifndef DXMD_QUERYFRAMEWORK_QFJOINQUERYHELPER_H
#define DXMD_QUERYFRAMEWORK_QFJOINQUERYHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFQueryHelper.h>

/// A query whose source joins two queries of the same command, which creates and owns it:
/// `QFExecuteCommandHelper::AddJoinQuery`.
///
/// Threads: as QFQueryHelper.
class DXMD_API QFJoinQueryHelper : public QFQueryHelper {
 public:
  /// @param name                  the query's own name.
  /// @param leftQueryRef          name of the left operand's query: "refQuery".
  /// @param leftCardinality       "cardinality" of the left operand, such as "0:N"; any text.
  /// @param rightQueryRef         name of the right operand's query.
  /// @param rightCardinality      "cardinality" of the right operand.
  /// @param joinFilterExpression  on what to join: the text of "filterExpression".
  QFJoinQueryHelper(const I18NString& name, const I18NString& leftQueryRef, const I18NString& leftCardinality,
                    const I18NString& rightQueryRef, const I18NString& rightCardinality,
                    const I18NString& joinFilterExpression);
  ~QFJoinQueryHelper() override;

 protected:
  /// Writes "joinOperation" with its two operands and "joinFilter"; the query reference is not used.
  void SetSource(TRNIDOM_Element& query) const override;

 private:
  I18NString m_leftQueryRef;
  I18NString m_leftCardinality;
  I18NString m_rightQueryRef;
  I18NString m_rightCardinality;
  I18NString m_joinFilterExpression;
};

#endif
