#ifndef DXMD_QUERYFRAMEWORK_QFQUERYDATAITEM_H
#define DXMD_QUERYFRAMEWORK_QFQUERYDATAITEM_H

#include <trn/I18NString.h>

#include <dxmd/core/Export.h>

/// One data item of a query's selection. The caller completes the record that `QFQueryHelper::AddDataItem` returns.
struct DXMD_API QFQueryDataItem {
  /// How values are aggregated; 0 is unset and writes no attribute.
  enum EAggregate : int {
    kAggregateUnknown = 0,
    kAggregateNone = 1,
    kAggregateAutomatic = 2,
    kAggregateSummarize = 3,
    kAggregateTotal = 4,
    kAggregateMinimum = 5,
    kAggregateMaximum = 6,
    kAggregateAverage = 7,
    kAggregateCount = 8,
    kAggregateCalculated = 9
  };

  /// How rows are sorted; 0 is unset and writes no attribute.
  enum ESort : int { kSortUnknown = 0, kSortNone = 1, kSortAscending = 2, kSortDescending = 3 };

  /// The XML texts; "unknown" for any value without one.
  static const I18NString& ToString(EAggregate aggregate);
  static const I18NString& ToString(ESort sort);

  I18NString name;  ///< unique within its query when added
  I18NString expression;
  I18NString tag;  ///< written unless empty
  ESort sort = kSortUnknown;
  EAggregate aggregate = kAggregateUnknown;
  EAggregate rollupAggregate = kAggregateUnknown;
};

#endif
