#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(AnalyzeModelResponseKind, IssuesAreWrittenAndRead) {
  const std::string json =
      R"({"tasks":[{"name":"doSpecifiedChecks","status":"failure","issues":[{"name":"i","objects":[)"
      R"({"name":"n","id":"[n]","class":"c","path":"p","refclass":"r","subtype":"measure","messages":["a < b",""],)"
      R"("relatedObjects":[{"name":"rn","id":"ri","class":"rc","path":"rp"},{}]},{"id":"o"}]},{"name":""}]},)"
      R"({"name":"doSpecifiedChecks","status":"success"}]})";
  const std::string xml = encoded("analyzeModelResponse", json);
  expectXml(
      R"(<analyzeModelResponse><tasks><task name="doSpecifiedChecks" status="failure"><issue name="i">)"
      R"(<object class="c" id="[n]" name="n" path="p" refclass="r" subtype="measure"><messages>)"
      R"(<message>a &lt; b</message><message></message></messages><relatedObjects>)"
      R"(<relatedObject class="rc" id="ri" name="rn" path="rp"/><relatedObject class="" id="" name="" path=""/>)"
      R"(</relatedObjects></object><object class="" id="o" name="" path="" refclass="" subtype=""><messages/>)"
      R"(<relatedObjects/></object></issue><issue name=""/></task><task name="doSpecifiedChecks" status="success"/>)"
      R"(</tasks></analyzeModelResponse>)",
      xml);
  EXPECT_EQ(json + "\n", decoded("analyzeModelResponse", xml));
}

TEST(AnalyzeModelResponseKind, StatusIsSuccessUnlessGiven) {
  expectXml(R"(<analyzeModelResponse><tasks><task name="doSpecifiedChecks" status="success"/></tasks>)"
            R"(</analyzeModelResponse>)",
            encoded("analyzeModelResponse", R"({"tasks": [{"name": "doSpecifiedChecks"}]})"));
}

TEST(AnalyzeModelResponseKind, CapturedResponseIsReadPastWhatItDoesNotKnow) {
  EXPECT_EQ(R"({"tasks":[{"name":"doSpecifiedChecks","status":"success","issues":[{"name":"i","objects":[)"
            R"({"name":"n","messages":["a  b"]}]}]}]})"
            "\n",
            decoded("analyzeModelResponse", R"(<analyzeModelResponse version="2">
        <summary><task name="other"/></summary>
        <tasks> <task name="doSpecifiedChecks" status="success">
          <issue name="i" level="3"> <caption>c</caption>
            <object name="n"> <messages> <message>a <!-- --><![CDATA[ b]]></message> </messages> </object>
          </issue>
        </task> </tasks></analyzeModelResponse>)"));
}

TEST(AnalyzeModelResponseKind, ResponseThatNoJsonMakesIsRefusedWithItsPlace) {
  const auto expectRefused = [](const std::string& message, const std::string& content) {
    expectFailure(
        kStatusUnfit, "standard input: /analyzeModelResponse" + message,
        run({"decode", "analyzeModelResponse"}, "<analyzeModelResponse>" + content + "</analyzeModelResponse>"));
  };
  const std::string task = R"(<task name="doSpecifiedChecks" status="success">)";
  expectRefused(R"(: the element "tasks" is missing)", "");
  expectRefused(R"(/tasks/task: "name" is "unknown", none of "doSpecifiedChecks")",
                R"(<tasks><task name="unknown" status="success"/></tasks>)");
  expectRefused(R"(/tasks/task[2]: the attribute "status" is missing)",
                "<tasks>" + task + R"(</task><task name="doSpecifiedChecks"/></tasks>)");
  expectRefused(R"(/tasks/task: "status" is "ok", none of "failure", "success")",
                R"(<tasks><task name="doSpecifiedChecks" status="ok"/></tasks>)");
  expectRefused(R"(/tasks/task/issue/object: "subtype" is "level", none of "measure")",
                "<tasks>" + task + R"(<issue name="i"><object subtype="level"/></issue></task></tasks>)");
}
