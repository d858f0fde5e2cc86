#ifndef DXMD_QUERYFRAMEWORK_QFQUERYHELPER_H
#define DXMD_QUERYFRAMEWORK_QFQUERYHELPER_H

#include <map>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/queryframework/QFQueryDataItem.h>
#include <dxmd/queryframework/QFQueryDetailFilter.h>

/// A plain query: its source, its selection of data items, its detail filters and its hints.
///
/// Written: build and hand back, the "query" element. Nothing is read. A query is created by
/// `QFExecuteCommandHelper::AddQuery`, which owns it; its records live as long as the query.
///
/// A query is used, with its records, by one thread at a time, and not while its command is written.
class DXMD_API QFQueryHelper : public ActionHandlerBase {
 public:
  /// Advice to the query engine. Every query carries "avoidZeroDiv" = "true" unless the caller overwrites it.
  enum EQueryHint : int {
    kQueryHintAvoidZeroDiv = 1,     ///< "avoidZeroDiv": no division by zero
    kQueryHintAutoSort = 2,         ///< "autoSort"
    kQueryHintMeasureRefiner = 3,   ///< "measureRefiner"
    kQueryHintMaxRowsRetrieved = 4  ///< "maxRowsRetrieved": how many rows at most
  };

  /// The hint's element name; "unknown" for any other value.
  static const I18NString& ToString(EQueryHint hint);

  /// A query of that name, which other queries and the result definition refer to. It reads from the model.
  explicit QFQueryHelper(const I18NString& name);
  ~QFQueryHelper() override;

  /// The query's name; valid as long as the query.
  const I18NString& GetName() const { return m_name; }

  /// Whether the service summarises by itself, the "autoSummary" of "selection": off for 0, as at first, else on.
  void SetAutoSummary(int on);

  /// Appends a data item whose name is made unique among those present, as MakeUnique does, and returns it for the
  /// caller to complete. It stays owned by the query. A caller that renames an item afterwards sees to its uniqueness
  /// itself; later additions respect the new name.
  QFQueryDataItem* AddDataItem(const I18NString& name, const I18NString& expression);

  /// The data items in the order added; they stay owned by the query.
  const std::vector<QFQueryDataItem*>& GetDataItems() const { return m_dataItems.items(); }

  /// Appends a detail filter and returns it. It stays owned by the query.
  QFQueryDetailFilter* AddDetailFilter(const I18NString& expression, QFQueryDetailFilter::EUse use);

  /// The detail filters in the order added; they stay owned by the query.
  const std::vector<QFQueryDetailFilter*>& GetDetailFilters() const { return m_detailFilters.items(); }

  /// Sets a hint, replacing its former value: the "value" of the element that the hint is named after.
  void AddHint(EQueryHint hint, const I18NString& value);

  /// Names the query that this one reads from; empty means the model.
  void SetQueryRef(const I18NString& queryName);

  /// Hands back a new "query". Public for the command that owns the query.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& element) const override;

 protected:
  /// Writes "source" under "query": "model", or "queryRef" when a query reference is set.
  virtual void SetSource(TRNIDOM_Element& query) const;

 private:
  // A name that was tried, and an item that bore it then.
  struct Candidate {
    I18NString name;
    const QFQueryDataItem* bearer;
  };

  I18NString makeUnique(const I18NString& name);

  I18NString m_name;
  int m_autoSummary = 0;
  dxmd::OwnedList<QFQueryDataItem> m_dataItems;
  std::map<I18NString, std::vector<Candidate>> m_takenNames;  // by the name asked for, in the order tried
  dxmd::OwnedList<QFQueryDetailFilter> m_detailFilters;
  std::map<EQueryHint, I18NString> m_hints;
  I18NString m_queryRef;
};

/// Makes a name that no item bears, in `result`: the name itself, else the name followed by 1, 2 and so on. After as
/// many attempts as there are items the last candidate is taken as it is.
/// @relates QFQueryHelper
DXMD_API void MakeUnique(const std::vector<QFQueryDataItem*>& items, const I18NString& name, I18NString& result);

#endif
