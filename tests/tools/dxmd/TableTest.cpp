#include <tools/dxmd/Table.h>

#include <gtest/gtest.h>

using namespace dxmd_tool;

namespace {

using Cells = std::vector<std::string>;

std::string tableOf(const Cells& header, const std::vector<Cells>& rows) {
  std::string text;
  Table table(header, [&](std::string_view lines) { text += lines; });
  for (const Cells& row : rows) table.addRow(row);
  table.finish();
  return text;
}

}  // namespace

TEST(Table, AlignsByDisplayedWidth) {
  EXPECT_EQ(
      "Region  量\n"
      "------  --\n"
      "東京    a\n"
      "Zu\xCC\x88rich  22\n",
      tableOf({"Region", "量"}, {{"東京", "a"}, {"Zu\xCC\x88rich", "22"}}));
}

TEST(Table, NumbersStandToTheRight) {
  EXPECT_EQ(
      "   n  mixed\n"
      "----  -----\n"
      "   1  1\n"
      "-2.5  x\n"
      "\n"
      " 1e9\n",
      tableOf({"n", "mixed"}, {{"1", "1"}, {"-2.5", "x"}, {"", ""}, {"1e9"}}));
}

TEST(Table, RaggedRowsAndMissingColumnsKeepTheirPlaces) {
  EXPECT_EQ(
      "a\n"
      "----  -  -\n"
      "\n"
      "         x\n"
      "long  y\n",
      tableOf({"a"}, {{}, {"", "", "x"}, {"long", "y"}}));
  EXPECT_EQ("", tableOf({}, {}));
}

TEST(Table, ControlCharactersPrintAsEscapes) {
  EXPECT_EQ("a\n-------------\nx\\ny\\t\\x1B[2J\n", tableOf({"a"}, {{"x\ny\t\x1B[2J"}}));
}

TEST(Table, WiderCellsAreCutAndMarked) {
  std::vector<Cells> rows(101, Cells{"東京", "x"});
  rows.push_back({"東京都", std::string(1000000, 'y')});
  const std::string text = tableOf({"a", "b"}, rows);
  EXPECT_EQ("東…   …\n", text.substr(text.rfind('\n', text.size() - 2) + 1));
  const std::string wide = tableOf({"a"}, {{std::string(1000000, 'y')}});
  EXPECT_EQ("a\n" + std::string(60, '-') + "\n" + std::string(59, 'y') + "…\n", wide);
}
