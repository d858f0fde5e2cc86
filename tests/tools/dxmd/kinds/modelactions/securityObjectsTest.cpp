#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(SecurityObjectsKind, PackagesComeFromNestedViewsOnly) {
  expectDecoded(
      "securityObjects",
      "<securityObjects><securityObject cmSearchPath='u'><view><viewref>v</viewref><packageref>no</packageref>"
      "<view>p<viewref>w</viewref></view></view></securityObject></securityObjects>",
      R"({"securityObjects":[{"cmSearchPath":"u","views":[{"viewref":"v","packagerefs":["p"]},{"viewref":"w"}]}]})");
}
