#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(MaterializeRequestKind, MaterialiseTasksAreWrittenAsTheGeneratedLoadButReadByTheirOwnNames) {
  expectEncoded(
      "materializeRequest", R"({"tasks": ["materializeResultSet"]})",
      "<materializeRequest><tasks><task>genLoadDataFromFile</task></tasks><targetDataSource/></materializeRequest>");
  expectDecoded("materializeRequest",
                "<materializeRequest><task>materializeResultSet</task><task>x</task></materializeRequest>",
                R"({"tasks":["materializeResultSet","unknown"]})");
}

TEST(MaterializeRequestKind, TaskIsWrittenOnceAndOfAParameterTheLastValue) {
  expectDecoded("materializeRequest", encoded("materializeRequest", R"({
                  "tasks": ["loadDataFromFile", "loadDataFromFile"],
                  "parameters": [{"name": "tableName", "value": "a"}, {"name": "tableName", "value": "b"}]})"),
                R"({"tasks":["loadDataFromFile"],"parameters":[{"name":"tableName","value":"b"}]})");
}

TEST(MaterializeRequestKind, EmptyTextsAreWrittenButNotRead) {
  const std::string xml =
      "<materializeRequest><tasks/><targetDataSource><database/></targetDataSource></materializeRequest>";
  expectEncoded("materializeRequest", R"({"targetDataSource": {"database": ""}})", xml);
  expectDecoded("materializeRequest", xml, "{}");
}
