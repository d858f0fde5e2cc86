#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(DimInfoKind, CapturedDimensionIsReadPastWhatItDoesNotKnow) {
  expectDecoded(
      "dimInfo",
      "<dimInfo> <!-- --><levels/><other/><hierarchies><hierarchy><name/></hierarchy></hierarchies></dimInfo>",
      R"({"hierarchies":[{"name":"","functionalDependency":[]}]})");
}

TEST(DimInfoKind, WhatNoJsonMakesIsRefusedWithItsPlace) {
  const auto expectRefused = [](const std::string& content, const std::string& message) {
    expectNotDecoded("dimInfo", "<dimInfo>" + content + "</dimInfo>", "/dimInfo/" + message);
  };
  expectRefused("<levels><level><name/><key><name/></key></level><level/></levels>",
                R"(levels/level[2]: the element "name" is missing)");
  expectRefused("<levels><level><name>a</name></level></levels>", R"(levels/level: the element "key" is missing)");
  expectRefused(R"(<levels><level><name>a</name><key isUniqueKey="yes"><name/></key></level></levels>)",
                R"(levels/level/key: "isUniqueKey" is "yes", neither true nor false)");
  expectRefused("<hierarchies><hierarchy><name>a</name><externalName>b</externalName></hierarchy></hierarchies>",
                "hierarchies/hierarchy/externalName: the external name is not the name");
}
