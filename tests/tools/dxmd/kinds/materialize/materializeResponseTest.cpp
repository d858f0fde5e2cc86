#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(MaterializeResponseKind, AnswersThatAreEmptyAreNotWritten) {
  expectEncoded("materializeResponse", R"({"genLoadDataFromFile": "", "loadDataFromFile": "a"})",
                "<materializeResponse><loadDataFromFile><response>a</response></loadDataFromFile>"
                "</materializeResponse>");
}
