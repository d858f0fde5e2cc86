#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(RetargetObjectReferencesKind, EntriesNestToAnyDepth) {
  constexpr std::size_t kLevels = 20000;
  const std::string xml =
      "<retargetObjectReferences>" + repeated(kLevels, R"(<entry currentRefValue="a">)") +
      R"(<updateInfo newRefValue="b"><itemToUpdate processDescendants="TRUE">i</itemToUpdate></updateInfo>)" +
      repeated(kLevels, "</entry>") + "</retargetObjectReferences>";
  const std::string entry = R"({"currentRefValue":"a","updateInfos":[{"newRefValue":"b",)"
                            R"("itemsToUpdate":[{"itemID":"i","processDescendants":false}]}]})";
  // A difference is too long to print.
  EXPECT_TRUE(R"({"entries":[)" + repeated(kLevels - 1, entry + ",") + entry + "]}" ==
              decoded("retargetObjectReferences", xml));
}

TEST(RetargetObjectReferencesKind, NoEntriesAreWrittenButNotRead) {
  expectEncoded("retargetObjectReferences", R"({"entries": []})", "<retargetObjectReferences/>");
  expectNotDecoded("retargetObjectReferences", "<retargetObjectReferences/>",
                   "DXActionHelperRetargetObjectReferences refuses it: TRN_ASSERT(entries.size() > 0);");
}
