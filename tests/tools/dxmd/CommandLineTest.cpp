#include <algorithm>
#include <filesystem>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <tools/dxmd/Registry.h>
#include <tools/dxmd/json/Json.h>

#include "RunTool.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

const std::vector<std::string> kDecode{"decode", "response"};

}  // namespace

TEST(CommandLine, WrongUsageIsStatus2) {
  EXPECT_EQ(2, run({"--indent", "2", "encode", "execute"}, "{}").status);
  EXPECT_EQ(2, run({"encode", "execute", "a", "b"}).status);
  EXPECT_EQ(2, run({"encode", "execute", "--indent", "x"}, "{}").status);
  EXPECT_EQ(2, run({"encode", "execute", "--indent", "-1"}, "{}").status);
  EXPECT_EQ(2, run({"decode", "response", "--format", "xls"}).status);
  EXPECT_EQ(2, run({"decode", "response", "--limit", "-1"}, "<response/>").status);
  EXPECT_EQ(2, run({"decode", "response", "--output"}).status);
  expectFailure(kStatusUsage, "--query-service-namespace: must not be empty (see dxmd encode execute --help)",
                run({"encode", "execute", "--query-service-namespace", ""}, "{}"));
  EXPECT_EQ(2, run({"encode", "execute", "--query-service-namespace="}, "{}").status);
  expectFailure(
      kStatusUsage,
      "a verb is needed: encode, decode, check, format, diff, kinds, example, schema or help (see dxmd --help)",
      run({}));
  expectFailure(
      kStatusUsage,
      "\"foo\" is no verb; the verbs are encode, decode, check, format, diff, kinds, example, schema and help (see "
      "dxmd --help)",
      run({"foo"}));
  expectFailure(kStatusUsage, "a kind of message is needed (see dxmd encode --help)", run({"encode"}));
  expectFailure(kStatusUsage, "unexpected argument \"--x\" (see dxmd encode execute --help)",
                run({"encode", "--x", "execute"}));
  EXPECT_TRUE(has(run({"decode", "nonsense"}).err, "\"nonsense\" is no kind of message; the kinds are execute, "));
  EXPECT_TRUE(has(run({"kinds", "nonsense"}).err, "\"nonsense\" is no kind of message"));
}

TEST(CommandLine, OptionOfOneKindIsRefusedForOthers) {
  EXPECT_EQ(2, run({"encode", "execute", "--format", "table"}, "{}").status);
  EXPECT_EQ(2, run({"encode", "--format", "table", "execute"}, "{}").status);
  EXPECT_EQ(0, run({"decode", "response", "--format", "table"}, "<response/>").status);
}

TEST(CommandLine, OptionsStandBeforeOrBehindTheKind) {
  const std::string before = run({"encode", "--indent", "2", "closeConnections", "-"}, "{}").out;
  const std::string behind = run({"encode", "closeConnections", "--indent", "2"}, "{}").out;
  EXPECT_TRUE(has(before, "\n  <closeConnections/>\n"));
  EXPECT_EQ(before, behind);
}

TEST(CommandLine, FileMayBearTheNameOfAVerbOrKindAndMustBeThere) {
  for (const char* name : {"schema", "kinds", "execute"})
    expectFailure(kStatusFile, name + std::string(": cannot be read: No such file or directory"),
                  run({"decode", "response", name}));
}

TEST(CommandLine, HelpListsStatusesKindsAndNotes) {
  const ToolRun help = run({"--help"});
  EXPECT_EQ(0, help.status);
  EXPECT_TRUE(has(help.out, "Exit status:"));
  EXPECT_TRUE(has(run({"encode", "--help"}).out, "closeConnections"));
  EXPECT_TRUE(has(run({"decode", "response", "--help"}).out, "--format"));
  EXPECT_TRUE(has(run({"kinds", "response"}).out, "--format"));
  EXPECT_EQ("dxmd " DXMD_VERSION "\n", run({"--version"}).out);
}

