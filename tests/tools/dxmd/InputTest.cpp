// What decode, format and diff make of files as people have them.

#include <gtest/gtest.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <tools/dxmd/Registry.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

/// The example with a prefix on every name, in an envelope behind the head of an answer.
std::string wrapped(const std::string& kind) {
  std::string xml = encodedExample(kind, 3);
  for (std::size_t at = xml.find('<'); at != std::string::npos; at = xml.find('<', at + 1))
    xml.insert(at + (xml[at + 1] == '/' ? 2 : 1), "n:");
  return "HTTP/1.1 200 OK\r\nServer: s\r\n\r\n\n<?xml version='1.0' encoding='UTF-16'?>\n<s:Envelope><s:Body>\n" + xml +
         "</s:Body></s:Envelope>" + std::string(2, '\0');
}

const std::string kError = "<response><message severity=\"error\">No such item</message></response>";

}  // namespace

TEST(DecodeCaptured, EveryKindReadsBackIndentedWrappedAndUnnamed) {
  for (const Kind& kind : allKinds()) {
    const std::string expected = run({"decode", kind.name}, encodedExample(kind.name)).out;
    const bool isError = kind.errors && kind.name != "feedback";
    for (const std::string& captured : {encodedExample(kind.name, 2), wrapped(kind.name)}) {
      EXPECT_EQ(expected, run({"decode", kind.name}, captured).out) << captured;
      const ToolRun found = run({"decode"}, captured);
      EXPECT_EQ(expected, found.out) << captured;
      EXPECT_EQ(isError ? 6 : 0, found.status) << found.err;
    }
  }
}

TEST(DecodeCaptured, ExactReadsTheDocumentAsItIs) {
  EXPECT_EQ(1, run({"decode", "refinedObjects", "--exact"}, encodedExample("refinedObjects", 2)).status);
  EXPECT_EQ(0, run({"decode", "--exact"}, encodedExample("refinedObjects")).status);
  EXPECT_EQ(1,
            run({"decode", "execute", "--exact"}, "<Envelope><Body>" + encodedExample("execute") + "</Body></Envelope>")
                .status);
  EXPECT_EQ(4, run({"decode", "execute", "--exact"}, "HTTP/1.1 200 OK\n\n" + encodedExample("execute")).status);
}

TEST(DecodeCaptured, PlacesAreThoseInTheFile) {
  const ToolRun headed = run({"decode"}, "HTTP/1.1 200 OK\n\n\n  <?xml version='1.0'?><response>\n</x>");
  EXPECT_TRUE(has(headed.err, "dxmd: standard input:5:")) << headed.err;
  const ToolRun spaced = run({"decode"}, "  <?xml version='1.0'?></x>");
  EXPECT_TRUE(has(spaced.err, "dxmd: standard input:1:25")) << spaced.err;
}

// An empty answer, or another kind's, would be a false one.
TEST(DecodeKind, ReplyOfAnotherKindIsRefusedInWords) {
  const std::vector<std::string> replies{"response", "validateReply", "expansionResult", "joinPaths", "refinedObjects"};
  for (const std::string& asked : replies) {
    for (const std::string& given : replies) {
      if (asked == given) continue;
      const ToolRun wrong = run({"decode", asked}, encodedExample(given));
      EXPECT_EQ(given == "validateReply" ? 6 : 1, wrong.status) << asked << ", " << given;
      EXPECT_EQ("", wrong.out);
      EXPECT_TRUE(has(wrong.err, "no " + asked + ": it holds none of ")) << wrong.err;
      EXPECT_TRUE(has(wrong.err, "; it is " + given + "; try dxmd decode " + given)) << wrong.err;
    }
  }
  EXPECT_EQ(1, run({"decode", "response"}, "<response><unheardOf/></response>").status);
}

TEST(DecodeKind, PageOfHtmlIsNoMessage) {
  const std::string why = "standard input: no message, but a page of HTML: \"502 Bad Gateway\"";
  const std::string page = "<head><title>502 Bad Gateway</title></head><body><br><message>x</message></body></html>";
  for (const char* start :
       {"<!DOCTYPE html>\n<html>", "<html lang=en>", "<HTML>", "<?xml version='1.0'?>\n<!doctype HTML><html>"})
    for (const char* kind : {"validateReply", "response", ""}) {
      const std::vector<std::string> args{"decode", kind};
      expectFailure(kStatusUnfit, why, run({args.begin(), args.end() - (*kind == '\0' ? 1 : 0)}, start + page));
    }
  expectFailure(kStatusUnfit, "standard input: no message, but a page of HTML", run({"decode"}, "<html><br></html>"));
}

