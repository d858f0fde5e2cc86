#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(PackagesKind, PackagesAreElementsWithAttributes) {
  expectXml(
      R"(<packages><package cmSearchPath="p" defaultName="a"/><package cmSearchPath="" defaultName=""/></packages>)"
      "\n",
      run({"encode", "packages"}, R"({"packages": [{"defaultName": "a", "cmSearchPath": "p"},
    {"defaultName": "", "cmSearchPath": ""}]})")
          .out);
}
