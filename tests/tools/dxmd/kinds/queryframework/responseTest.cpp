#include <gtest/gtest.h>

#include <dxmd/queryframework/QFResponseDomHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(ResponseKind, PartsThatAreThere) {
  EXPECT_EQ(R"({
  "queryFeedback": {
    "nativeCommandText": "select 1"
  },
  "dataSources": [
    {
      "connection": "UID=u;PWD=***",
      "schema": "s"
    }
  ],
  "columnList": [
    {
      "name": "A",
      "scale": "2"
    },
    {}
  ],
  "rows": [
    ["1", ""],
    []
  ]
}
)",
            run({"decode", "response"},
                R"(<response><queryFeedbackResult><property name="nativeCommandText">select 1</property>)"
                R"(<connection value="UID=u;PWD=p" schema="s"/></queryFeedbackResult>)"
                R"(<columnList><column name="A" scale="2"/><column/></columnList>)"
                R"(<resultData><row><value v="1"/><value/></row><!-- --><row/></resultData></response>)")
                .out);
  EXPECT_EQ("{\n  \"rows\": []\n}\n", run({"decode", "response"}, "<response/>").out);
}

TEST(ResponseKind, RowsAsATable) {
  EXPECT_EQ(
      "Region  Revenue\n"
      "------  -------  -\n"
      "North   1200\n"
      "東京             x\n",
      run({"decode", "response", "--format", "table"},
          R"(<response><columnList><c name="Region"/><c name="Revenue"/></columnList><resultData>)"
          R"(<row><value v="North"/><value v="1200"/></row><row><value v="東京"/><value/><value v="x"/></row>)"
          R"(</resultData></response>)")
          .out);
  EXPECT_EQ("", run({"decode", "response", "--format", "table"}, "<response/>").out);
}

TEST(ResponseKind, ReplyIsMadeFromColumnsAndRows) {
  const std::string xml = run({"encode", "response"}, R"({"queryFeedback": {"nativeCommandText": "select 1"},
    "dataSources": [{"connection": "UID=u;PWD=p", "schema": "s"}], "columnList": [{"name": "A", "scale": "2"}, {}],
    "rows": [["1", ""], []]})")
                              .out;
  expectXml(R"(<response><queryFeedbackResult><property name="nativeCommandText">select 1</property>)"
            R"(<connection schema="s" value="UID=u;PWD=p"/></queryFeedbackResult>)"
            R"(<columnList><column name="A" scale="2"/><column/></columnList>)"
            R"(<resultData><row><value v="1"/><value v=""/></row><row/></resultData></response>)"
            "\n",
            xml);
  const auto response = taken<QFResponseDomHelper>(xml);
  I18NString text;
  EXPECT_TRUE(response->GetQueryFeedback(QFExecuteCommandHelper::kQueryFeedbackNativeCommandText, text));
  EXPECT_EQ("select 1", text);
  std::vector<I18NString> values;
  response->GetResultSetRowValues(response->GetFirstResultSetRow(), values);
  EXPECT_EQ((std::vector<I18NString>{"1", ""}), values);
  EXPECT_EQ("<response><resultData/></response>\n", run({"encode", "response"}, "{}").out);
}

TEST(ResponseKind, RowsThatAreNotTextsAreRefusedWithTheirPlace) {
  using dxmd_tool::kStatusUnfit;
  expectFailure(kStatusUnfit, "standard input: $.rows[1][0]: expected a text, found a number",
                run({"encode", "response"}, R"({"rows": [[], [1]]})"));
  expectFailure(kStatusUnfit, "standard input: $.rows[0]: expected a list, found an object",
                run({"encode", "response"}, R"({"rows": [{}]})"));
}