TEST(DecodeReply, ErrorsHaveAStatusOfTheirOwn) {
  const ToolRun shown = run({"decode", "--indent", "0"}, kError);
  EXPECT_EQ(6, shown.status);
  EXPECT_EQ("{\"severity\":\"error\",\"messages\":\"No such item\\n\"}\n", shown.out);
  EXPECT_EQ("dxmd: standard input: validateReply: it reports: error: No such item\n", shown.err);
  // Who asks for the kind expects errors.
  EXPECT_EQ(0, run({"decode", "validateReply"}, kError).status);

  const ToolRun other = run({"decode", "response"}, kError);
  EXPECT_EQ(6, other.status);
  EXPECT_EQ("", other.out);
  EXPECT_TRUE(has(other.err, "; it reports: error: No such item\n")) << other.err;

  const ToolRun beside =
      run({"decode", "response", "--format", "csv"},
          "<response><message severity='fatal'>Stopped</message><resultData><row><value v='1'/></row>"
          "</resultData></response>");
  EXPECT_EQ(6, beside.status);
  EXPECT_EQ("1\r\n", beside.out);
  EXPECT_EQ("dxmd: standard input: response: it reports: fatal: Stopped\n", beside.err);
  EXPECT_EQ(6, run({"decode"}, "<Envelope><Body><Fault><faultcode>c</faultcode></Fault></Body></Envelope>").status);
  EXPECT_EQ(0, run({"decode"}, "<response><message severity='warning'>w</message></response>").status);
}

TEST(DecodeFiles, EachIsShownAndTheWorstStatusCounts) {
  const TempFolder folder;
  const std::string good = folder.add("good.xml", "<parameters/>");
  const std::string error = folder.add("error.xml", kError);
  const std::string broken = folder.add("broken.xml", "<a>");
  const std::string other = folder.add("other.xml", "<a/>");
  const std::string none = folder.path("none.xml");
  const std::string shown = run({"decode", good}).out;
  EXPECT_EQ(shown + shown, run({"decode", good, good}).out);
  EXPECT_EQ(shown + shown, run({"decode", "getParameters", good, "-"}, "<parameters/>").out);
  EXPECT_EQ(6, run({"decode", good, error, good}).status);
  EXPECT_EQ(1, run({"decode", other, error, good}).status);
  EXPECT_EQ(4, run({"decode", broken, other, good}).status);
  const ToolRun all = run({"decode", none, broken, good});
  EXPECT_EQ(3, all.status);
  EXPECT_EQ(shown, all.out);
  EXPECT_TRUE(has(all.err, "dxmd: " + none + ": cannot be read: ") && has(all.err, "\ndxmd: " + broken + ":1:"));

  const std::string out = folder.add("out", "before");
  EXPECT_EQ(4, run({"decode", good, broken, "--output", out}).status);
  EXPECT_EQ("before", bytesOf(out));
  EXPECT_EQ(6, run({"decode", good, error, "--output", out}).status);
  EXPECT_EQ(run({"decode", good, error}).out, bytesOf(out));
}

TEST(DecodeFiles, FirstWordThatNamesAKindIsTheKind) {
  EXPECT_EQ(0, run({"decode", "GETPARAMETERS"}, "<parameters/>").status);
  EXPECT_EQ(3, run({"decode", "./getParameters"}).status);
  EXPECT_EQ(3, run({"decode", "reply.xml"}).status);
  EXPECT_EQ(2, run({"decode", "replyy"}).status);
  EXPECT_EQ(2, run({"decode", "--format", "csv"}, "<response/>").status);
}

// What is larger than 4 MB is read row by row.
TEST(DecodeLarge, CapturedRowsAreReadOneByOne) {
  std::string rows;
  std::string prefixed;
  constexpr int kRows = 130000;
  for (int i = 0; i < kRows; ++i) {
    const std::string number = std::to_string(i);
    rows += "\n    <row>\n      <value v=\"" + number + "\"/>\n    </row>";
    prefixed += "\n<q:row> <q:value v=\"" + number + "\"/></q:row>";
  }
  ASSERT_GT(prefixed.size(), std::size_t{4} << 20);
  const auto expectRows = [&](const std::vector<std::string>& args, const std::string& xml) {
    const ToolRun decoded = run(args, xml);
    EXPECT_EQ("", decoded.err);
    EXPECT_TRUE(has(decoded.out, "[\"0\"]") && has(decoded.out, "[\"129999\"]"));
  };
  expectRows({"decode"}, "<response>\n  <columnList>\n    <c/>\n  </columnList>\n  <resultData>" + rows +
                             "\n  </resultData>\n</response>\n");
  expectRows({"decode", "response"}, "HTTP/1.1 200 OK\n\n<s:Envelope><s:Body><q:response><q:resultData>" + prefixed +
                                         "</q:resultData></q:response></s:Body></s:Envelope>");
  const std::string others = "<other>" + rows + "</other>";
  EXPECT_EQ(1, run({"decode"}, others).status);
  EXPECT_EQ(0, run({"decode"}, "<parameters>" + std::string(5 << 20, ' ') + "</parameters>").status);
  const std::string embedded = "<materializeRequest><resultSet>" + rows + "</resultSet></materializeRequest>";
  EXPECT_TRUE(has(run({"decode"}, embedded).err, "unless its kind is named: dxmd decode materializeRequest"));
}