TEST(CommandLine, HelpIsAVerbToo) {
  EXPECT_EQ(run({"--help"}).out, run({"help"}).out);
  EXPECT_EQ(run({"decode", "--help"}).out, run({"help", "decode"}).out);
  EXPECT_EQ(run({"kinds", "--help"}).out, run({"help", "kinds"}).out);
  EXPECT_EQ(run({"decode", "response", "--help"}).out, run({"help", "decode", "Response"}).out);
  EXPECT_EQ(run({"kinds", "response"}).out, run({"help", "response"}).out);
  EXPECT_TRUE(has(run({"help", "decoed"}).err, "\"decoed\" is no verb; "));
  expectFailure(kStatusUsage, "unexpected argument \"response\" (see dxmd help --help)",
                run({"help", "kinds", "response"}));
  expectFailure(kStatusUsage,
                "\"response\" is a kind of message, and a verb is needed: encode, decode, check, format, diff, kinds, "
                "example, schema or "
                "help (see dxmd --help)",
                run({"response"}));
}

TEST(CommandLine, WhatIsMistypedIsSuggested) {
  EXPECT_TRUE(has(run({"encdoe"}).err, "; did you mean \"encode\"? (see"));
  EXPECT_TRUE(has(run({"encode", "excute"}).err, "; did you mean \"execute\"?\n"));
  EXPECT_TRUE(has(run({"decode", "response", "--fromat", "csv"}).err, "; did you mean \"--format\"? (see"));
  EXPECT_FALSE(has(run({"encode", "nonsense"}).err, "did you mean"));
}

TEST(CommandLine, KindsAreKnownInAnyCase) {
  EXPECT_EQ(run({"encode", "closeConnections"}, "{}").out, run({"encode", "CLOSECONNECTIONS"}, "{}").out);
  EXPECT_EQ(run({"example", "execute"}).out, run({"example", "Execute"}).out);
}

TEST(CommandLine, NothingReachesATerminalRaw) {
  const std::string raw = "\x1B[2J\xC2\x9B\xE2\x80\xAE\xE2\x80\xA8\n";
  const std::string shown = R"(\x1B[2J\x9B\u202E\u2028\n)";
  EXPECT_TRUE(has(run({"decode", "response", raw}).err, shown + ": cannot be read"));
  EXPECT_FALSE(has(run({"encode", raw}).err, "\x1B"));
  EXPECT_FALSE(has(run({"encode", "execute"}, "{\"\xC2\x9B\": 1}").err, "\xC2\x9B"));
  const std::string xml =
      "<response><columnList><c name='a'/></columnList><resultData><row><value v='\xC2\x9B\xE2\x80\xAE'/>"
      "</row></resultData></response>";
  EXPECT_TRUE(has(run({"decode", "response"}, xml).out, R"("\u009B\u202E")"));
  EXPECT_TRUE(has(run({"decode", "response", "--format", "table"}, xml).out, R"(\x9B\u202E)"));
  // CSV is for programs, but on a terminal it is looked at.
  EXPECT_TRUE(has(run({"decode", "response", "--format", "csv"}, xml).out, "\xC2\x9B"));
  Console terminal;
  terminal.outIsTerminal = true;
  EXPECT_EQ("a\r\n\\x9B\\u202E\r\n", run({"decode", "response", "--format", "csv"}, xml, terminal).out);
}

TEST(CommandLine, JsonIsColouredOnATerminalThatHasColours) {
  Console terminal;
  terminal.outIsTerminal = true;
  terminal.hasColours = true;
  EXPECT_EQ("{\n  \x1B[34m\"rows\"\x1B[0m: []\n}\n", run(kDecode, "<response/>", terminal).out);
  terminal.hasColours = false;
  EXPECT_EQ("{\n  \"rows\": []\n}\n", run(kDecode, "<response/>", terminal).out);
}

