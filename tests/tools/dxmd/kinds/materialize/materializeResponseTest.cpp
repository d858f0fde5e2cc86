#include <gtest/gtest.h>

#include <dxmd/materialize/DXMaterializeResponseHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(MaterializeResponseKind, AnswersStandUnderTheNamesOfTasks) {
  EXPECT_EQ(R"({"loadDataFromFile":"done"})"
            "\n",
            run({"decode", "materializeResponse", "--indent", "0"},
                "<materializeResponse><loadDataFromFile><response>done</response></loadDataFromFile>"
                "<materializeResultSet><response>x</response></materializeResultSet></materializeResponse>")
                .out);
}

TEST(MaterializeResponseKind, ReplyIsMadeThatTheLibraryReads) {
  const std::string xml =
      encoded("materializeResponse", R"({"loadDataFromFile": "a < b", "genLoadDataFromFile": "made"})");
  expectXml(
      "<materializeResponse><genLoadDataFromFile><response>made</response></genLoadDataFromFile>"
      "<loadDataFromFile><response>a &lt; b</response></loadDataFromFile></materializeResponse>",
      xml);
  const auto response = taken<DXMaterializeResponseHelper>(xml);
  I18NString answer;
  EXPECT_TRUE(response->GetResponse(DXMaterializeRequestHelper::kTaskLoadDataFromFile, answer));
  EXPECT_EQ("a < b", answer);
  EXPECT_TRUE(response->GetResponse(DXMaterializeRequestHelper::kTaskMaterializeResultSet, answer));
  EXPECT_EQ("made", answer);
}

TEST(MaterializeResponseKind, ReplyWithoutAnswersIsThatOfTheLibrary) {
  expectXml(made(DXMaterializeResponseHelper()), encoded("materializeResponse", "{}"));
}