TEST(DecodeHostile, WhatWouldGrowWithTheSquareOfTheDepthIsRefused) {
  const auto nested = [](const std::string& start, const std::string& end) {
    return repeated(2000, start) + repeated(2000, end);
  };
  const std::string why = "nest so deep that the result would be many times larger than the document\n";
  const ToolRun fault =
      run({"decode", "dataSourceFault"},
          "<fault>" + nested("<dataSource><name value='a'/><connection/>", "</dataSource>") + "</fault>");
  EXPECT_EQ(1, fault.status);
  EXPECT_TRUE(has(fault.err, "/connection: it belongs to each of the \"dataSource\" and \"connection\" elements") &&
              has(fault.err, why))
      << fault.err;
  const ToolRun references = run({"decode", "retargetObjectReferences"},
                                 "<retargetObjectReferences>" +
                                     nested("<entry currentRefValue='a'><updateInfo newRefValue='b'/>", "</entry>") +
                                     "</retargetObjectReferences>");
  EXPECT_EQ(1, references.status);
  EXPECT_TRUE(has(references.err, why)) << references.err;
  EXPECT_EQ(1, run({"decode", "updateObjectRequest"},
                   "<updateObjectRequest>" + nested("<task name='removeObject'>", "</task>") + "</updateObjectRequest>")
                   .status);
}

TEST(Format, IndentsAndHidesSecretsInAnyXml) {
  const ToolRun shown =
      run({"format"},
          "HTTP/1.1 200 OK\nAuthorization: Basic x\n\n<?xml version='1.0'?><!--pwd=c--><a password='p'>"
          "<b>UID=u;PWD=w;</b>  <ticket><t>s</t></ticket><c> </c></a>");
  EXPECT_EQ("", shown.err);
  EXPECT_EQ(
      "<!--pwd=***-->\n<a password=\"***\">\n  <b>UID=u;PWD=***;</b>\n  <ticket>\n    <t>***</t>\n  </ticket>\n"
      "  <c> </c>\n</a>\n",
      shown.out);
  EXPECT_EQ("<a password=\"p\"/>\n", run({"format", "--show-secrets"}, "<a password='p'/>").out);
  EXPECT_EQ("<a>\n <b/>\n</a>\n", run({"format", "--indent", "1"}, "<a>\n\n<b/></a>").out);
  EXPECT_EQ(4, run({"format"}, "<a>").status);
  EXPECT_EQ(0, run({"format"}, repeated(100000, "<a>") + repeated(100000, "</a>")).status);
}

TEST(Diff, NamesTheFileThatFails) {
  const TempFolder folder;
  const std::string other = folder.add("other.xml", "<other/>");
  for (const std::vector<std::string>& kind : {std::vector<std::string>{}, {"--kind", "response"}}) {
    std::vector<std::string> args{"diff", folder.add("reply.xml", encodedExample("response")), other};
    args.insert(args.end(), kind.begin(), kind.end());
    EXPECT_EQ(0u, run(args).err.find("dxmd: " + other + ": no "));
  }
}

TEST(Diff, TellsWhatDiffersAsDiffDoes) {
  const TempFolder folder;
  const std::string left = folder.add("left.xml", encodedExample("response"));
  const auto differences = [&](const std::string& name, const std::string& xml) {
    return run({"diff", left, folder.add(name, xml)});
  };
  EXPECT_EQ(0, differences("same.xml", encodedExample("response", 4)).status);
  const std::string right = R"(<response><columnList><column name="Region" type="x"/></columnList><resultData>)"
                            R"(<row><value v="North"/><value v="1200.50"/></row><row><value v="West"/></row>)"
                            R"(<row><value v="South"/><value v=""/></row></resultData></response>)";
  const std::string whole = folder.add("whole.xml", right);
  EXPECT_EQ("+ $.rows[1]: [\"West\"]\n",
            run({"diff", folder.add("less.xml", std::string(right).replace(right.find("<row><value v=\"West"), 28, "")),
                 whole})
                .out);
  const ToolRun secret = run({"diff", folder.add("a", "<connection><password value='a'/></connection>"),
                              folder.add("b", "<connection><password value='b'/></connection>")});
  EXPECT_EQ(1, secret.status);
  EXPECT_EQ("- $.password: \"***\"\n+ $.password: \"***\"\n", secret.out);
  EXPECT_EQ("+ $.password: \"***\"\n",
            run({"diff", folder.add("c", "<connection/>"), folder.path("b"), "--kind", "connection"}).out);
  const ToolRun kinds = differences("other.xml", kError);
  EXPECT_EQ(1, kinds.status);
  EXPECT_EQ("- kind: \"response\"\n+ kind: \"validateReply\"\n", kinds.out);
  EXPECT_EQ(2, run({"diff", left, folder.path("none.xml")}).status);
  EXPECT_EQ(2, run({"diff", left, folder.add("broken.xml", "<a>")}).status);
  EXPECT_EQ(2, run({"diff", left}).status);
  EXPECT_EQ(2, run({"diff", "--kind", "execute", left, whole}).status);
  EXPECT_EQ(0, run({"diff", "--kind", "RESPONSE", whole, whole}).status);
}
