#include <dxmd/modelactions/DXActionHelperIQDFile.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Lines = std::vector<I18NString>;

}  // namespace

TEST(IQDFile, WritesPathLinesAndWhatTheQueryRunsAgainst) {
  DXActionHelperIQDFile file;
  file.setFilePath("/q.def");
  file.addContentLine("replaced");
  file.setContents({"QUERY 1", "  select 1"});
  file.addContentLine("");
  file.setDbConnectionName("conn");
  file.setCmDataSource("ds");
  TRNIDOM_Element element = madeElement(file);
  expectXml(
      "<file><filePath>/q.def</filePath><contents><line>QUERY 1</line><line>  select 1</line><line/></contents>"
      "<dbConnectionName>conn</dbConnectionName><cmDataSource>ds</cmDataSource></file>",
      element);
  EXPECT_EQ(element, element.getOwnerDocument().getDocumentElement());
}

TEST(IQDFile, EqualLinesBecomeOneWhereTheFirstStood) {
  DXActionHelperIQDFile file;
  file.setContents({"a", "", "b", "a", " a", "", "A"});
  expectXml(
      "<file><filePath/><contents><line>a</line><line/><line>b</line><line> a</line><line>A</line></contents></file>",
      made(file));
  EXPECT_EQ(7u, file.getContents().size());
}

TEST(IQDFile, ReadingAddsLinesOfAnyDepthToThoseHeld) {
  DXActionHelperIQDFile file;
  file.addContentLine("held");
  for (int time = 0; time < 2; ++time)
    take(file, "<file><line>no</line><contents><line>1</line><x><line>2<line>3</line></line></x></contents></file>");
  EXPECT_EQ((Lines{"held", "1", "2", "3", "1", "2", "3"}), file.getContents());
}

TEST(IQDFile, MissingPartsKeepWhatWasHeld) {
  DXActionHelperIQDFile file;
  file.setFilePath("p");
  file.setDbConnectionName("conn");
  file.setCmDataSource("ds");
  take(file, "<file><x><filePath>q</filePath></x><cmDataSource/></file>");
  take(file, TRNIDOM_Element());
  EXPECT_EQ("p", file.getFilePath());
  EXPECT_EQ("conn", file.getDbConnectionName());
  EXPECT_EQ("", file.getCmDataSource());
  EXPECT_TRUE(file.getContents().empty());
}

TEST(IQDFile, WithoutLinesItFailsAfterThePathIsWritten) {
  DXActionHelperIQDFile file;
  file.setFilePath("p");
  TRNIDOM_Element element;
  expectAssert("TRN_ASSERT(false);", "DXActionHelperIQDFile", [&] { file.Make(element); });
  expectXml("<file><filePath>p</filePath></file>", element);
}
