#include <dxmd/core/DimensionInfoHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

TEST(DimensionInfo, LevelsPrecedeHierarchiesAndNamesAreWrittenTwice) {
  DimensionInfoHelper dimension;
  dimension.AddHierarchy("Calendar", {"[Year]", "[Month]", "[Year]"});
  EXPECT_EQ("Year", dimension.AddLevel("Year", "Year key", {"[y]", "[z]"}, 1, {"[caption]"}));
  const std::string expected =
      "<dimInfo><levels><level><name>Year</name><externalName>Year</externalName>"
      "<key isUniqueKey=\"true\"><name>Year key</name>"
      "<queryItems_collection><refobj>[y]</refobj><refobj>[z]</refobj></queryItems_collection></key>"
      "<attributes><refobj>[caption]</refobj></attributes></level></levels>"
      "<hierarchies><hierarchy><name>Calendar</name><externalName>Calendar</externalName><functionalDependency>"
      "<refobj>[Year]</refobj><refobj>[Month]</refobj><refobj>[Year]</refobj></functionalDependency></hierarchy>"
      "</hierarchies></dimInfo>";
  expectXml(expected, made(dimension));
  expectXml(expected, made(dimension));
  EXPECT_TRUE(madeElement(dimension).getParentNode().isNull());
}

TEST(DimensionInfo, EmptyListsOfALevelAreWrittenButEmptyListsOfTheDimensionAreNot) {
  DimensionInfoHelper dimension;
  expectXml("<dimInfo/>", made(dimension));
  dimension.AddLevel("L", "K", {}, 0, {});
  expectXml(
      "<dimInfo><levels><level><name>L</name><externalName>L</externalName><key isUniqueKey=\"false\"><name>K</name>"
      "<queryItems_collection/></key><attributes/></level></levels></dimInfo>",
      made(dimension));
}

TEST(DimensionInfo, EqualLevelsStayApartAndAnyNonZeroFlagMeansUnique) {
  DimensionInfoHelper dimension;
  for (const int flag : {2, -1}) dimension.AddLevel("L", "K", {}, flag, {});
  TRNIDOM_Element element = madeElement(dimension);
  const auto keys = element.getElementsByTagName("key");
  ASSERT_EQ(2u, keys.getLength());
  for (const TRNIDOM_Element key : keys) EXPECT_EQ("true", key.getAttribute("isUniqueKey"));
}

TEST(DimensionInfo, EmptyTextsGetATextNode) {
  DimensionInfoHelper dimension;
  dimension.AddHierarchy("", {});
  TRNIDOM_Element element = madeElement(dimension);
  EXPECT_TRUE(element.getElementsByTagName("name").item(0).hasChildNodes());
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
