#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

const std::string kXml =
    R"(<updateObjectResponse><tasks><task name="addObject" status="success"/>)"
    R"(<task name="removeObject" status="unknown"><param name="object" value="o"/><error code="1">m</error>)"
    R"(<feedback><entry class="error">t<entry class="info" name="n">u</entry></entry></feedback></task>)"
    R"(<task name="addProperty" status="failure"><param name="property" value=""/><error code=""/></task>)"
    R"(</tasks></updateObjectResponse>)";

/// The JSON of that with its feedback as given.
std::string jsonWith(const std::string& feedback) {
  return R"({"tasks":[{"name":"addObject","status":"success"},{"name":"removeObject","status":"unknown",)"
         R"("parameters":[{"name":"object","value":"o"}],"error":{"code":"1","message":"m"},"feedback":)" +
         feedback +
         R"(},{"name":"addProperty","status":"failure","parameters":[{"name":"property","value":""}],)"
         R"("error":{"code":"","message":""}}]})";
}

}  // namespace

TEST(UpdateObjectResponseKind, IsWrittenAndReadWithItsFeedback) {
  const std::string json =
      jsonWith(R"([{"class":"error","text":"t","entries":[{"class":"info","text":"u","name":"n"}]}])");
  expectXml(kXml, encoded("updateObjectResponse", json));
  EXPECT_EQ(json + "\n", decoded("updateObjectResponse", kXml));
  EXPECT_EQ(R"({"tasks":[{"name":"addObject","status":"success"}]})"
            "\n",
            decoded("updateObjectResponse", encoded("updateObjectResponse", R"({"tasks": [{"name": "addObject"}]})")));
}

TEST(UpdateObjectResponseKind, FeedbackIsRenderedWhereThatIsAskedFor) {
  EXPECT_EQ(jsonWith(R"("\n*** Error:t\n--- u")") + "\n",
            run({"decode", "updateObjectResponse", "--indent", "0", "--feedback", "text"}, kXml).out);
}

TEST(UpdateObjectResponseKind, WhatNoJsonMakesIsRefusedWithItsPlace) {
  expectFailure(kStatusUnfit,
                R"(standard input: /updateObjectResponse/task/feedback/entry: the attribute "class" is missing)",
                run({"decode", "updateObjectResponse"},
                    R"(<updateObjectResponse><task name="addObject"><feedback><entry>x</entry></feedback></task>)"
                    "</updateObjectResponse>"));
  expectFailure(kStatusUnfit, R"(standard input: /updateObjectResponse/task/task: it stands inside another "task")",
                run({"decode", "updateObjectResponse"},
                    R"(<updateObjectResponse><task name="addObject"><task name="addObject"/></task>)"
                    "</updateObjectResponse>"));
}
