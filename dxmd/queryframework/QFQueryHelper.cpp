#include <dxmd/queryframework/QFQueryHelper.h>

#include <algorithm>
#include <memory>
#include <unordered_set>
#include <utility>

#include <trn/TRNUtConvert.h>
#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/EnumTexts.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

namespace {

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

void makeDataItem(TRNIDOM_Element& selection, const QFQueryDataItem& item) {
  TRNIDOM_Element dataItem = appendElement(selection, STR_dataItem, STR_name, item.name);
  if (item.sort != 0) dataItem.setAttribute(STR_sort, QFQueryDataItem::ToString(item.sort));
  if (item.aggregate != 0) dataItem.setAttribute(STR_aggregate, QFQueryDataItem::ToString(item.aggregate));
  if (item.rollupAggregate != 0)
    dataItem.setAttribute(STR_rollupAggregate, QFQueryDataItem::ToString(item.rollupAggregate));
  TRNIDOM_Helper::findOrCreateElementWithText(dataItem, STR_expression, item.expression);
  if (!item.tag.empty()) TRNIDOM_Helper::findOrCreateElementWithText(dataItem, STR_tag, item.tag);
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
  MakeUnique(m_dataItems.items(), name, item->name);
  item->expression = expression;
  return m_dataItems.adopt(std::move(item));
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

  TRNIDOM_Element selection = TRNIDOM_Helper::findOrCreateElement(element, STR_selection);
  selection.setAttribute(STR_autoSummary, toText(m_autoSummary != 0));
  for (const QFQueryDataItem* item : m_dataItems) makeDataItem(selection, *item);

  if (!m_detailFilters.empty()) {
    TRNIDOM_Element detailFilter = TRNIDOM_Helper::findOrCreateElement(element, STR_detailFilter);
    for (const QFQueryDetailFilter* item : m_detailFilters) {
      TRNIDOM_Element filter =
          appendElement(detailFilter, STR_filter, STR_use, QFQueryDetailFilter::ToString(item->use));
      TRNIDOM_Helper::findOrCreateElementWithText(filter, STR_filterExpression, item->expression);
    }
  }

  if (!m_hints.empty()) {
    TRNIDOM_Element queryHints = appendElement(element, STR_queryHints);
    for (const auto& [hint, value] : m_hints) appendValueElement(queryHints, ToString(hint), value);
  }
}

void QFQueryHelper::SetSource(TRNIDOM_Element& query) const {
  TRNIDOM_Element source = TRNIDOM_Helper::findOrCreateElement(query, STR_source);
  if (m_queryRef.empty()) {
    TRNIDOM_Helper::findOrCreateElement(source, STR_model);
  } else {
    TRNIDOM_Helper::findOrCreateElement(source, STR_queryRef).setAttribute(STR_refQuery, m_queryRef);
  }
}

void MakeUnique(const std::vector<QFQueryDataItem*>& items, const I18NString& name, I18NString& result) {
  I18NString candidate = name;
  const auto bearsCandidate = [&](const QFQueryDataItem* item) { return item->name == candidate; };
  if (std::any_of(items.begin(), items.end(), bearsCandidate)) {
    // Names in use are gathered only now: most names are unique at once.
    std::unordered_set<I18NString> names;
    for (const QFQueryDataItem* item : items) names.insert(item->name);
    for (unsigned long counter = 0; counter < items.size() && names.count(candidate) != 0;) {
      ++counter;
      candidate = name + TRNUtConvert::ulongCvt(counter, 1, '0', 0, '+', '-');
    }
  }
  result = std::move(candidate);
}
