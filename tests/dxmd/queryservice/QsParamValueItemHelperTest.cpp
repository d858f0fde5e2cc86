#include <dxmd/queryservice/QsParamValueItemHelper.h>

#include <memory>

#include <dxmd/queryservice/GetSimpleNodeValue.h>
#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>
#include <dxmd/queryservice/QsParamValueItemNullHelper.h>
#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>
#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Simple = QsParamValueItemSimpleHelper;
using Range = QsParamValueItemRangeHelper;
using Hierarchy = QsParamValueItemHierarchyHelper;

// What the reader finds in the child "n" of the parsed text, or "none" when it finds none.
std::string nodeValue(const std::string& xml) {
  TRNIDOM_Element element = parsed(xml);
  I18NString value("none");
  const bool found = GetSimpleNodeValue(element, "n", value);
  EXPECT_TRUE(found || value == "none");
  return value.toUtf8();
}

std::string bound(Simple* item) {
  return item == nullptr ? "none" : item->GetUse().toUtf8() + (item->IsInclusive() != 0 ? " inclusive" : " exclusive");
}

}  // namespace

TEST(GetSimpleNodeValue, FirstChildOfTheFirstNamedChildThatHasOne) {
  EXPECT_EQ("a", nodeValue("<x><n/><n>a</n><n>b</n></x>"));
  EXPECT_EQ("a", nodeValue("<x><n>a<y/>b</n></x>"));
  EXPECT_EQ("comment", nodeValue("<x><n><!--comment-->a</n></x>"));
  EXPECT_EQ("", nodeValue("<x><n><y>a</y></n></x>"));
  EXPECT_EQ("none", nodeValue("<x><y><n>a</n></y><n/></x>"));
}

TEST(GetSimpleNodeValue, NullElementAndOtherNodesHoldNone) {
  I18NString value("kept");
  for (TRNIDOM_Element element : {TRNIDOM_Element(), TRNIDOM_Element(parsed("<x>text</x>").getFirstChild())})
    EXPECT_FALSE(GetSimpleNodeValue(element, "n", value));
  EXPECT_EQ("kept", value);
}

TEST(QsParamValueItemHelper, TypeTellsWhichItemToMake) {
  TRNIDOM_Element element = parsed("<item><use>never read here</use></item>");
  const auto typeOf = [&](const char* xsiType) {
    const std::unique_ptr<QsParamValueItemHelper> item(QsParamValueItemHelper::Create(xsiType, element));
    return item == nullptr ? 0 : static_cast<int>(item->GetType());
  };
  EXPECT_EQ(1, typeOf("bus:simpleParmValueItem"));
  for (const char* range :
       {"bus:boundRangeParmValueItem", "bus:unboundedStartParmValueItem", "bus:unboundedEndParmValueItem"})
    EXPECT_EQ(2, typeOf(range)) << range;
  EXPECT_EQ(3, typeOf("bus:hierarchicalParmValueItem"));
  for (const char* none : {"xsi:nil", ""}) EXPECT_EQ(0, typeOf(none)) << none;
  for (const char* unlisted : {"unknown", "simpleParmValueItem", "bus:simpleparmvalueitem", " "})
    expectAssert("TRN_ASSERT(false);", "QsParamValueItemHelper", [&] { typeOf(unlisted); });
}

TEST(QsParamValueItemHelper, TypesHaveTheirTexts) {
  EXPECT_EQ("bus:unboundedStartParmValueItem",
            QsParamValueItemHelper::ToString(QsParamValueItemHelper::kTarvoItemUnboundedStart));
  EXPECT_EQ("xsi:nil", QsParamValueItemHelper::ToString(static_cast<QsParamValueItemHelper::ETarvoItemType>(6)));
  EXPECT_EQ("unknown", QsParamValueItemHelper::ToString(static_cast<QsParamValueItemHelper::ETarvoItemType>(0)));
  EXPECT_EQ("unknown", QsParamValueItemHelper::ToString(static_cast<QsParamValueItemHelper::ETarvoItemType>(7)));
}

TEST(QsParamValueItemHelper, NullIsRefusedByEveryKindAndChangesNothing) {
  Simple simple(0, "kept");
  Range range;
  Hierarchy hierarchy;
  QsParamValueItemNullHelper null;
  for (QsParamValueItemHelper* item :
       std::initializer_list<QsParamValueItemHelper*>{&simple, &range, &hierarchy, &null})
    expectAssert("TRN_ASSERT(!elmValueItem.isNull());", "QsParamValueItemHelper",
                 [&] { take(*item, TRNIDOM_Element()); });
  EXPECT_EQ("kept exclusive", bound(&simple));
}

TEST(QsParamValueItemHelper, OnlyTheTextFalseExcludes) {
  const auto inclusive = [](const std::string& xml) {
    return taken<Simple>("<item>" + xml + "</item>")->IsInclusive();
  };
  EXPECT_EQ(0, inclusive("<inclusive>false</inclusive>"));
  EXPECT_EQ(0, inclusive("<inclusive/><inclusive>false</inclusive>"));
  for (const char* xml : {"", "<inclusive/>", "<inclusive>no</inclusive>", "<inclusive> false</inclusive>",
                          "<x><inclusive>false</inclusive></x>"})
    EXPECT_EQ(1, inclusive(xml)) << xml;
}

