#ifndef DXMD_QUERYFRAMEWORK_QFQUERYDATAITEM_H
#define DXMD_QUERYFRAMEWORK_QFQUERYDATAITEM_H

#include <trn/I18NString.h>

#include <dxmd/core/Export.h>

/// One data item of a query's selection: a "dataItem" element. The caller completes the record that
/// `QFQueryHelper::AddDataItem` returns.
struct DXMD_API QFQueryDataItem {
  /// How values are aggregated; 0 is unset and writes no attribute.
  enum EAggregate : int {
    kAggregateUnknown = 0,    ///< no attribute is written
    kAggregateNone = 1,       ///< "none"
    kAggregateAutomatic = 2,  ///< "automatic"
    kAggregateSummarize = 3,  ///< "summarize"
    kAggregateTotal = 4,      ///< "total"
    kAggregateMinimum = 5,    ///< "minimum"
    kAggregateMaximum = 6,    ///< "maximum"
    kAggregateAverage = 7,    ///< "average"
    kAggregateCount = 8,      ///< "count"
    kAggregateCalculated = 9  ///< "calculated"
  };

  /// How rows are sorted; 0 is unset and writes no attribute.
  enum ESort : int {
    kSortUnknown = 0,    ///< no attribute is written
    kSortNone = 1,       ///< "none"
    kSortAscending = 2,  ///< "ascending"
    kSortDescending = 3  ///< "descending"
  };

  /// The text of "aggregate" and "rollupAggregate"; "unknown" for any value without one.
  static const I18NString& ToString(EAggregate aggregate);

  /// The text of "sort"; "unknown" for any value without one.
  static const I18NString& ToString(ESort sort);

  I18NString name;                                 ///< "name", unique within its query when added
  I18NString expression;                           ///< text of "expression", written also when empty
  I18NString tag;                                  ///< text of "tag"; written unless empty
  ESort sort = kSortUnknown;                       ///< "sort"
  EAggregate aggregate = kAggregateUnknown;        ///< "aggregate", of the item's own values
  EAggregate rollupAggregate = kAggregateUnknown;  ///< "rollupAggregate", of values already aggregated
};

#endif
