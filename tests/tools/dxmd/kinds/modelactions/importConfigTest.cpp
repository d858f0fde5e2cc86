#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(ImportConfigKind, WhatIsEmptyIsNotWritten) {
  expectEncoded("importConfig", R"({"connection": {}, "capabilities": []})", "<source/>");
}
