#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

namespace {

std::string responseOf(const std::string& tasks) {
  return "<updateObjectResponse><tasks>" + tasks + "</tasks></updateObjectResponse>";
}

}  // namespace

TEST(UpdateObjectResponseKind, StatusIsSuccessUnlessGivenAndEmptyTextsAreKept) {
  expectEncoded("updateObjectResponse", R"({"tasks": [{"name": "addObject"}]})",
                responseOf(R"(<task name="addObject" status="success"/>)"));
  expectBothWays("updateObjectResponse",
                 R"({"tasks":[{"name":"addProperty","status":"unknown",)"
                 R"("parameters":[{"name":"property","value":""}],"error":{"code":"","message":""}}]})",
                 responseOf(R"(<task name="addProperty" status="unknown"><param name="property" value=""/>)"
                            R"(<error code=""/></task>)"));
}

TEST(UpdateObjectResponseKind, FeedbackIsRenderedWhereThatIsAskedFor) {
  EXPECT_EQ(R"({"tasks":[{"name":"addObject","status":"failure","feedback":"\n*** Error:t\n--- u"},)"
            R"({"name":"removeObject","status":"success"}]})"
            "\n",
            run({"decode", "updateObjectResponse", "--indent", "0", "--feedback", "text"},
                responseOf(R"(<task name="addObject" status="failure"><feedback><entry class="error">t)"
                           R"(<entry class="info" name="n">u</entry></entry></feedback></task>)"
                           R"(<task name="removeObject" status="success"/>)"))
                .out);
}

TEST(UpdateObjectResponseKind, WhatNoJsonMakesIsRefusedWithItsPlace) {
  expectNotDecoded("updateObjectResponse",
                   responseOf(R"(<task name="addObject"><feedback><entry>x</entry></feedback></task>)"),
                   R"(/updateObjectResponse/tasks/task/feedback/entry: the attribute "class" is missing)");
  expectNotDecoded("updateObjectResponse", responseOf(R"(<task name="addObject"><task name="addObject"/></task>)"),
                   R"(/updateObjectResponse/tasks/task/task: it stands inside another "task")");
}
