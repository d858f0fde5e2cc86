#include <dxmd/core/DimensionInfoHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

TEST(DimensionInfo, LevelsPrecedeHierarchiesAndNamesAreWrittenTwice) {
  DimensionInfoHelper dimension;
  dimension.AddHierarchy("Calendar", {"[Year]", "[Month]", "[Year]"});
  EXPECT_EQ("Year", dimension.AddLevel("Year", "Year key", {"[y]", "[z]"}, 1, {"[caption]"}));
  expectXml(
      "<dimInfo><levels><level><name>Year</name><externalName>Year</externalName>"
      "<key isUniqueKey=\"true\"><name>Year key</name>"
      "<queryItems_collection><refobj>[y]</refobj><refobj>[z]</refobj></queryItems_collection></key>"
      "<attributes><refobj>[caption]</refobj></attributes></level></levels>"
      "<hierarchies><hierarchy><name>Calendar</name><externalName>Calendar</externalName><functionalDependency>"
      "<refobj>[Year]</refobj><refobj>[Month]</refobj><refobj>[Year]</refobj></functionalDependency></hierarchy>"
      "</hierarchies></dimInfo>",
      made(dimension));
  EXPECT_TRUE(madeElement(dimension).getParentNode().isNull());
}

TEST(DimensionInfo, EmptyTextsAndListsAreWrittenButEmptyListsOfTheDimensionAreNot) {
  DimensionInfoHelper dimension;
  expectXml("<dimInfo/>", made(dimension));
  const auto level = [](const std::string& unique) {
    return "<level><name></name><externalName></externalName><key isUniqueKey=\"" + unique +
           "\"><name>K</name><queryItems_collection/></key><attributes/></level>";
  };
  // Equal levels stay apart; any flag but zero means unique.
  for (const int flag : {0, 2, -1}) dimension.AddLevel("", "K", {}, flag, {});
  dimension.AddHierarchy("", {});
  expectXml("<dimInfo><levels>" + level("false") + level("true") + level("true") +
                "</levels><hierarchies><hierarchy><name></name><externalName></externalName><functionalDependency/>"
                "</hierarchy></hierarchies></dimInfo>",
            made(dimension));
}

TEST(DimensionInfo, AddsElementsWithOneTextEach) {
  TRNIDOM_Element parent = parsed("<p><a/></p>");
  TRNIDOM_Document document = parent.getOwnerDocument();
  for (const char* text : {"t", ""}) DimensionInfoHelper().AddTextElementNode(document, parent, "b", text);
  expectXml("<p><a/><b>t</b><b></b></p>", parent);
}

TEST(DimensionInfo, FindsItsListsAndReadsNothing) {
  DimensionInfoHelper dimension;
  TRNIDOM_Element element = parsed("<r><x><levels n='1'/></x><levels n='2'/></r>");
  dimension.Take(element);
  expectXml("<dimInfo/>", made(dimension));
  expectXml("<levels n=\"1\"/>", dimension.getLevelsElement(element));
  EXPECT_TRUE(dimension.getHierarchiesElement(element).isNull());
}
