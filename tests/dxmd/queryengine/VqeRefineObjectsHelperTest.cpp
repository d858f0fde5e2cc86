#include <dxmd/queryengine/VqeRefineObjectsHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

const char* const kFile = "VqeRefineObjectsHelper";
const char* const kEmptyID = "TRN_ASSERT(!objectID.empty());";

std::vector<std::string> objectsOf(const std::string& response) {
  const auto command = taken<VqeRefineObjectsHelper>(response, "m");
  std::vector<std::string> objects;
  I18NString object;
  while (command->getResponseObject(object)) objects.push_back(object.toUtf8());
  return objects;
}

}  // namespace

TEST(VqeRefineObjectsHelper, ObjectsGoIntoTheTreeLastMadeAlsoWhenTheCallerDroppedIt) {
  VqeRefineObjectsHelper command("m");
  const TRNIDOM_Element first = madeElement(command);
  command.addRequestObject("b");
  command.addRequestObject("a & b");
  const TRNIDOM_Element second = madeElement(command);
  command.addRequestObject("c");
  expectXml(inDXEnvelope("<refinePublishedModel><expression>b</expression><expression>a &amp; b</expression>"
                         "</refinePublishedModel>"),
            first);
  expectXml(inDXEnvelope("<refinePublishedModel><expression>c</expression></refinePublishedModel>"), second);
  expectXml(inDXEnvelope("<refinePublishedModel/>"), made(command));
  command.addRequestObject("d");
}

TEST(VqeRefineObjectsHelper, RefusesEmptyObjectsAndObjectsBeforeMake) {
  VqeRefineObjectsHelper command("m");
  expectAssert("TRN_ASSERT(!m_requestRoot.isNull());", kFile, [&] { command.addRequestObject("a"); });
  expectAssert(kEmptyID, kFile, [&] { command.addRequestObject(""); });
  const TRNIDOM_Element element = madeElement(command);
  expectAssert(kEmptyID, kFile, [&] { command.addRequestObject(""); });
  expectXml(inDXEnvelope("<refinePublishedModel/>"), element);
}

TEST(VqeRefineObjectsHelper, HandsOutAdjacentObjectsOneByOne) {
  EXPECT_EQ((std::vector<std::string>{"a", "b", "c"}),
            objectsOf("<r><response> <expression>a</expression><expression>b<x/></expression>"
                      "<expression><![CDATA[c]]></expression></response></r>"));
  EXPECT_EQ(std::vector<std::string>{}, objectsOf("<response><x/></response>"));
}

TEST(VqeRefineObjectsHelper, NothingMayStandBetweenObjects) {
  for (const char* between : {"\n", "<x/>", "<!--c-->"}) {
    const auto command = taken<VqeRefineObjectsHelper>(
        "<response><expression>a</expression>" + std::string(between) + "<expression>b</expression></response>", "m");
    I18NString object;
    expectAssert(
        "TRN_ASSERT(m_currentResponseObject.isNull() || m_currentResponseObject.getNodeName() == "
        "dxmd_actionhelper_resources_expression_str);",
        kFile, [&] { command->getResponseObject(object); });
    EXPECT_EQ("a", object) << "the object before the offending node was set";
    // The walk stands on that node, which has no text and so counts as an object without identifier.
    expectAssert(kEmptyID, kFile, [&] { command->getResponseObject(object); });
  }
}

TEST(VqeRefineObjectsHelper, RefusesAnObjectWithoutIdentifier) {
  const auto command = taken<VqeRefineObjectsHelper>("<response><expression/></response>", "m");
  I18NString object("kept?");
  expectAssert(kEmptyID, kFile, [&] { command->getResponseObject(object); });
  EXPECT_EQ("", object);
}

TEST(VqeRefineObjectsHelper, RefusesAResponseThatIsNullOrHasItsFirstObjectElsewhere) {
  VqeRefineObjectsHelper command("m");
  expectAssert("TRN_ASSERT(!domResponse.isNull());", kFile, [&] { take(command, TRNIDOM_Element()); });
  expectAssert(
      "TRN_ASSERT(m_currentResponseObject.isNull() || m_currentResponseObject.getParentNode().getNodeName() == "
      "dxmd_actionhelper_resources_response_str);",
      kFile, [&] { take(command, "<response><x><expression>a</expression></x></response>"); });
}

TEST(VqeRefineObjectsHelper, AnotherResponseRestartsTheWalkAndTheEndLeavesTheCallersText) {
  VqeRefineObjectsHelper command("m");
  I18NString object("untouched");
  EXPECT_FALSE(command.getResponseObject(object));
  EXPECT_EQ("untouched", object);
  for (int time = 0; time < 2; ++time) {
    take(command, "<response><expression>a</expression><expression>b</expression></response>");
    EXPECT_TRUE(command.getResponseObject(object));
    EXPECT_EQ("a", object);
  }
}
