#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(MaterializeRequestKind, MaterialiseTasksAreWrittenAsTheGeneratedLoadButReadByTheirOwnNames) {
  const ToolRun written = run({"encode", "materializeRequest"}, R"({"tasks": ["materializeResultSet"]})");
  expectXml(
      "<materializeRequest><tasks><task>genLoadDataFromFile</task></tasks><targetDataSource/></materializeRequest>\n",
      written.out);
  EXPECT_EQ("{\"tasks\":[\"materializeResultSet\",\"unknown\"]}\n",
            run({"decode", "materializeRequest", "--indent", "0"},
                "<materializeRequest><task>materializeResultSet</task><task>x</task></materializeRequest>")
                .out);
}

TEST(MaterializeRequestKind, AnEmptyTypeIsNoAbsentOne) {
  for (const std::string json : {R"({"targetDataSource":{"type":""}})", R"({"targetDataSource":{"database":"d"}})"})
    EXPECT_EQ(
        json + "\n",
        run({"decode", "materializeRequest", "--indent", "0"}, run({"encode", "materializeRequest"}, json).out).out);
}

TEST(MaterializeRequestKind, PasswordAndTicketAreHidden) {
  const std::string xml =
      "<materializeRequest><targetDataSource type=\"T\"><connectionString>pwd=p;x=1</connectionString>"
      "<password>p</password><SSOTicket>t</SSOTicket></targetDataSource></materializeRequest>";
  EXPECT_EQ(R"({"targetDataSource":{"type":"T","connectionString":"pwd=***;x=1","password":"***","SSOTicket":"***"}})"
            "\n",
            run({"decode", "materializeRequest", "--indent", "0"}, xml).out);
}

TEST(MaterializeResponseKind, AnswersStandUnderTheNamesOfTasks) {
  EXPECT_EQ(R"({"loadDataFromFile":"done"})"
            "\n",
            run({"decode", "materializeResponse", "--indent", "0"},
                "<materializeResponse><loadDataFromFile><response>done</response></loadDataFromFile>"
                "<materializeResultSet><response>x</response></materializeResultSet></materializeResponse>")
                .out);
}