TEST(QsParamValueItemSimpleHelper, WritesUseUnlessEmptyAndNeverDisplay) {
  Simple item;
  item.SetDisplay("shown");
  expectXml(R"(<item xsi:type="bus:simpleParmValueItem"><inclusive>true</inclusive></item>)", made(item));
  item.SetUse("a");
  item.SetInclusive(0);
  expectXml(R"(<item xsi:type="bus:simpleParmValueItem"><inclusive>false</inclusive><use>a</use></item>)", made(item));
}

TEST(QsParamValueItemSimpleHelper, ReadsUseAndDisplayAndKeepsWhatIsMissing) {
  Simple item(0, "old");
  take(item, "<item><display>d</display><use>u</use></item>");
  EXPECT_EQ("u inclusive", bound(&item));
  EXPECT_EQ("d", item.GetDisplay());
  take(item, "<item><inclusive>false</inclusive><use/></item>");
  EXPECT_EQ("u exclusive", bound(&item));
  EXPECT_EQ("d", item.GetDisplay());
}

TEST(QsParamValueItemNullHelper, IsNothingButNil) {
  expectXml(R"(<item xsi:nil="true"/>)", made(QsParamValueItemNullHelper()));
  EXPECT_EQ(4, QsParamValueItemNullHelper().GetType());
  EXPECT_EQ("xsi:nil", QsParamValueItemNullHelper().GetTarvoType());
}

TEST(QsParamValueItemRangeHelper, BoundsDecideTheType) {
  Range range;
  range.SetInclusive(0);
  expectXml(R"(<item xsi:type="bus:unboundedEndParmValueItem"/>)", made(range));
  range.SetStart("1", 1);
  expectXml(R"(<item xsi:type="bus:unboundedEndParmValueItem"><bus:start><inclusive>true</inclusive><use>1</use>)"
            R"(</bus:start></item>)",
            made(range));
  range.SetEnd("", 0);
  expectXml(R"(<item xsi:type="bus:boundRangeParmValueItem"><bus:start><inclusive>true</inclusive><use>1</use>)"
            R"(</bus:start><bus:end><inclusive>false</inclusive></bus:end></item>)",
            made(range));
  Range endOnly;
  endOnly.SetEnd("9", 1);
  expectXml(R"(<item xsi:type="bus:unboundedStartParmValueItem"><bus:end><inclusive>true</inclusive><use>9</use>)"
            R"(</bus:end></item>)",
            made(endOnly));
}

TEST(QsParamValueItemRangeHelper, BoundsDoNotCountUntilTheyWereRead) {
  const std::string xml =
      R"(<item xsi:type="bus:boundRangeParmValueItem"><bus:start><inclusive>false</inclusive><use>1</use></bus:start>)"
      R"(<bus:end><inclusive>true</inclusive><use>9</use></bus:end></item>)";
  const auto range = taken<Range>(xml);
  expectXml(R"(<item xsi:type="bus:unboundedEndParmValueItem"/>)", made(*range));
  EXPECT_EQ("9 inclusive", bound(range->GetEnd()));
  EXPECT_EQ("bus:unboundedStartParmValueItem", range->GetTarvoType());
  EXPECT_EQ("1 exclusive", bound(range->GetStart()));
  expectXml(xml, made(*range));
}

TEST(QsParamValueItemRangeHelper, BoundsGoByEitherNameThePrefixedFirst) {
  const auto range = taken<Range>(
      "<item><start><use>plain</use></start><x><bus:start><use>bus</use></bus:start></x><end><use>e</use></end></"
      "item>");
  EXPECT_EQ("bus inclusive", bound(range->GetStart()));
  EXPECT_EQ("e inclusive", bound(range->GetEnd()));
  const auto none = taken<Range>("<bus:start><use>the item itself</use></bus:start>");
  EXPECT_EQ("none", bound(none->GetStart()));
  EXPECT_EQ("none", bound(Range().GetEnd()));
}

TEST(QsParamValueItemRangeHelper, BoundsOnceReadOrSetOutliveAnotherItem) {
  const auto range = taken<Range>("<item><bus:start><use>1</use></bus:start><bus:end><use>2</use></bus:end></item>");
  Simple* start = range->GetStart();
  take(*range, "<item><bus:start><use>3</use></bus:start><bus:end><use>4</use></bus:end></item>");
  EXPECT_EQ(start, range->GetStart());
  EXPECT_EQ("1 inclusive", bound(start));
  EXPECT_EQ("4 inclusive", bound(range->GetEnd()));
  EXPECT_EQ("5 exclusive", bound(range->SetStart("5", 0)));
  EXPECT_EQ("5 exclusive", bound(range->GetStart()));
}
