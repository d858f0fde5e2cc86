#ifndef DXMD_QUERYSERVICE_QSPARAMVALUEITEMNULLHELPER_H
#define DXMD_QUERYSERVICE_QSPARAMVALUEITEMNULLHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/queryservice/QsParamValueItemHelper.h>

/// The null value: an "item" that carries nothing but "xsi:nil" = "true".
class DXMD_API QsParamValueItemNullHelper : public QsParamValueItemHelper {
 public:
  QsParamValueItemNullHelper();
  ~QsParamValueItemNullHelper() override;

  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  EValueItem GetType() const override { return kValueItemNull; }
  const I18NString& GetTarvoType() const override { return ToString(kTarvoItemNil); }
};

#endif
