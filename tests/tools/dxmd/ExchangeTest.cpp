// The files of examples/exchange are what the tool makes of them.

#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

const std::string kFolder = DXMD_EXAMPLES "/exchange/";

}  // namespace

TEST(Exchange, RequestIsEncodedAsItStandsBeside) {
  const ToolRun result = run({"encode", "execute", kFolder + "request.json"});
  EXPECT_EQ("", result.err);
  expectXml(bytesOf(kFolder + "request.xml"), result.out);
}

TEST(Exchange, ReplyIsDecodedAsItStandsBeside) {
  EXPECT_EQ(bytesOf(kFolder + "reply.json"), run({"decode", "response", kFolder + "reply.xml"}).out);
  EXPECT_EQ(bytesOf(kFolder + "rows.txt"), run({"decode", "response", kFolder + "reply.xml", "--format", "table"}).out);
}

TEST(Exchange, IndentedReplyKeepsItsColumnsUnlessItIsReadExactly) {
  std::string indented = bytesOf(kFolder + "reply.xml");
  indented.replace(indented.find("><column "), 1, ">\n");
  EXPECT_EQ(bytesOf(kFolder + "reply.json"), run({"decode", "response"}, indented).out);
  EXPECT_EQ(1, run({"decode", "response", "--exact"}, indented).status);
}
