// `dxmd check`, as it is run.

#include <gtest/gtest.h>

#include <tools/dxmd/json/Json.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

ToolRun checked(std::vector<std::string> args, const std::string& in = "") {
  args.insert(args.begin(), "check");
  args.insert(args.end(), {"--schemas", DXMD_SCHEMAS});
  return run(args, in);
}

void expectChecked(Status status, const std::string& out, const ToolRun& run) {
  EXPECT_EQ("", run.err);
  EXPECT_EQ(out, run.out);
  EXPECT_EQ(status, run.status);
}

const char* const kPackages = "<packages><package cmSearchPath='a' defaultName='b'/></packages>";

}  // namespace

TEST(Check, EachFileIsToldAndTheWorstStatusCounts) {
  TempFolder folder;
  const std::string good = folder.add("good.xml", kPackages);
  const std::string bad = folder.add("bad.xml", "<packages>\n  <package defaultName='b'/>\n  <other/>\n</packages>\n");
  const std::string cut = folder.add("cut.xml", "<packages>\n<package>");
  const std::string other = folder.add("other.xml", "\n<other/>");
  const std::string none = folder.path("none.xml");
  const std::string badText = bad + ": packages: does not fit at 2 places\n" + bad +
                              ":2:3: \"package\" the attribute \"cmSearchPath\" is missing\n" + bad +
                              ":3:3: \"other\" does not belong here: \"packages\" holds (package*)\n";
  expectChecked(kStatusOk, good + ": packages: fits\n", checked({good}));
  expectChecked(kStatusUnfit, good + ": packages: fits\n" + badText, checked({good, bad}));
  const ToolRun run = checked({bad, cut, good, other});
  EXPECT_EQ(kStatusSyntax, run.status);
  EXPECT_EQ(0u, run.out.find(badText + cut + ":2:10: not well-formed: ")) << run.out;
  EXPECT_TRUE(has(run.out, good + ": packages: fits\n" + other + ":2:1: no kind of message: ")) << run.out;
  const ToolRun missing = checked({none, good});
  EXPECT_EQ(kStatusFile, missing.status);
  EXPECT_TRUE(has(missing.out, good + ": packages: fits\n")) << missing.out;
}

TEST(Check, ErrorsAreJsonWhenAskedFor) {
  const auto errors = [](const std::string& xml) { return Json::parse(checked({"--errors", "json"}, xml).out).dump(); };
  EXPECT_EQ(R"json([{"file":"standard input","wellFormed":true,"fits":false,"kind":"objectAccess","errors":[)json"
            R"json({"line":1,"column":15,"message":"\"securityObject\" the attribute \"type\" is missing"},)json"
            R"json({"line":1,"column":15,"message":"\"securityObject\" is not complete: it holds (rule)"}]}])json",
            errors("<objectAccess><securityObject cmSearchPath='a' displayPath=''/></objectAccess>"));
  EXPECT_EQ(R"([{"file":"standard input","wellFormed":true,"fits":true,"kind":"packages","errors":[]}])",
            errors(kPackages));
  const Json broken = Json::parse(errors("<a>"));
  EXPECT_FALSE(broken[0]["wellFormed"].get<bool>());
  EXPECT_EQ(1u, broken[0]["errors"].size());
}

TEST(Check, KindMayBeNamed) {
  expectChecked(kStatusOk, "standard input: packages: fits\n", checked({"Packages"}, kPackages));
  const ToolRun other = checked({"feedback"}, kPackages);
  EXPECT_EQ(kStatusUnfit, other.status);
  EXPECT_EQ(0u, other.out.find("standard input:1:1: no feedback: its root element is \"packages\"")) << other.out;
  EXPECT_EQ(kStatusUsage, checked({"pakages"}, kPackages).status);
}

TEST(Check, EveryEncodingIsChecked) {
  for (const bool bigEndian : {false, true})
    expectChecked(
        kStatusOk, "standard input: packages: fits\n",
        checked({}, utf16(u"\uFEFF<packages><package cmSearchPath='a' defaultName='b'/></packages>", bigEndian)));
}

TEST(Check, EmptyReplyFitsOneOfItsKinds) {
  const ToolRun run = checked({}, "<response/>");
  EXPECT_EQ(kStatusOk, run.status) << run.out;
}

TEST(Check, CapturedMessageIsCheckedWhereItStands) {
  const std::string message = encodedExample("closeConnections");
  const std::string body = message.substr(message.find("><") + 1);
  const std::string envelope =
      "HTTP/1.1 200 OK\r\n\r\n<s:Envelope xmlns:s='urn:s' xmlns='urn:dxmd:query-service:api:1'>\n<s:Header/><s:Body>\n"
      "  <command xmlns:xsi='urn:x' extra=''>";
  expectChecked(kStatusUnfit,
                "standard input: closeConnections: does not fit at 1 place\n"
                "standard input:5:3: \"command\" has no attribute \"extra\"\n",
                checked({}, envelope + body + "</s:Body></s:Envelope>"));
  const std::string wide = utf16(u"\uFEFF<packages>é😀<x/></packages>", false);
  EXPECT_TRUE(has(checked({}, wide).out, "standard input:1:13: \"x\" does not belong here"));
  const std::string latin = "<?xml version='1.0' encoding='ISO-8859-1'?>\n<packages>\xE9<x/></packages>";
  EXPECT_TRUE(has(checked({}, latin).out, "standard input:2:12: \"x\" does not belong here"));
}

TEST(Check, PartsOfMessagesHaveThePrefixesOfTheWhole) {
  expectChecked(kStatusOk, "standard input: parameterValueItem: fits\n", checked({}, "<item xsi:nil='true'/>"));
  expectChecked(kStatusUnfit,
                "standard input: parameterValueItem: does not fit at 1 place\n"
                "standard input:1:1: \"item\" \"xsi:type\" names no type that it may have\n",
                checked({}, "<item xmlns:bus='urn:other' xsi:type='bus:simpleParmValueItem'/>"));
}

TEST(Check, SecretsAndControlsAreInNoMessage) {
  const ToolRun run =
      checked({},
              "<connection><dataSourceType value=''/><password value='swordfish' other='swordfish'>swordfish</password>"
              "<property name='password' value='swordfish'/></connection>");
  EXPECT_EQ(kStatusUnfit, run.status);
  EXPECT_TRUE(has(run.out, "does not fit at 4 places")) << run.out;
  EXPECT_FALSE(has(run.out, "swordfish")) << run.out;
  const ToolRun quoted =
      checked({}, "<item xsi:type='bus:hierarchicalParmValueItem'><subNodes xsi:nil=\"'swordfish'\"/></item>");
  EXPECT_EQ(kStatusUnfit, quoted.status);
  EXPECT_FALSE(has(quoted.out, "swordfish")) << quoted.out;
  const ToolRun control = checked({}, "<packages><x\xE2\x80\xAE/></packages>");
  EXPECT_FALSE(has(control.out, "\xE2\x80\xAE")) << control.out;
}

TEST(Check, DocumentTooDeepIsRefused) {
  const std::string deep = repeated(100000, "<entry class='info'>") + repeated(100000, "</entry>");
  expectChecked(kStatusUnfit,
                "standard input:1:1: \"feedback\" is not checked: its document has more than 10000 levels\n",
                checked({}, "<feedback>" + deep + "</feedback>"));
}

TEST(Check, MissingSchemasAreAnError) {
  expectFailure(kStatusFile, "/nowhere/packages.xsd: cannot be read: No such file or directory",
                run({"check", "--schemas", "/nowhere"}, kPackages));
}
