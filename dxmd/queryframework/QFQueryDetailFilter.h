#ifndef DXMD_QUERYFRAMEWORK_QFQUERYDETAILFILTER_H
#define DXMD_QUERYFRAMEWORK_QFQUERYDETAILFILTER_H

#include <trn/I18NString.h>

#include <dxmd/core/Export.h>

/// One detail filter of a query: a "filter" element. `QFQueryHelper::AddDetailFilter` makes and owns it.
struct DXMD_API QFQueryDetailFilter {
  /// Whether the filter applies.
  enum EUse : int {
    kUseUnknown = 0,    ///< written as "unknown"
    kUseOptional = 1,   ///< "optional"
    kUseRequired = 2,   ///< "required"
    kUseProhibited = 3  ///< "prohibited"
  };

  /// The text of "use"; "unknown" for any value without one.
  static const I18NString& ToString(EUse use);

  I18NString expression;   ///< text of "filterExpression", written also when empty
  EUse use = kUseUnknown;  ///< "use", always written
};

#endif
