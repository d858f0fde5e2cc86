#include <gtest/gtest.h>

#include <dxmd/queryengine/VqeRefineObjectsHelper.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(RefinedObjectsKind, ObjectsAreReadInOrder) {
  EXPECT_EQ(
      "{\"objectIDs\":[\"b\",\"a\"]}\n",
      decoded("refinedObjects", "<r><response><expression>b</expression><expression>a</expression></response></r>"));
  EXPECT_EQ("{\"objectIDs\":[]}\n", decoded("refinedObjects", "<response/>"));
  EXPECT_EQ(kStatusUnfit,
            run({"decode", "refinedObjects", "--exact"}, "<response><expression>a</expression>\n</response>").status);
}

TEST(RefinedObjectsKind, ReplyIsWrittenForTheLibraryToRead) {
  const std::string xml = encoded("refinedObjects", R"({"objectIDs": ["b", "a < b"]})");
  expectXml("<response><expression>b</expression><expression>a &lt; b</expression></response>", xml);
  const auto helper = taken<VqeRefineObjectsHelper>(xml, "");
  I18NString objectID;
  EXPECT_TRUE(helper->getResponseObject(objectID));
  EXPECT_EQ("b", objectID);
  EXPECT_TRUE(helper->getResponseObject(objectID));
  EXPECT_EQ("a < b", objectID);
  EXPECT_FALSE(helper->getResponseObject(objectID));
}

TEST(RefinedObjectsKind, EmptyObjectIsRefusedSinceNoReaderTakesIt) {
  expectFailure(kStatusUnfit, "standard input: $.objectIDs[0]: must not be empty",
                run({"encode", "refinedObjects"}, R"({"objectIDs": [""]})"));
}
