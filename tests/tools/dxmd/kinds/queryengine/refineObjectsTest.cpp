#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(RefineObjectsKind, EmptyObjectIsRefusedWithItsPlace) {
  expectNotDecoded("refineObjects", inDXEnvelope("<refinePublishedModel><expression/></refinePublishedModel>"),
                   "/command/dxCommand/refinePublishedModel/expression: must not be empty");
}
