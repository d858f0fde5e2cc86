#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(RetargetObjectReferencesKind, WhatIsListedTwiceIsWrittenAsOne) {
  expectXml(R"(<retargetObjectReferences><entry currentRefValue="a"><updateInfo newRefValue="b">)"
            R"(<itemToUpdate processDescendants="false">i</itemToUpdate>)"
            R"(<itemToUpdate processDescendants="true">j</itemToUpdate></updateInfo>)"
            R"(<updateInfo newRefValue="c"/></entry></retargetObjectReferences>)",
            encoded("retargetObjectReferences", R"({"entries": [
              {"currentRefValue": "a", "updateInfos": [
                {"newRefValue": "b", "itemsToUpdate": [{"itemID": "i", "processDescendants": true}]}]},
              {"currentRefValue": "a", "updateInfos": [
                {"newRefValue": "c"},
                {"newRefValue": "b", "itemsToUpdate": [{"itemID": "i", "processDescendants": false},
                                                       {"itemID": "j", "processDescendants": true}]}]}]})"));
}

TEST(RetargetObjectReferencesKind, EntriesNestToAnyDepth) {
  constexpr std::size_t kLevels = 20000;
  std::string xml = "<retargetObjectReferences>";
  for (std::size_t level = 0; level < kLevels; ++level) xml += R"(<entry currentRefValue="a">)";
  xml += R"(<updateInfo newRefValue="b"><itemToUpdate processDescendants="TRUE">i</itemToUpdate></updateInfo>)";
  for (std::size_t level = 0; level < kLevels; ++level) xml += "</entry>";
  const std::string entry = R"({"currentRefValue":"a","updateInfos":[{"newRefValue":"b",)"
                            R"("itemsToUpdate":[{"itemID":"i","processDescendants":false}]}]})";
  std::string expected = R"({"entries":[)" + entry;
  for (std::size_t level = 1; level < kLevels; ++level) expected += "," + entry;
  // A difference is too long to print.
  EXPECT_TRUE(expected + "]}\n" == decoded("retargetObjectReferences", xml + "</retargetObjectReferences>"));
}

TEST(RetargetObjectReferencesKind, EmptyReferencesAndListsAreRefusedWhereTheyCannotStand) {
  const auto expectRefused = [](const std::string& reason, const std::string& json) {
    expectFailure(kStatusUnfit, "standard input: " + reason, run({"encode", "retargetObjectReferences"}, json));
  };
  expectRefused("$.entries[0].updateInfos: must not be empty",
                R"({"entries": [{"currentRefValue": "a", "updateInfos": []}]})");
  expectRefused("$.entries[0].updateInfos[0].itemsToUpdate[0].itemID: must not be empty",
                R"({"entries": [{"currentRefValue": "a", "updateInfos": [
                  {"newRefValue": "b", "itemsToUpdate": [{"itemID": "", "processDescendants": true}]}]}]})");
  EXPECT_EQ("<retargetObjectReferences/>", encoded("retargetObjectReferences", R"({"entries": []})"));
  expectFailure(kStatusUnfit,
                "standard input: DXActionHelperRetargetObjectReferences refuses it: TRN_ASSERT(entries.size() > 0);",
                run({"decode", "retargetObjectReferences"}, "<retargetObjectReferences/>"));
}
