#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(MaterializeRequestKind, EveryKeyHasItsPlace) {
  const std::string json =
      R"({"tasks":["loadDataFromFile","unknown"],"targetDataSource":{"type":"OR","connectionString":"c","database":"d",)"
      R"("username":"u","password":"p","SSOTicket":"t"},"parameters":[{"name":"dataFilePath","value":"/f"},)"
      R"({"name":"objectID","value":""}],"resultSet":"<query name=\"Q\"><a/></query>"})";
  const std::string xml = encoded("materializeRequest", json);
  expectXml(R"(<materializeRequest><tasks><task>loadDataFromFile</task><task>unknown</task></tasks>)"
            R"(<targetDataSource type="OR"><connectionString>c</connectionString><database>d</database>)"
            R"(<username>u</username><password>p</password><SSOTicket>t</SSOTicket></targetDataSource>)"
            R"(<parameters><param name="dataFilePath" value="/f"/><param name="objectID" value=""/></parameters>)"
            R"(<resultSet><query name="Q"><a/></query></resultSet></materializeRequest>)",
            xml);
  EXPECT_EQ(json + "\n", decoded("materializeRequest", xml));
}

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

TEST(MaterializeRequestKind, TaskIsWrittenOnceAndOfAParameterTheLastValue) {
  EXPECT_EQ(R"({"tasks":["loadDataFromFile"],"parameters":[{"name":"tableName","value":"b"},)"
            R"({"name":"objectID","value":"o"}]})"
            "\n",
            decoded("materializeRequest", encoded("materializeRequest", R"({
              "tasks": ["loadDataFromFile", "loadDataFromFile"],
              "parameters": [{"name": "objectID", "value": "o"}, {"name": "tableName", "value": "a"},
                             {"name": "tableName", "value": "b"}]})")));
}

TEST(MaterializeRequestKind, AnEmptyTypeIsNoAbsentOne) {
  for (const std::string json : {R"({"targetDataSource":{"type":""}})", R"({"targetDataSource":{"database":"d"}})"})
    EXPECT_EQ(
        json + "\n",
        run({"decode", "materializeRequest", "--indent", "0"}, run({"encode", "materializeRequest"}, json).out).out);
}

TEST(MaterializeRequestKind, OtherEmptyTextsAreWrittenButNotRead) {
  const std::string xml = encoded("materializeRequest", R"({"targetDataSource": {"database": ""}})");
  expectXml("<materializeRequest><tasks/><targetDataSource><database/></targetDataSource></materializeRequest>", xml);
  EXPECT_EQ("{}\n", decoded("materializeRequest", xml));
}

TEST(MaterializeRequestKind, PasswordAndTicketAreHidden) {
  const std::string xml =
      "<materializeRequest><targetDataSource type=\"T\"><connectionString>pwd=p;x=1</connectionString>"
      "<password>p</password><SSOTicket>t</SSOTicket></targetDataSource></materializeRequest>";
  EXPECT_EQ(R"({"targetDataSource":{"type":"T","connectionString":"pwd=***;x=1","password":"***","SSOTicket":"***"}})"
            "\n",
            run({"decode", "materializeRequest", "--indent", "0"}, xml).out);
}
