// Holds the query with its records, data items and detail filters, which have little code of their own.

#include <dxmd/queryframework/QFQueryHelper.h>

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

#include <trn/TRNUtConvert.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

// The search that makes names unique: the name itself, then followed by 1, 2 and so on, until one is not taken. After
// as many attempts as there are items the last candidate is not looked at.
template <typename IsTaken>
I18NString firstFree(const I18NString& name, unsigned long number, std::size_t items, IsTaken isTaken) {
  for (;; ++number) {
    I18NString candidate = number == 0 ? name : name + TRNUtConvert::ulongCvt(number, 1, '0', 0, '+', '-');
    if (number >= items || !isTaken(number, candidate)) return candidate;
  }
}

constexpr EnumTexts<QFQueryDataItem::EAggregate, 9> kAggregates{
    {{QFQueryDataItem::kAggregateNone, STR_none},
     {QFQueryDataItem::kAggregateAutomatic, STR_automatic},
     {QFQueryDataItem::kAggregateSummarize, STR_summarize},
     {QFQueryDataItem::kAggregateTotal, STR_total},
     {QFQueryDataItem::kAggregateMinimum, STR_minimum},
     {QFQueryDataItem::kAggregateMaximum, STR_maximum},
     {QFQueryDataItem::kAggregateAverage, STR_average},
     {QFQueryDataItem::kAggregateCount, STR_count},
     {QFQueryDataItem::kAggregateCalculated, STR_calculated}}};

constexpr EnumTexts<QFQueryDataItem::ESort, 3> kSorts{{{QFQueryDataItem::kSortNone, STR_none},
                                                       {QFQueryDataItem::kSortAscending, STR_ascending},
                                                       {QFQueryDataItem::kSortDescending, STR_descending}}};

constexpr EnumTexts<QFQueryDetailFilter::EUse, 3> kUses{{{QFQueryDetailFilter::kUseOptional, STR_optional},
                                                         {QFQueryDetailFilter::kUseRequired, STR_required},
                                                         {QFQueryDetailFilter::kUseProhibited, STR_prohibited}}};

constexpr EnumTexts<QFQueryHelper::EQueryHint, 4> kHints{
    {{QFQueryHelper::kQueryHintAvoidZeroDiv, STR_avoidZeroDiv},
     {QFQueryHelper::kQueryHintAutoSort, STR_autoSort},
     {QFQueryHelper::kQueryHintMeasureRefiner, STR_measureRefiner},
     {QFQueryHelper::kQueryHintMaxRowsRetrieved, STR_maxRowsRetrieved}}};

void makeDataItem(const TRNIDOM_Element& selection, const QFQueryDataItem& item) {
  TRNIDOM_Element dataItem = appendElement(selection, STR_dataItem, STR_name, item.name);
  if (item.sort != 0) dataItem.setAttribute(STR_sort, QFQueryDataItem::ToString(item.sort));
  if (item.aggregate != 0) dataItem.setAttribute(STR_aggregate, QFQueryDataItem::ToString(item.aggregate));
  if (item.rollupAggregate != 0)
    dataItem.setAttribute(STR_rollupAggregate, QFQueryDataItem::ToString(item.rollupAggregate));
  appendElementWithText(dataItem, STR_expression, item.expression);
  if (!item.tag.empty()) appendElementWithText(dataItem, STR_tag, item.tag);
}

}  // namespace

const I18NString& QFQueryDataItem::ToString(EAggregate aggregate) {
  return kAggregates.text(aggregate);
}

const I18NString& QFQueryDataItem::ToString(ESort sort) {
  return kSorts.text(sort);
}

const I18NString& QFQueryDetailFilter::ToString(EUse use) {
  return kUses.text(use);
}

const I18NString& QFQueryHelper::ToString(EQueryHint hint) {
  return kHints.text(hint);
}

QFQueryHelper::QFQueryHelper(const I18NString& name) : m_name(name), m_hints{{kQueryHintAvoidZeroDiv, STR_true}} {}

QFQueryHelper::~QFQueryHelper() = default;

