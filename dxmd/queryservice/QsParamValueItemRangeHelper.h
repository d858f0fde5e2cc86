#ifndef DXMD_QUERYSERVICE_QSPARAMVALUEITEMRANGEHELPER_H
#define DXMD_QUERYSERVICE_QSPARAMVALUEITEMRANGEHELPER_H

#include <memory>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryservice/QsParamValueItemHelper.h>
#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>

/// A range of values, bounded on either side, on both, or on none.
///
/// A bound is read from the item taken at the first call of its getter; until then the range is written, and its type
/// told, without it.
class DXMD_API QsParamValueItemRangeHelper : public QsParamValueItemHelper {
 public:
  QsParamValueItemRangeHelper();
  ~QsParamValueItemRangeHelper() override;

  /// The bounds, or null; owned by the range and valid until set again. A bound goes by "bus:start" or "start",
  /// "bus:end" or "end".
  QsParamValueItemSimpleHelper* GetStart();
  QsParamValueItemSimpleHelper* GetEnd();

  /// Replace a bound and return the new one.
  QsParamValueItemSimpleHelper* SetStart(const I18NString& use, int inclusive);
  QsParamValueItemSimpleHelper* SetEnd(const I18NString& use, int inclusive);

  /// Writes the bounds that are there; the range's own inclusive flag is not written.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  EValueItem GetType() const override { return kValueItemRange; }

  /// Without an end, "bus:unboundedEndParmValueItem", whether there is a start or not.
  const I18NString& GetTarvoType() const override;

 private:
  std::unique_ptr<QsParamValueItemSimpleHelper> readBound(const I18NString& busName, const I18NString& name) const;

  std::unique_ptr<QsParamValueItemSimpleHelper> m_start;
  std::unique_ptr<QsParamValueItemSimpleHelper> m_end;
};

#endif
