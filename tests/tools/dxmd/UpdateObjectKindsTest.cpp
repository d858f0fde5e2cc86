#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

// Maps the IDs of a request that holds one "addObject" task with these parameters.
ToolRun mapped(const std::string& table, const std::string& params) {
  const TempFolder folder;
  return run({"decode", "updateObjectRequest", "--map-ids", folder.add("ids.json", table)},
             R"(<updateObjectRequest><tasks><task name="addObject"><parameters>)" + params +
                 "</parameters></task></tasks></updateObjectRequest>");
}

std::string mappedXml(const std::string& table, const std::string& params) {
  const std::string xml = mapped(table, params).out;
  const std::size_t begin = xml.find("<parameters>") + 12;
  return xml.substr(begin, xml.find("</parameters>") - begin);
}

}  // namespace

TEST(UpdateObjectRequestKind, MapsObjectIDsAndNothingElse) {
  expectXml(R"(<param name="objectID" value="A"/><param name="caption" value="a"/>)"
            R"(<param name="key"><refs><refobj>B</refobj> <refobj>c</refobj></refs></param>)",
            mappedXml(R"({"a": "A", "b": "B"})",
                      R"(<param name="objectID" value="a"/><param name="caption" value="a"/>)"
                      R"(<param name="key"><refs><refobj>b</refobj> <refobj>c</refobj></refs></param>)"));
}

TEST(UpdateObjectRequestKind, RefobjWithoutTextIsRefusedAndNothingWritten) {
  const ToolRun result = mapped("{}", R"(<param name="key"><refs><refobj>b</refobj><refobj/></refs></param>)");
  expectFailure(kStatusUnfit,
                "standard input: DXUpdateObjectRequestHelper refuses it: "
                "TRN_ASSERT(listRefs.getLength() == vIDs.size());",
                result);
}

TEST(UpdateObjectRequestKind, TableMustBeAnObjectOfTexts) {
  const TempFolder folder;
  const std::string table = folder.add("ids.json", R"({"a": 1})");
  expectFailure(kStatusUnfit, table + ": $.a: expected a text, found a number",
                run({"decode", "updateObjectRequest", "--map-ids", table}, "<updateObjectRequest/>"));
}

TEST(UpdateObjectRequestKind, ParameterIsPlainOrASubtree) {
  expectFailure(
      kStatusUnfit, R"(standard input: $.tasks[0].parameters[0]: the key "value" is missing)",
      run({"encode", "updateObjectRequest"}, R"({"tasks": [{"name": "addObject", "parameters": [{"name": "key"}]}]})"));
  EXPECT_EQ(kStatusUnfit,
            run({"encode", "updateObjectRequest"}, R"({"tasks": [{"name": "addObject", "parameters": [)"
                                                   R"({"name": "key", "value": "", "element": "<r/>"}]}]})")
                .status);
}

TEST(FeedbackKind, NestedEntriesAreWrittenAndRendered) {
  const std::string xml = run({"encode", "feedback"}, R"({"entries": [{"class": "error", "text": "X", "entries": [)"
                                                      R"({"class": "warning", "text": "Y", "name": "n"}]}]})")
                              .out;
  expectXml(R"(<feedback><entry class="error">X<entry class="warning" name="n">Y</entry></entry></feedback>)"
            "\n",
            xml);
  EXPECT_EQ("\n*** Error:X\n--- Y\n", run({"decode", "feedback"}, xml).out);
}

TEST(UpdateObjectResponseKind, GivesBackAllButTheFeedbackWhichItRenders) {
  const std::string xml = run({"encode", "updateObjectResponse"}, R"({"tasks": [{"name": "addObject"},
    {"name": "removeObject", "status": "unknown", "parameters": [{"name": "object", "value": "o"}],
     "error": {"code": "1", "message": "m"}, "feedback": [{"class": "info", "text": "t"}]}]})")
                              .out;
  EXPECT_EQ(R"({"tasks":[{"name":"addObject","status":"success"},{"name":"removeObject","status":"unknown",)"
            R"("parameters":[{"name":"object","value":"o"}],"error":{"code":"1","message":"m"},"feedback":"\n--- t"}]})"
            "\n",
            run({"decode", "updateObjectResponse", "--indent", "0"}, xml).out);
}