void QFQueryHelper::SetAutoSummary(int on) {
  m_autoSummary = on;
}

QFQueryDataItem* QFQueryHelper::AddDataItem(const I18NString& name, const I18NString& expression) {
  auto item = std::make_unique<QFQueryDataItem>();
  item->name = makeUnique(name);
  item->expression = expression;
  return m_dataItems.adopt(std::move(item));
}

// What MakeUnique does. The candidates that were taken before are remembered with the item that bears each, which is
// looked at again, since the caller may have renamed it.
I18NString QFQueryHelper::makeUnique(const I18NString& name) {
  std::vector<Candidate> unremembered;
  const auto found = m_takenNames.find(name);
  std::vector<Candidate>& taken = found != m_takenNames.end() ? found->second : unremembered;
  std::size_t number = 0;
  while (number < taken.size() && taken[number].bearer->name == taken[number].name) ++number;

  const std::vector<QFQueryDataItem*>& items = m_dataItems.items();
  I18NString result = firstFree(name, number, items.size(), [&](std::size_t attempt, const I18NString& candidate) {
    // The last item added is the likeliest to bear it.
    const auto bearer = std::find_if(items.rbegin(), items.rend(),
                                     [&](const QFQueryDataItem* item) { return item->name == candidate; });
    if (bearer == items.rend()) return false;
    taken.resize(attempt);
    taken.push_back({candidate, *bearer});
    return true;
  });
  if (!unremembered.empty()) m_takenNames.emplace(name, std::move(unremembered));
  return result;
}

QFQueryDetailFilter* QFQueryHelper::AddDetailFilter(const I18NString& expression, QFQueryDetailFilter::EUse use) {
  return m_detailFilters.adopt(std::make_unique<QFQueryDetailFilter>(QFQueryDetailFilter{expression, use}));
}

void QFQueryHelper::AddHint(EQueryHint hint, const I18NString& value) {
  m_hints[hint] = value;
}

void QFQueryHelper::SetQueryRef(const I18NString& queryName) {
  m_queryRef = queryName;
}

void QFQueryHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& element) const {
  element = doc.createElement(STR_query);
  element.setAttribute(STR_name, m_name);
  SetSource(element);

  const TRNIDOM_Element selection = appendElement(element, STR_selection, STR_autoSummary, toText(m_autoSummary != 0));
  for (const QFQueryDataItem* item : m_dataItems) makeDataItem(selection, *item);

  if (!m_detailFilters.empty()) {
    const TRNIDOM_Element detailFilter = appendElement(element, STR_detailFilter);
    for (const QFQueryDetailFilter* item : m_detailFilters) {
      const TRNIDOM_Element filter =
          appendElement(detailFilter, STR_filter, STR_use, QFQueryDetailFilter::ToString(item->use));
      appendElementWithText(filter, STR_filterExpression, item->expression);
    }
  }

  if (!m_hints.empty()) {
    const TRNIDOM_Element queryHints = appendElement(element, STR_queryHints);
    for (const auto& [hint, value] : m_hints) appendValueElement(queryHints, ToString(hint), value);
  }
}

void QFQueryHelper::SetSource(TRNIDOM_Element& query) const {
  const TRNIDOM_Element source = appendElement(query, STR_source);
  if (m_queryRef.empty())
    appendElement(source, STR_model);
  else
    appendElement(source, STR_queryRef, STR_refQuery, m_queryRef);
}

void MakeUnique(const std::vector<QFQueryDataItem*>& items, const I18NString& name, I18NString& result) {
  std::set<I18NString> names;
  result = firstFree(name, 0, items.size(), [&](unsigned long number, const I18NString& candidate) {
    // Most names are free at once, and finding that out needs no set.
    if (number == 0)
      return std::any_of(items.begin(), items.end(),
                         [&](const QFQueryDataItem* item) { return item->name == candidate; });
    if (names.empty())
      for (const QFQueryDataItem* item : items) names.insert(item->name);
    return names.count(candidate) != 0;
  });
}