TEST(CommandLine, ProgressIsToldOnATerminalAfterASecond) {
  double now = 0;
  Console terminal;
  terminal.errIsTerminal = true;
  terminal.seconds = [&] { return now; };
  EXPECT_EQ("", run(kDecode, "<response/>", terminal).err);
  now = 1.5;
  EXPECT_EQ("\r\x1B[Kdxmd: 0 MB read\r\x1B[K", run(kDecode, "<response/>", terminal).err);
  const TempFolder folder;
  const std::string file = folder.add("reply.xml", "<response/>");
  EXPECT_TRUE(has(run({"decode", "response", file, file}, "", terminal).err, "dxmd: 0 MB read, "));
}

TEST(CommandLine, FileOfSecretsIsItsOwnersAlone) {
  const TempFolder folder;
  const auto modeOf = [&](const std::string& kind, const std::string& json) {
    const std::string path = folder.path(kind + std::to_string(json.size()));
    EXPECT_EQ(0, run({"encode", kind, "--output", path}, json).status);
    return static_cast<unsigned>(std::filesystem::status(path).permissions());
  };
  const mode_t mask = ::umask(022);
  EXPECT_EQ(0644u, modeOf("closeConnections", "{}"));
  EXPECT_EQ(0600u, modeOf("connection", R"({"password": "p"})"));
  EXPECT_EQ(0644u, modeOf("connection", R"({"username": "us"})"));
  ::umask(mask);
}

TEST(CommandLine, MaskInPlaceOfASecretIsRefused) {
  const std::string why =
      ": *** stands where a secret belongs: give the secret itself (dxmd decode --show-secrets prints it)";
  expectFailure(kStatusUnfit, "standard input: $.password" + why,
                run({"encode", "connection"}, R"({"password": "***"})"));
  expectFailure(kStatusUnfit, "standard input: $.dataSources[0].connection" + why,
                run({"encode", "response"}, R"({"dataSources": [{"connection": "UID=u;PWD=***;DB=x"}]})"));
  expectFailure(kStatusUnfit, "standard input: $.rows[0][0]" + why,
                run({"encode", "response"}, R"({"columnList": [{"name": "password"}], "rows": [["***"]]})"));
  EXPECT_EQ(0, run({"encode", "connection"}, R"({"username": "***", "password": "a***b"})").status);
}

TEST(CommandLine, CharacterThatXmlLacksIsRefusedWithItsPlace) {
  expectFailure(kStatusUnfit, "standard input: $.rows[0][1]: U+0001 is no character of XML",
                run({"encode", "response"}, R"({"rows": [["", "a\u0001"]]})"));
  EXPECT_TRUE(has(run({"encode", "response"}, "{\"rows\": [[\"\", \"a\x01\"]]}").err, " (in $.rows[0][1])\n"));
}

TEST(CommandLine, KindsAreListedOnALineEach) {
  const std::string lines = run({"kinds"}).out;
  EXPECT_EQ(allKinds().size(), static_cast<std::size_t>(std::count(lines.begin(), lines.end(), '\n')));
}

TEST(CommandLine, MalformedXmlIsStatus4WithItsPlace) {
  EXPECT_EQ(4, run(kDecode, "<response>\n <row></response>").status);
  EXPECT_TRUE(has(run(kDecode, "<response>\n <row></response>").err, "dxmd: standard input:2:"));
  EXPECT_EQ(4, run(kDecode, "<!DOCTYPE response [<!ENTITY e 'x'>]><response>&e;</response>").status);
  EXPECT_EQ(4, run(kDecode, "<response/><response/>").status);
  expectFailure(kStatusSyntax, "standard input:1:1: empty where XML is expected", run(kDecode, "\n"));
  expectFailure(kStatusSyntax, "standard input:1:1: not XML: this looks like JSON", run(kDecode, "{}"));
  expectFailure(kStatusSyntax, "standard input:1:1: not JSON: this looks like XML",
                run({"encode", "execute"}, "<command/>"));
}

