#include <tools/dxmd/capture/Message.h>

#include <gtest/gtest.h>
#include <trnidom/TRNIDOM_Parser.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <tools/dxmd/Detect.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

namespace {

std::string message(const std::string& xml) {
  return xmlOf(messageIn(TRNIDOM_Parser::parseString(xml), &isMessageName));
}

std::string dense(const std::string& xml, bool comments) {
  const TRNIDOM_Document document = TRNIDOM_Parser::parseString(xml);
  dropIndentation(document.getDocumentElement(), comments);
  return TRNIDOM_Writer::toString(document);
}

}  // namespace

TEST(Message, IndentationAndCommentsGo) {
  EXPECT_EQ("<a><b><c/></b><d> </d><e/></a>",
            dense("<a>\n <b> <c/>\t</b>\r\n <!-- x --> <d> </d><?p x?><e> <!-- y --> </e>\n</a>", true));
  EXPECT_EQ("<a><!-- x --><b/><?p x?></a>", dense("<a> <!-- x --> <b/> <?p x?> </a>", false));
}

TEST(Message, WhiteSpaceThatIsContentStays) {
  for (const char* xml : {"<a> </a>", "<a> text <b> <c/> </b> </a>", "<a> <![CDATA[ ]]> <b/></a>",
                          "<a><b xml:space=\"preserve\"> <c/> </b></a>", "<a>te<!-- x -->xt</a>"})
    EXPECT_EQ(xml, dense(xml, true));
}

TEST(Message, PrefixOfTheRootGoesFromEveryName) {
  EXPECT_EQ("<command xmlns:n=\"u\"><m:a n=\"1\"><b n=\"2\" xsi:type=\"n:t\">n:text</b></m:a></command>",
            message("<n:command xmlns:n='u'><m:a n='1'><n:b n:n='2' xsi:type='n:t'>n:text</n:b></m:a></n:command>"));
}

TEST(Message, MessageStandsInTheBodyOfAnEnvelope) {
  EXPECT_EQ("<response><a/></response>",
            message("<s:Envelope xmlns:s='u'> <s:Header><response/></s:Header> <s:Body> <response> <a/> </response>"
                    "</s:Body> </s:Envelope>"));
  EXPECT_EQ("<command/>", message("<Envelope><Body><q:call><q:command/></q:call></Body></Envelope>"));
  EXPECT_EQ("<Fault><faultcode>c</faultcode></Fault>",
            message("<s:Envelope><s:Body><s:Fault><faultcode>c</faultcode></s:Fault></s:Body></s:Envelope>"));
  // What is in there is no message.
  EXPECT_EQ("<Envelope><Body><a/></Body></Envelope>", message("<Envelope> <Body><a/></Body></Envelope>"));
  EXPECT_EQ("<Envelope/>", message("<Envelope/>"));
  EXPECT_EQ("<letter><Body><command/></Body></letter>", message("<letter><Body><command/></Body></letter>"));
}

TEST(Message, TreesMayBeOfAnyDepth) {
  constexpr int kLevels = 200000;
  EXPECT_TRUE(repeated(kLevels, "<a>") + " " + repeated(kLevels, "</a>") ==
              message(repeated(kLevels, "<p:a> ") + repeated(kLevels, "</p:a> ")));
}
