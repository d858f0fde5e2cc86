#include <dxmd/queryframework/QFQueryHelper.h>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/queryframework/QFJoinQueryHelper.h>
#include <dxmd/queryframework/QFModelSetQueryHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

std::string sourceOf(const QFQueryHelper& query) {
  return xmlOf(TRNIDOM_Helper::findChildElement(madeElement(query), "source"));
}

std::string namesAfterAdding(std::initializer_list<const char*> names) {
  QFQueryHelper query("q");
  std::string all;
  for (const char* name : names) all += query.AddDataItem(name, "")->name.toUtf8() + " ";
  return all;
}

}  // namespace

TEST(QFQueryHelper, NewQueryReadsTheModelAndAvoidsZeroDivision) {
  expectXml(R"(<query name="Q"><source><model/></source><selection autoSummary="false"/>)"
            R"(<queryHints><avoidZeroDiv value="true"/></queryHints></query>)",
            made(QFQueryHelper("Q")));
}

TEST(QFQueryHelper, WritesItemsFiltersAndHintsAsGiven) {
  QFQueryHelper query("Q");
  query.SetAutoSummary(-1);
  query.SetQueryRef("Other");
  QFQueryDataItem* full = query.AddDataItem("full", "[x]");
  full->tag = "t";
  full->sort = QFQueryDataItem::kSortDescending;
  full->aggregate = QFQueryDataItem::kAggregateTotal;
  full->rollupAggregate = static_cast<QFQueryDataItem::EAggregate>(10);
  query.AddDataItem("bare", "");
  query.AddDetailFilter("[x] > 1", QFQueryDetailFilter::kUseRequired);
  query.AddDetailFilter("[x] > 1", QFQueryDetailFilter::kUseUnknown);
  query.AddHint(QFQueryHelper::kQueryHintMaxRowsRetrieved, "10");
  query.AddHint(QFQueryHelper::kQueryHintAvoidZeroDiv, "false");
  expectXml(R"(<query name="Q"><source><queryRef refQuery="Other"/></source><selection autoSummary="true">)"
            R"(<dataItem aggregate="total" name="full" rollupAggregate="unknown" sort="descending">)"
            R"(<expression>[x]</expression><tag>t</tag></dataItem>)"
            R"(<dataItem name="bare"><expression/></dataItem></selection>)"
            R"(<detailFilter><filter use="required"><filterExpression>[x] &gt; 1</filterExpression></filter>)"
            R"(<filter use="unknown"><filterExpression>[x] &gt; 1</filterExpression></filter></detailFilter>)"
            R"(<queryHints><avoidZeroDiv value="false"/><maxRowsRetrieved value="10"/></queryHints></query>)",
            made(query));
}

TEST(QFQueryHelper, EveryEnumeratorHasItsText) {
  const auto text = [](auto value) { return QFQueryDataItem::ToString(value).toUtf8(); };
  const char* aggregates[] = {"unknown", "none",    "automatic", "summarize",  "total",  "minimum",
                              "maximum", "average", "count",     "calculated", "unknown"};
  for (int i = 0; i <= 10; ++i) EXPECT_EQ(aggregates[i], text(static_cast<QFQueryDataItem::EAggregate>(i)));
  const char* sorts[] = {"unknown", "none", "ascending", "descending", "unknown"};
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(sorts[i], text(static_cast<QFQueryDataItem::ESort>(i)));
  const char* uses[] = {"unknown", "optional", "required", "prohibited", "unknown"};
  for (int i = 0; i <= 4; ++i)
    EXPECT_EQ(uses[i], QFQueryDetailFilter::ToString(static_cast<QFQueryDetailFilter::EUse>(i)).toUtf8());
  const char* hints[] = {"unknown", "avoidZeroDiv", "autoSort", "measureRefiner", "maxRowsRetrieved", "unknown"};
  for (int i = 0; i <= 5; ++i)
    EXPECT_EQ(hints[i], QFQueryHelper::ToString(static_cast<QFQueryHelper::EQueryHint>(i)).toUtf8());
}

TEST(MakeUnique, CountsUpFromTheGivenName) {
  EXPECT_EQ("total total1 total2 ", namesAfterAdding({"total", "total", "total"}));
  EXPECT_EQ("a a1 a2 ", namesAfterAdding({"a", "a1", "a"}));
  EXPECT_EQ(" 1 ", namesAfterAdding({"", ""}));
}

TEST(MakeUnique, GivesUpAfterAsManyAttemptsAsThereAreItems) {
  QFQueryDataItem first;
  QFQueryDataItem second;
  first.name = "a";
  second.name = "a1";
  std::vector<QFQueryDataItem*> items{&first, &second};
  I18NString result;
  MakeUnique(items, "a", result);
  EXPECT_EQ("a2", result);
  second.name = "a2";
  first.name = "a1";
  items = {&first};
  MakeUnique(items, "a1", result);
  EXPECT_EQ("a11", result);
}

TEST(QFQueryHelper, AddsEqualNamesAsMakeUniqueHasItAlsoAfterRenames) {
  const auto add = [](QFQueryHelper& query, const char* name) {
    I18NString expected;
    MakeUnique(query.GetDataItems(), name, expected);
    QFQueryDataItem* item = query.AddDataItem(name, "");
    EXPECT_EQ(expected, item->name);
    return item;
  };
  QFQueryHelper query("q");
  for (const char* name : {"a", "a", "a2", "a", "a", "a1", "a1"}) add(query, name);
  query.GetDataItems()[1]->name = "z";  // frees a1
  EXPECT_EQ("a1", add(query, "a")->name);
  query.GetDataItems()[0]->name = "a5";  // frees a, takes a5
  for (int i = 0; i < 5; ++i) add(query, "a");
  for (QFQueryDataItem* item : query.GetDataItems()) item->name = "a";
  EXPECT_EQ("a1", add(query, "a")->name);
}

TEST(QFQueryHelper, ThousandsOfEqualNamesAreNumbered) {
  QFQueryHelper query("q");
  for (int i = 0; i < 8'000; ++i) query.AddDataItem("total", "");
  EXPECT_EQ("total7999", query.GetDataItems().back()->name);
}

TEST(QFJoinQueryHelper, WritesTwoOperandsAlsoForEqualCardinalities) {
  QFJoinQueryHelper query("J", "L", "1:N", "R", "1:N", "[L].[k] = [R].[k]");
  query.SetQueryRef("not used");
  expectXml(R"(<source><joinOperation><joinOperands>)"
            R"(<joinOperand cardinality="1:N"><queryRef refQuery="L"/></joinOperand>)"
            R"(<joinOperand cardinality="1:N"><queryRef refQuery="R"/></joinOperand></joinOperands>)"
            R"(<joinFilter><filterExpression>[L].[k] = [R].[k]</filterExpression></joinFilter>)"
            R"(</joinOperation></source>)",
            sourceOf(query));
}

TEST(QFModelSetQueryHelper, RefersToFixedOperandsAndListsProjectionOnce) {
  expectXml(R"(<source><queryOperation duplicates="remove" name="set" setOperation="UNION"><queryRefs>)"
            R"(<queryRef refQuery="leftQuery"/><queryRef refQuery="rightQuery"/></queryRefs><projectionList>)"
            R"(<queryItem name="b"/><queryItem name="a"/></projectionList></queryOperation></source>)",
            sourceOf(QFModelSetQueryHelper("S", {"b", "a", "b"}, "UNION", "remove")));
}
