#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(ObjectAccessKind, PrincipalsListedTwiceGetTheStrongerRule) {
  const auto principals = [](const std::string& listed) { return R"({"securityObjects":[)" + listed + "]}"; };
  const std::string once = R"({"cmSearchPath":"u","rule":"deny"},{"cmSearchPath":"v","rule":"unspecified"})";
  expectDecoded("objectAccess",
                encoded("objectAccess", principals(once + R"(,{"cmSearchPath": "u", "rule": "allow"})")),
                principals(once));
}
