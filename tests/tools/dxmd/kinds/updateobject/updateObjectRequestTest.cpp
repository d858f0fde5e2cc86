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

TEST(UpdateObjectRequestKind, TasksAndParametersAreWrittenAndRead) {
  const std::string json =
      R"({"tasks":[{"name":"addProperty","parameters":[)"
      R"({"name":"propertyValue","element":"<refs a=\"1\"><refobj>b</refobj></refs>"},)"
      R"({"name":"objectID","value":""},)"
      R"({"name":"caption","value":"Sales","locale":"en"},{"name":"caption","value":"Umsatz","locale":"de"}]},)"
      R"({"name":"removeObject"}]})";
  const std::string xml = encoded("updateObjectRequest", json);
  expectXml(R"(<updateObjectRequest><tasks><task name="addProperty"><parameters><param name="propertyValue">)"
            R"(<refs a="1"><refobj>b</refobj></refs></param><param name="objectID" value=""/>)"
            R"(<param locale="en" name="caption" value="Sales"/><param locale="de" name="caption" value="Umsatz"/>)"
            R"(</parameters></task><task name="removeObject"><parameters/></task></tasks></updateObjectRequest>)",
            xml);
  EXPECT_EQ(json + "\n", decoded("updateObjectRequest", xml));
}

TEST(UpdateObjectRequestKind, CapturedPartsAreFoundAtAnyDepth) {
  EXPECT_EQ(jsonOf(R"({"name":"objectName","value":"n"},{"name":"caption","value":"c"})") + "\n",
            decoded("updateObjectRequest", R"(<updateObjectRequest><more><task name="addObject" id="7"> <other>
              <param name="caption" value="c"/><param name="objectName" value="n"><x/></param></other></task></more>
              </updateObjectRequest>)"));
}

TEST(UpdateObjectRequestKind, ParameterIsPlainOrASubtree) {
  const auto expectRefused = [](const std::string& message, const std::string& parameter) {
    expectFailure(kStatusUnfit, "standard input: $.tasks[0].parameters[0]: " + message,
                  run({"encode", "updateObjectRequest"}, jsonOf(parameter)));
  };
  expectRefused(R"(the key "value" or "element" is missing)", R"({"name": "key"})");
  expectRefused(R"("value" and "element" exclude each other)", R"({"name": "key", "value": "", "element": "<r/>"})");
  expectRefused(R"("element" and "locale" exclude each other)",
                R"({"name": "key", "element": "<r/>", "locale": "en"})");
}

TEST(UpdateObjectRequestKind, PartsInsideTheirLikeAreRefusedWithTheirPlace) {
  const auto expectRefused = [](const std::string& message, const ToolRun& result) {
    expectFailure(kStatusUnfit, "standard input: /updateObjectRequest/" + message, result);
  };
  const std::string nested = R"(<updateObjectRequest><task name="addObject"/><task name="addObject"><more>)"
                             R"(<task name="addObject"/></more></task></updateObjectRequest>)";
  expectRefused(R"(task[2]/more/task: it stands inside another "task")",
                run({"decode", "updateObjectRequest"}, nested));
  expectRefused(R"(task[2]/more/task: it stands inside another "task")", mapped("{}", nested));
  expectRefused(R"(tasks/task/parameters/param/x/param: it stands inside another "param")",
                run({"decode", "updateObjectRequest"},
                    requestOf(R"(<param name="key"><x><param name="caption" value="c"/></x></param>)")));
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
