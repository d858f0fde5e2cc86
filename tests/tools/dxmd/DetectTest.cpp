#include <tools/dxmd/Detect.h>

#include <gtest/gtest.h>

#include <tools/dxmd/Registry.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

std::string kindsOf(const std::string& xml) {
  std::string names;
  for (const Kind* kind : dxmd_tool::kindsOf(parsed(xml))) names += (names.empty() ? "" : " ") + kind->name;
  return names;
}

std::string kindOf(const std::string& xml) {
  return dxmd_tool::kindOf(parsed(xml), "in").name;
}

void expectNoKind(const std::string& message, const std::string& xml, Status status = kStatusUnfit) {
  expectToolError(status, "in: " + message, [&] { kindOf(xml); });
}

}  // namespace

TEST(Detect, EveryExampleIsOfItsKindAlone) {
  for (const Kind& kind : allKinds()) EXPECT_EQ(kind.name, kindsOf(encodedExample(kind.name)));
}

TEST(Detect, RootThatSeveralKindsHaveIsToldByWhatItHolds) {
  EXPECT_EQ("joinPaths", kindsOf("<response><x><joinPath/></x></response>"));
  EXPECT_EQ("response", kindsOf("<response><queryFeedbackResult/></response>"));
  EXPECT_EQ("response validateReply", kindsOf("<response><resultData/><message/></response>"));
  EXPECT_EQ("response validateReply expansionResult joinPaths refinedObjects", kindsOf("<response/>"));
  EXPECT_EQ("", kindsOf("<response><x/></response>"));
  EXPECT_EQ("update", kindsOf("<command><dxCommand><update/></dxCommand></command>"));
  EXPECT_EQ("", kindsOf("<command><x><update/></x></command>"));
}

TEST(Detect, OtherRootIsToldByWhatItHolds) {
  EXPECT_EQ("response", kindsOf("<x><resultData/></x>"));
  EXPECT_EQ("dataSourceFault", kindsOf("<Fault><faultcode>c</faultcode></Fault>"));
  EXPECT_EQ("refinedObjects", kindsOf("<x><response><expression>e</expression></response></x>"));
  EXPECT_EQ("", kindsOf("<x><y/></x>"));
  EXPECT_EQ("", kindsOf("<html><message/></html>"));
  // A connection names its data source.
  EXPECT_EQ("connection", kindsOf("<connection><dataSource value='d'/></connection>"));
}

TEST(Detect, DocumentOfNoKindIsRefusedInWords) {
  expectNoKind("no kind of message: its root element is \"x\"", "<x/>");
  expectNoKind("no kind of message: its root element is \"response\", and it holds nothing that any kind of it has",
               "<response><x/></response>");
  expectNoKind("no kind of message: it is a page of HTML: \"Bad Gateway nginx\"",
               "<html><title>Bad Gateway</title>\n<p>nginx</p></html>");
  expectNoKind("fits several kinds: response, joinPaths; say which: dxmd decode KIND FILE",
               "<response><resultData/><joinPath/></response>");
  expectNoKind("a fault: Sender password=***", "<Fault><Code>Sender</Code><Reason> password=hush</Reason></Fault>",
               kStatusReported);
}

TEST(Detect, ErrorsBesideWhatAReplyHoldsMakeNoOtherKindOfIt) {
  const std::string error = "<message severity='error'>No such\n item</message>";
  EXPECT_EQ("validateReply", kindOf("<response>" + error + "</response>"));
  EXPECT_EQ("response", kindOf("<response>" + error + "<resultData/></response>"));
}

TEST(Detect, ErrorsReportedAreOneLineWithoutSecrets) {
  const auto errors = [](const std::string& xml) { return errorsReportedBy(parsed(xml)); };
  EXPECT_EQ("error: No such item; fatal: PWD=***;",
            errors("<response><message severity='error'>No such\n item</message><message severity='warning'>w"
                   "</message><message severity='fatal'>PWD=hush;</message></response>"));
  EXPECT_EQ("", errors("<response><message severity='warning'>w</message></response>"));
  EXPECT_EQ("", errors("<command><execute><message severity='error'>e</message></execute></command>"));
  EXPECT_EQ("a fault: Server: DS-17: Unreachable",
            errors("<fault><faultcode>Server</faultcode><faultSubcode>DS-17</faultSubcode><faultstring>Unreachable"
                   "</faultstring></fault>"));
  EXPECT_EQ("a fault", errors("<fault/>"));
  EXPECT_EQ(303u, errors("<fault><faultstring>" + std::string(1000, 'x') + "</faultstring></fault>").size());
}
