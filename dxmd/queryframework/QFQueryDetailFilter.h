#ifndef DXMD_QUERYFRAMEWORK_QFQUERYDETAILFILTER_H
#define DXMD_QUERYFRAMEWORK_QFQUERYDETAILFILTER_H

#include <trn/I18NString.h>

#include <dxmd/core/Export.h>

/// One detail filter of a query.
struct DXMD_API QFQueryDetailFilter {
  /// Whether the filter applies.
  enum EUse : int { kUseUnknown = 0, kUseOptional = 1, kUseRequired = 2, kUseProhibited = 3 };

  /// The XML text; "unknown" for any value without one.
  static const I18NString& ToString(EUse use);

  I18NString expression;
  EUse use = kUseUnknown;
};

#endif
