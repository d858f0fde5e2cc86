#include <tools/dxmd/Table.h>

#include <gtest/gtest.h>

using namespace dxmd_tool;

TEST(Table, AlignsByDisplayedWidth) {
  Table table({"Region", "量"});
  table.addRow({"東京", "1"});
  table.addRow({"Zu\xCC\x88rich", "22"});
  EXPECT_EQ(
      "Region  量\n"
      "------  --\n"
      "東京    1\n"
      "Zu\xCC\x88rich  22\n",
      table.text());
}

TEST(Table, RaggedRowsAndMissingColumnsKeepTheirPlaces) {
  Table table({"a"});
  table.addRow({});
  table.addRow({"", "", "x"});
  table.addRow({"long", "y"});
  EXPECT_EQ(
      "a\n"
      "----  -  -\n"
      "\n"
      "         x\n"
      "long  y\n",
      table.text());
  EXPECT_EQ("", Table({}).text());
}

TEST(Table, ControlCharactersPrintAsEscapes) {
  Table table({"a"});
  table.addRow({"x\ny\t\x1B[2J"});
  EXPECT_EQ("a\n-------------\nx\\ny\\t\\x1B[2J\n", table.text());
}
