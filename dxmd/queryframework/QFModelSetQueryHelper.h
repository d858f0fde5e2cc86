#ifndef DXMD_QUERYFRAMEWORK_QFMODELSETQUERYHELPER_H
#define DXMD_QUERYFRAMEWORK_QFMODELSETQUERYHELPER_H

#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFQueryHelper.h>

/// A query whose source combines two queries by a set operation. The two must be named "leftQuery" and "rightQuery".
/// `QFExecuteCommandHelper::AddModelSetQuery` creates and owns it.
///
/// Threads: as QFQueryHelper.
class DXMD_API QFModelSetQueryHelper : public QFQueryHelper {
 public:
  /// @param name          the query's own name.
  /// @param projection    names of the query items to keep, in order.
  /// @param setOperation  the operation: "setOperation"; any text.
  /// @param duplicates    what becomes of equal rows: "duplicates"; any text.
  QFModelSetQueryHelper(const I18NString& name, std::vector<I18NString> projection, const I18NString& setOperation,
                        const I18NString& duplicates);
  ~QFModelSetQueryHelper() override;

 protected:
  /// Writes "queryOperation" with its two query references and the projection list, equal entries once; the query
  /// reference is not used.
  void SetSource(TRNIDOM_Element& query) const override;

 private:
  I18NString m_setOperation;
  I18NString m_duplicates;
  std::vector<I18NString> m_projection;
};

#endif
