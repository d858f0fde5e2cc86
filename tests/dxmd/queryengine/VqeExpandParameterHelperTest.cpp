#include <dxmd/queryengine/VqeExpandParameterHelper.h>

#include <dxmd/queryengine/VqeCancelQueryHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

std::string expanded(const std::string& response) {
  return taken<VqeExpandParameterHelper>(response, "m")->GetExpandedQuery().toUtf8();
}

void expectNotOneResult(const std::string& response) {
  expectAssert(
      "TRN_ASSERT(resultList.getLength() == 1 && resultList.item(0).getNodeType() == TRNIDOM_Node::ELEMENT_NODE && "
      "resultList.item(0).getFirstChild().getNodeType() == TRNIDOM_Node::TEXT_NODE);",
      "VqeExpandParameterHelper", [&] { expanded(response); });
}

}  // namespace

TEST(VqeCancelQueryHelper, NamesTheDefaultRequestUnderIdentifiersOfItsOwn) {
  expectXml(inEnvelope(R"(<cancel><requestID value="DXRequest"/></cancel>)", "DXCancelCommand", "DXCancelRequest"),
            made(VqeCancelQueryHelper()));
}

TEST(VqeExpandParameterHelper, WritesTheExpressionAlsoWhenEmpty) {
  VqeExpandParameterHelper command("m");
  expectXml(inDXEnvelope("<expand><expression/></expand>"), made(command));
  command.SetParameterisedValue("?p? < 1");
  expectXml(inDXEnvelope("<expand><expression>?p? &lt; 1</expression></expand>"), made(command));
}

TEST(VqeExpandParameterHelper, GivesTheFirstTextOfTheOnlyResult) {
  EXPECT_EQ("[a]=1", expanded("<response><x><expansionResult>[a]=1</expansionResult></x></response>"));
  EXPECT_EQ("a", expanded("<response><expansionResult>a<b/>c</expansionResult></response>"));
}

TEST(VqeExpandParameterHelper, RefusesAnyOtherNumberOfResultsAndOthersThanText) {
  expectNotOneResult("<response/>");
  expectNotOneResult("<response><expansionResult/></response>");
  expectNotOneResult("<response><expansionResult>a</expansionResult><expansionResult>b</expansionResult></response>");
  expectNotOneResult("<response><expansionResult><!--c-->a</expansionResult></response>");
  expectNotOneResult("<response><expansionResult><![CDATA[a]]></expansionResult></response>");
  expectNotOneResult("<expansionResult>a result is looked for below the response</expansionResult>");
}

TEST(VqeExpandParameterHelper, ResponseOutlivesItsDocumentHandleAndIsReplacedByTheNext) {
  VqeExpandParameterHelper command("m");
  EXPECT_EQ("", command.GetExpandedQuery());
  for (const char* text : {"one", "two"}) {
    take(command, "<r><expansionResult>" + std::string(text) + "</expansionResult></r>");
    EXPECT_EQ(text, command.GetExpandedQuery());
  }
  take(command, TRNIDOM_Element());
  EXPECT_EQ("", command.GetExpandedQuery());
}
