#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(CloseConnectionsKind, StandsInTheEnvelope) {
  expectEncoded("closeConnections", "{}", inEnvelope("<closeConnections/>"));
}
