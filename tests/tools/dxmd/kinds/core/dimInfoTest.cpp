#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

const char* const kDimension =
    R"(<dimInfo><levels>)"
    R"(<level><name>Year</name><externalName>Year</externalName><key isUniqueKey="true"><name>Year key</name>)"
    R"(<queryItems_collection><refobj>y</refobj></queryItems_collection></key>)"
    R"(<attributes><refobj>a</refobj><refobj>b</refobj></attributes></level>)"
    R"(<level><name>Month</name><externalName>Month</externalName><key isUniqueKey="false"><name>k</name>)"
    R"(<queryItems_collection/></key><attributes/></level>)"
    R"(</levels><hierarchies><hierarchy><name>Calendar</name><externalName>Calendar</externalName>)"
    R"(<functionalDependency><refobj>y</refobj><refobj>m</refobj></functionalDependency></hierarchy></hierarchies>)"
    R"(</dimInfo>)";

void expectRefused(const std::string& reason, const std::string& content) {
  expectFailure(kStatusUnfit, "standard input: " + reason,
                run({"decode", "dimInfo"}, "<dimInfo>" + content + "</dimInfo>"));
}

}  // namespace

TEST(DimInfoKind, LevelsComeBeforeHierarchiesAndNamesStandTwice) {
  expectXml(kDimension, encoded("dimInfo", R"({
    "hierarchies": [{"name": "Calendar", "functionalDependency": ["y", "m"]}],
    "levels": [{"name": "Year", "key": {"name": "Year key", "isUniqueKey": true, "queryItems_collection": ["y"]},
                "attributes": ["a", "b"]},
               {"name": "Month", "key": {"name": "k"}}]})"));
  expectXml("<dimInfo/>", encoded("dimInfo", "{}"));
}

TEST(DimInfoKind, CapturedDimensionIsRead) {
  EXPECT_EQ(R"({"levels":[{"name":"Year","key":{"name":"Year key","isUniqueKey":true,"queryItems_collection":["y"]},)"
            R"("attributes":["a","b"]},)"
            R"({"name":"Month","key":{"name":"k","isUniqueKey":false,"queryItems_collection":[]},"attributes":[]}],)"
            R"("hierarchies":[{"name":"Calendar","functionalDependency":["y","m"]}]})"
            "\n",
            decoded("dimInfo", kDimension));
  EXPECT_EQ(R"({"hierarchies":[{"name":"","functionalDependency":[]}]})"
            "\n",
            decoded("dimInfo",
                    "<dimInfo> <!-- --><levels/><other/><hierarchies><hierarchy><name/></hierarchy>"
                    "</hierarchies></dimInfo>"));
}

TEST(DimInfoKind, WhatNoJsonMakesIsRefusedWithItsPlace) {
  expectRefused(R"(/dimInfo/levels/level[2]: the element "name" is missing)",
                "<levels><level><name/><key><name/></key></level><level/></levels>");
  expectRefused(R"(/dimInfo/levels/level: the element "key" is missing)",
                "<levels><level><name>a</name></level></levels>");
  expectRefused(R"(/dimInfo/levels/level/key: "isUniqueKey" is "yes", neither true nor false)",
                R"(<levels><level><name>a</name><key isUniqueKey="yes"><name/></key></level></levels>)");
  expectRefused("/dimInfo/hierarchies/hierarchy/externalName: the external name is not the name",
                "<hierarchies><hierarchy><name>a</name><externalName>b</externalName></hierarchy></hierarchies>");
}
