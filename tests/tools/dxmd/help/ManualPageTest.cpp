#include <tools/dxmd/help/ManualPage.h>

#include <gtest/gtest.h>

using namespace dxmd_tool;

TEST(ManualPage, TextsPrintAsTheyAre) {
  GrammarCommand program;
  program.name = "p";
  program.summary = "A-b 'c' \"d\" `e` ^f ~g \\h.";
  const std::string page = manualPage(program, "1");
  EXPECT_NE(std::string::npos, page.find("p \\- a\\-b \\(aqc\\(aq \\(dqd\\(dq \\(gae\\(ga \\(haf \\(tig \\eh\n"))
      << page;
  EXPECT_EQ(std::string::npos, page.find(".SH KINDS"));
}
