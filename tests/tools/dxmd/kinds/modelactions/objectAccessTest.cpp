#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(ObjectAccessKind, PrincipalsAreElementsWithTheirRule) {
  expectXml(R"(<objectAccess><securityObject cmSearchPath="u" displayPath="d" type="role"><rule>allow</rule>)"
            R"(</securityObject></objectAccess>)",
            encoded("objectAccess", R"({"securityObjects": [
              {"cmSearchPath": "u", "displayPath": "d", "type": "role", "rule": "allow"}]})"));
}

TEST(ObjectAccessKind, PrincipalsListedTwiceGetTheStrongerRule) {
  const std::string xml = run({"encode", "objectAccess"}, R"({"securityObjects": [{"cmSearchPath": "u", "rule": "deny"},
    {"cmSearchPath": "v", "rule": "unspecified"}, {"cmSearchPath": "u", "rule": "allow"}]})")
                              .out;
  EXPECT_EQ(R"({"securityObjects":[{"cmSearchPath":"u","rule":"deny"},{"cmSearchPath":"v","rule":"unspecified"}]})"
            "\n",
            run({"decode", "objectAccess", "--indent", "0"}, xml).out);
  expectFailure(kStatusUnfit,
                R"(standard input: $.securityObjects[0].rule: "Deny" is none of "unspecified", "allow", "deny")",
                run({"encode", "objectAccess"}, R"({"securityObjects": [{"cmSearchPath": "u", "rule": "Deny"}]})"));
}
