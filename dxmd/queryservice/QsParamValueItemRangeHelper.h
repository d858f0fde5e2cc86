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
///
/// An item is used, with those in it, by one thread at a time.
class DXMD_API QsParamValueItemRangeHelper : public QsParamValueItemHelper {
 public:
  /// A range without bounds.
  QsParamValueItemRangeHelper();
  ~QsParamValueItemRangeHelper() override;

  /// The lower bound, or null; owned by the range and valid until set again. It is read from the first "bus:start" of
  /// the item taken, else from the first "start", at any depth.
  QsParamValueItemSimpleHelper* GetStart();

  /// The upper bound, from "bus:end" or "end", in the same way.
  QsParamValueItemSimpleHelper* GetEnd();

  /// Replaces the lower bound and returns the new one, owned by the range.
  /// @param use        the bound's value.
  /// @param inclusive  non-zero when that value itself belongs to the range.
  QsParamValueItemSimpleHelper* SetStart(const I18NString& use, int inclusive);

  /// Replaces the upper bound in the same way.
  QsParamValueItemSimpleHelper* SetEnd(const I18NString& use, int inclusive);

  /// Writes the bounds that are there; the range's own inclusive flag is not written.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// `kValueItemRange`.
  EValueItem GetType() const override { return kValueItemRange; }

  /// By the bounds set or read so far. Without an end, "bus:unboundedEndParmValueItem", with or without a start.
  const I18NString& GetTarvoType() const override;

 private:
  std::unique_ptr<QsParamValueItemSimpleHelper> readBound(const I18NString& busName, const I18NString& name) const;

  std::unique_ptr<QsParamValueItemSimpleHelper> m_start;
  std::unique_ptr<QsParamValueItemSimpleHelper> m_end;
};

#endif
