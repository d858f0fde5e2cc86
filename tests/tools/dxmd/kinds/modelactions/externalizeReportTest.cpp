#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(ExternalizeReportKind, PathsComeFromFileElementsOnly) {
  expectDecoded("externalizeReport",
                "<externalizeReport><entry objectID='o' method='tab' path='/no' error='no'><file path='/b'/></entry>"
                "</externalizeReport>",
                R"({"entries":[{"objectID":"o","method":"tab","path":"/b"}]})");
}