TEST(CommandLine, RootOfAnotherKindIsStatus1) {
  expectFailure(kStatusUnfit,
                "standard input: no response: its root element is \"command\", not response, and it holds none of "
                "queryFeedbackResult, columnList, resultData; it is execute; try dxmd decode execute",
                run(kDecode, "<command><execute/></command>"));
  expectFailure(kStatusUnfit,
                "standard input: no response: its root element is \"resultData\", not response, and it holds none of "
                "queryFeedbackResult, columnList, resultData",
                run(kDecode, "<resultData><row/></resultData>"));
  EXPECT_EQ(0, run(kDecode, "<envelope><body><resultData/></body></envelope>").status);
}

TEST(CommandLine, WhatTheLibraryRefusesIsStatus1WithItsText) {
  expectFailure(kStatusUnfit,
                "standard input: QFResponseDomHelper refuses it: "
                "TRN_ASSERT(columnsList.item( idx ).getNodeType() == TRNIDOM_Node::ELEMENT_NODE);",
                run({"decode", "response", "--exact"}, "<response><columnList> <c/></columnList></response>"));
  const ToolRun badName = run({"encode", "connection"}, R"({"properties": {"not a name": "secret"}})");
  EXPECT_EQ(1, badName.status);
  EXPECT_FALSE(has(badName.err, "secret"));
  EXPECT_EQ(1, run({"encode", "connection"}, R"({"username": "\u0001"})").status);
}

TEST(CommandLine, DeepDocumentsAreRead) {
  EXPECT_EQ(
      0, run(kDecode, "<response><resultData/>" + repeated(1000000, "<a>") + repeated(1000000, "</a>") + "</response>")
             .status);
}

TEST(CommandLine, OutputIsWrittenWholeOrNotAtAll) {
  const TempFolder folder;
  const std::string out = folder.path("out.xml");
  const ToolRun good = run({"encode", "closeConnections", "--output", out}, "{}");
  EXPECT_EQ("", good.out);
  EXPECT_EQ(run({"encode", "closeConnections"}, "{}").out, bytesOf(out));
  EXPECT_EQ(0, run({"encode", "-o", folder.path("short.xml"), "closeConnections"}, "{}").status);
  EXPECT_EQ(bytesOf(out), bytesOf(folder.path("short.xml")));
  EXPECT_EQ(1, run({"encode", "closeConnections", "--output", out}, R"({"x": 1})").status);
  EXPECT_EQ(run({"encode", "closeConnections"}, "{}").out, bytesOf(out));
  EXPECT_EQ(3, run({"encode", "closeConnections", "--output", folder.path("no/out")}, "{}").status);
  EXPECT_EQ((std::vector<std::string>{"out.xml", "short.xml"}), folder.names());
}

TEST(CommandLine, KindsAreDescribedForPrograms) {
  const Json all = Json::parse(run({"kinds", "--json"}).out);
  ASSERT_EQ(allKinds().size(), all.size());
  for (std::size_t i = 0; i < all.size(); ++i) {
    const Kind& kind = allKinds()[i];
    EXPECT_EQ(kind.name, all[i]["kind"].get<std::string>());
    EXPECT_EQ(all[i], Json::parse(run({"kinds", kind.name, "--json"}).out));
    const Json schema = Json::parse(run({"schema", kind.name}).out);
    EXPECT_EQ("https://json-schema.org/draft/2020-12/schema", schema["$schema"]) << kind.name;
  }
}

TEST(CommandLine, EveryExceptionIsAStatusWithItsText) {
  EXPECT_EQ(kStatusOk, outcomeOf([] {}).status);
  const Outcome failed = outcomeOf([] { throw std::runtime_error("a\nb"); });
  EXPECT_EQ(kStatusUnfit, failed.status);
  EXPECT_EQ("a\\nb", failed.message);
  const Outcome exhausted = outcomeOf([] { throw std::bad_alloc(); });
  EXPECT_EQ(kStatusMemory, exhausted.status);
  EXPECT_EQ("out of memory", exhausted.message);
}
