#include <cstdlib>

#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(ResponseKind, PartsThatAreThereAreReadWithoutSecrets) {
  EXPECT_EQ(
      R"({"dataSources":[{"connection":"UID=u;PWD=***","schema":"s"}],"columnList":[{"name":"A","scale":"2"},{}],)"
      R"("rows":[["1",null,""],[]]})"
      "\n",
      run({"decode", "response", "--indent", "0"},
          R"(<response><queryFeedbackResult><connection value="UID=u;PWD=p" schema="s"/></queryFeedbackResult>)"
          R"(<columnList><column name="A" scale="2"/><column/></columnList><resultData>)"
          R"(<row><value v="1"/><value/><value v=""/></row><!-- --><row/></resultData></response>)")
          .out);
  EXPECT_EQ("<response><resultData/></response>", encoded("response", "{}"));
}

namespace {

const char* const kReply =
    R"(<response><columnList><c name="Region, all"/><c name="Password"/><c name="Region, all"/></columnList><resultData>)"
    R"(<row><value v="a &quot;b&quot;"/><value v="hush"/><value/></row><row><value v=""/><value/><value v="2"/><value v="x"/></row>)"
    R"(</resultData></response>)";

std::string rowsAs(const char* format, const std::string& xml = kReply) {
  return run({"decode", "response", "--format", format}, xml).out;
}

}  // namespace

TEST(ResponseKind, RowsInEachFormatTellNullFromEmpty) {
  EXPECT_EQ("\"Region, all\",Password,\"Region, all\"\r\n\"a \"\"b\"\"\",***,\r\n\"\",,2,x\r\n", rowsAs("csv"));
  EXPECT_EQ(R"({"Region, all":"a \"b\"","Password":"***","column3":null})"
            "\n"
            R"({"Region, all":"","Password":null,"column3":"2","column4":"x"})"
            "\n",
            rowsAs("ndjson"));
  EXPECT_EQ(
      "Region, all  Password  Region, all\n"
      "-----------  --------  -----------  -\n"
      "a \"b\"        ***\n"
      "\"\"                               2  x\n",
      rowsAs("table"));
  EXPECT_EQ("", rowsAs("table", "<response/>"));
}

TEST(ResponseKind, LimitBoundsTheRows) {
  EXPECT_EQ("\"Region, all\",Password,\"Region, all\"\r\n\"a \"\"b\"\"\",***,\r\n",
            run({"decode", "response", "--format", "csv", "--limit", "1"}, kReply).out);
  EXPECT_EQ(2, run({"decode", "response", "--limit", "x"}, kReply).status);
}

TEST(ResponseKind, LargeReplyPrintsAsASmallOneDoes) {
  // Beyond the size up to which documents are read whole and rows are kept in memory, with its columns behind its rows.
  std::string rows;
  std::string csv = "A,password\r\n";
  for (int i = 0; i < 120000; ++i) {
    const std::string number = std::string(30, 'n') + std::to_string(i);
    rows += "<row><value v='" + number + "'/><value v='hush'/></row>\n";
    csv += number + ",***\r\n";
  }
  const std::string columns = "<columnList><column name='A'/><column name='password'/></columnList>";
  const std::string large = "<response><resultData>" + rows + "</resultData>" + columns + "</response>";
  ASSERT_LT(4u << 20, large.size());
  EXPECT_EQ(csv, rowsAs("csv", large));
  EXPECT_TRUE(has(rowsAs("json", large), "n119999\", \"***\"]\n  ]\n}\n"));
  // Nothing prints of what is not well-formed.
  const ToolRun cut = run({"decode", "response", "--format", "csv"}, large.substr(0, large.size() - 1));
  EXPECT_EQ(4, cut.status);
  EXPECT_EQ("", cut.out);
  expectNotDecoded("response", "<response><resultData>" + rows + "</resultData><resultData/></response>",
                   "a document of this size is read one \"row\" at a time, and in this one they do not all stand in "
                   "one place");
  expectNotDecoded("response", "<row>" + rows + "</row>", "no response: it is one row");
  ::setenv("TMPDIR", "/dev/null", 1);
  expectFailure(dxmd_tool::kStatusFile, "temporary file: cannot be made: Not a directory",
                run({"decode", "response"}, large));
  ::unsetenv("TMPDIR");
}

TEST(ResponseKind, LongRowsHaveALineForEachValue) {
  const std::string a(60, 'a');
  EXPECT_EQ(
      "{\n  \"rows\": [\n    [\n      \"" + a + "\",\n      null,\n      \"" + a + "\"\n    ],\n    [\"b\"]\n  ]\n}\n",
      rowsAs("json", "<response><resultData><row><value v='" + a + "'/><value/><value v='" + a +
                         "'/></row><row><value v='b'/></row></resultData></response>"));
}
