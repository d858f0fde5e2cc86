#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(ExternalizeReportKind, EveryKeyIsAnAttribute) {
  expectXml(R"(<externalizeReport><entry error="e" method="tab" objectID="o" path="/p"/>)"
            R"(<entry error="" method="" objectID="" path=""/></externalizeReport>)",
            encoded("externalizeReport", R"({"entries": [
              {"objectID": "o", "method": "tab", "path": "/p", "error": "e"}, {"objectID": "", "method": ""}]})"));
}

TEST(ExternalizeReportKind, PathsComeFromFileElementsOnly) {
  EXPECT_EQ(R"({"entries":[{"objectID":"o","method":"tab","path":"/b"}]})"
            "\n",
            run({"decode", "externalizeReport", "--indent", "0"},
                "<externalizeReport><entry objectID='o' method='tab' path='/no' error='no'><file path='/b'/></entry>"
                "</externalizeReport>")
                .out);
}
