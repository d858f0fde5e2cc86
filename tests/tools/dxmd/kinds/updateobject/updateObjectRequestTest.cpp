#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// A request that holds one "addObject" task with these parameters.
std::string requestOf(const std::string& params) {
  return R"(<updateObjectRequest><tasks><task name="addObject"><parameters>)" + params +
         "</parameters></task></tasks></updateObjectRequest>";
}

std::string jsonOf(const std::string& parameters) {
  return R"({"tasks":[{"name":"addObject","parameters":[)" + parameters + "]}]}";
}

ToolRun mapped(const std::string& table, const std::string& xml) {
  const TempFolder folder;
  return run({"decode", "updateObjectRequest", "--map-ids", folder.add("ids.json", table)}, xml);
}

}  // namespace

TEST(UpdateObjectRequestKind, CapturedPartsAreFoundAtAnyDepth) {
  expectDecoded("updateObjectRequest",
                R"(<updateObjectRequest><more><task name="addObject" id="7"> <other>
              <param name="caption" value="c"/><param name="objectName" value="n"><x/></param></other></task></more>
              </updateObjectRequest>)",
                jsonOf(R"({"name":"objectName","value":"n"},{"name":"caption","value":"c"})"));
}

TEST(UpdateObjectRequestKind, ParameterIsPlainOrASubtree) {
  const auto expectRefused = [](const std::string& parameter, const std::string& message) {
    expectNotEncoded("updateObjectRequest", jsonOf(parameter), "$.tasks[0].parameters[0]: " + message);
  };
  expectRefused(R"({"name": "key"})", R"(the key "value" or "element" is missing)");
  expectRefused(R"({"name": "key", "value": "", "element": "<r/>"})", R"("value" and "element" exclude each other)");
  expectRefused(R"({"name": "key", "element": "<r/>", "locale": "en"})",
                R"("element" and "locale" exclude each other)");
}

TEST(UpdateObjectRequestKind, PartsInsideTheirLikeAreRefusedWithTheirPlace) {
  const std::string nested = R"(<updateObjectRequest><task name="addObject"/><task name="addObject"><more>)"
                             R"(<task name="addObject"/></more></task></updateObjectRequest>)";
  const std::string refusal = R"(/updateObjectRequest/task[2]/more/task: it stands inside another "task")";
  expectNotDecoded("updateObjectRequest", nested, refusal);
  expectFailure(kStatusUnfit, "standard input: " + refusal, mapped("{}", nested));
  expectNotDecoded("updateObjectRequest",
                   requestOf(R"(<param name="key"><x><param name="caption" value="c"/></x></param>)"),
                   R"(/updateObjectRequest/tasks/task/parameters/param/x/param: it stands inside another "param")");
}

TEST(UpdateObjectRequestKind, MapsObjectIDsAndNothingElse) {
  expectXml(requestOf(R"(<param name="objectID" value="A"/><param name="caption" value="a"/>)"
                      R"(<param name="key"><refs><refobj>B</refobj> <refobj>c</refobj></refs></param>)") +
                "\n",
            mapped(R"({"a": "A", "b": "B"})",
                   requestOf(R"(<param name="objectID" value="a"/><param name="caption" value="a"/>)"
                             R"(<param name="key"><refs><refobj>b</refobj> <refobj>c</refobj></refs></param>)"))
                .out);
}

TEST(UpdateObjectRequestKind, RefobjWithoutTextIsRefusedAndNothingWritten) {
  expectFailure(kStatusUnfit,
                "standard input: DXUpdateObjectRequestHelper refuses it: "
                "TRN_ASSERT(listRefs.getLength() == vIDs.size());",
                mapped("{}", requestOf(R"(<param name="key"><refs><refobj>b</refobj><refobj/></refs></param>)")));
}

TEST(UpdateObjectRequestKind, TableMustBeAnObjectOfTexts) {
  const TempFolder folder;
  const std::string table = folder.add("ids.json", R"({"a": 1})");
  expectFailure(kStatusUnfit, table + ": $.a: expected a text, found a number",
                run({"decode", "updateObjectRequest", "--map-ids", table}, "<updateObjectRequest/>"));
}
