#include <set>

#include <gtest/gtest.h>

#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(JoinPathsKind, JoinsOfAllPathsAreReadOnceInOrder) {
  EXPECT_EQ("{\"pathExists\":true,\"joins\":[\"a\",\"b\"]}\n",
            decoded("joinPaths",
                    "<r><joinPath><join>b</join><join>a</join></joinPath><joinPath><join>b</join>"
                    "</joinPath></r>"));
  EXPECT_EQ("{\"pathExists\":true,\"joins\":[]}\n", decoded("joinPaths", "<response><joinPath/></response>"));
  EXPECT_EQ("{\"pathExists\":false,\"joins\":[]}\n", decoded("joinPaths", "<response/>"));
}

TEST(JoinPathsKind, ReplyIsWrittenForTheLibraryToRead) {
  const std::string xml = encoded("joinPaths", R"({"pathExists": true, "joins": ["b", "a < b"]})");
  expectXml("<response><joinPath><join>b</join><join>a &lt; b</join></joinPath></response>", xml);
  const auto helper = taken<VqeGetJoinPathsHelper>(xml, "");
  EXPECT_TRUE(helper->PathExists());
  std::set<I18NString> joins;
  helper->GetJoins(joins);
  EXPECT_EQ((std::set<I18NString>{"a < b", "b"}), joins);

  expectXml("<response><joinPath/></response>", encoded("joinPaths", R"({"pathExists": true})"));
  expectXml("<response/>", encoded("joinPaths", R"({"pathExists": false, "joins": []})"));
}

TEST(JoinPathsKind, JoinsWithoutAPathAreRefused) {
  expectFailure(kStatusUnfit, R"(standard input: $: "joins" needs "pathExists" to be true)",
                run({"encode", "joinPaths"}, R"({"pathExists": false, "joins": ["a"]})"));
}
