#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

namespace {

const std::string kTask = R"(<task name="doSpecifiedChecks" status="success">)";

}  // namespace

TEST(AnalyzeModelResponseKind, StatusIsSuccessUnlessGivenAndWhatIsEmptyIsWritten) {
  expectEncoded("analyzeModelResponse", R"({"tasks": [{"name": "doSpecifiedChecks", "issues": [{"name": "i",
                  "objects": [{"id": "o", "relatedObjects": [{}]}, {"messages": [""]}]}]}]})",
                "<analyzeModelResponse><tasks>" + kTask +
                    R"(<issue name="i"><object class="" id="o" name="" path="" refclass="" subtype=""><messages/>)"
                    R"(<relatedObjects><relatedObject class="" id="" name="" path=""/></relatedObjects></object>)"
                    R"(<object class="" id="" name="" path="" refclass="" subtype=""><messages><message></message>)"
                    "</messages><relatedObjects/></object></issue></task></tasks></analyzeModelResponse>");
}

TEST(AnalyzeModelResponseKind, CapturedResponseIsReadPastWhatItDoesNotKnow) {
  expectDecoded("analyzeModelResponse",
                R"(<analyzeModelResponse version="2">
        <summary><task name="other"/></summary>
        <tasks> <task name="doSpecifiedChecks" status="success">
          <issue name="i" level="3"> <caption>c</caption>
            <object name="n"> <messages> <message>a <!-- --><![CDATA[ b]]></message> </messages> </object>
          </issue>
        </task> </tasks></analyzeModelResponse>)",
                R"({"tasks":[{"name":"doSpecifiedChecks","status":"success","issues":[{"name":"i","objects":[)"
                R"({"name":"n","messages":["a  b"]}]}]}]})");
}

TEST(AnalyzeModelResponseKind, ResponseThatNoJsonMakesIsRefusedWithItsPlace) {
  const auto expectRefused = [](const std::string& content, const std::string& message) {
    expectNotDecoded("analyzeModelResponse", "<analyzeModelResponse>" + content + "</analyzeModelResponse>",
                     "/analyzeModelResponse" + message);
  };
  expectRefused("", R"(: the element "tasks" is missing)");
  expectRefused(R"(<tasks><task name="unknown" status="success"/></tasks>)",
                R"(/tasks/task: "name" is "unknown", none of "doSpecifiedChecks")");
  expectRefused("<tasks>" + kTask + R"(</task><task name="doSpecifiedChecks"/></tasks>)",
                R"(/tasks/task[2]: the attribute "status" is missing)");
  expectRefused(R"(<tasks><task name="doSpecifiedChecks" status="ok"/></tasks>)",
                R"(/tasks/task: "status" is "ok", none of "failure", "success")");
  expectRefused("<tasks>" + kTask + R"(<issue name="i"><object subtype="level"/></issue></task></tasks>)",
                R"(/tasks/task/issue/object: "subtype" is "level", none of "measure")");
}
