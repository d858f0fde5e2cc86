#include <gtest/gtest.h>

#include <dxmd/queryengine/VqeExpandParameterHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(ExpansionResultKind, IsReadAndWritten) {
  EXPECT_EQ("{\"expansionResult\":\"a\"}\n", run({"decode", "expansionResult", "--indent", "0"},
                                                 "<response>\n<expansionResult>a</expansionResult></response>")
                                                 .out);
  const std::string xml = run({"encode", "expansionResult"}, R"({"expansionResult": "a < b"})").out;
  expectXml("<response><expansionResult>a &lt; b</expansionResult></response>\n", xml);
  EXPECT_EQ("a < b", taken<VqeExpandParameterHelper>(xml, "")->GetExpandedQuery());
}

TEST(ExpansionResultKind, EmptyResultIsRefusedSinceNoReaderTakesIt) {
  expectFailure(kStatusUnfit, "standard input: $.expansionResult: must not be empty",
                run({"encode", "expansionResult"}, R"({"expansionResult": ""})"));
  EXPECT_EQ(kStatusUnfit, run({"decode", "expansionResult"}, "<response/>").status);
}
