#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(SecurityObjectsKind, PackagesComeFromNestedViewsOnly) {
  const std::string written = run({"encode", "securityObjects"}, R"({"securityObjects": [{"cmSearchPath": "u",
    "views": [{"viewref": "v", "packagerefs": ["p"]}]}]})")
                                  .out;
  EXPECT_EQ(R"({"securityObjects":[{"cmSearchPath":"u","views":[{"viewref":"v"}]}]})"
            "\n",
            run({"decode", "securityObjects", "--indent", "0"}, written).out);
  EXPECT_EQ(
      R"({"securityObjects":[{"cmSearchPath":"u","views":[{"viewref":"v","packagerefs":["p"]},{"viewref":"w"}]}]})"
      "\n",
      run({"decode", "securityObjects", "--indent", "0"},
          "<securityObjects><securityObject cmSearchPath='u'><view><viewref>v</viewref><view>p<viewref>w</viewref>"
          "</view></view></securityObject></securityObjects>")
          .out);
}
