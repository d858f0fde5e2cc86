#ifndef DXMD_QUERYSERVICE_QSPARAMVALUEITEMNULLHELPER_H
#define DXMD_QUERYSERVICE_QSPARAMVALUEITEMNULLHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryservice/QsParamValueItemHelper.h>

/// The null value: an "item" that carries nothing but "xsi:nil" = "true".
///
/// An item is used by one thread at a time.
class DXMD_API QsParamValueItemNullHelper : public QsParamValueItemHelper {
 public:
  /// An item that says that there is no value.
  QsParamValueItemNullHelper();
  ~QsParamValueItemNullHelper() override;

  /// Hands back a new "item" without "xsi:type".
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// `kValueItemNull`.
  EValueItem GetType() const override { return kValueItemNull; }

  /// "xsi:nil", which is no type: the item is marked by an attribute of that name instead.
  const I18NString& GetTarvoType() const override { return ToString(kTarvoItemNil); }
};

#endif
