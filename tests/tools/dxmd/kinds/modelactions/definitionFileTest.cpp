#include <gtest/gtest.h>

#include "RunTool.h"
#include "TestSupport.h"

using namespace dxmd_test;
using namespace dxmd_tool;

TEST(DefinitionFileKind, TakesTheLinesOfATextFile) {
  const TempFolder folder;
  const std::string path = folder.add("q.def", "\xEF\xBB\xBF[Query]\r\n\ntitle = \xC3\xA9\r\n\n a\rb ");
  expectXml("<file><filePath>" + path +
                "</filePath><contents><line>[Query]</line><line/><line>title = \xC3\xA9</line><line> a&#13;b </line>"
                "</contents></file>\n",
            run({"encode", "definitionFile", "--from", path}).out);
}

TEST(DefinitionFileKind, TheRestOfAFileFromTextComesFromJson) {
  const TempFolder folder;
  const std::string path = folder.add("q.def", "a\n");
  const std::string json = folder.add("q.json", R"({"filePath": "/p", "cmDataSource": "ds"})");
  expectXml("<file><filePath>/p</filePath><contents><line>a</line></contents><cmDataSource>ds</cmDataSource></file>\n",
            run({"encode", "definitionFile", "--from", path, json}).out);
  const std::string both = folder.add("both.json", R"({"contents": ["b"]})");
  expectFailure(kStatusUnfit,
                both + R"(: $: unknown key "contents"; known are "filePath", "dbConnectionName", "cmDataSource")",
                run({"encode", "definitionFile", "--from", path, both}));
}

TEST(DefinitionFileKind, FilesWithoutLinesOrInAnotherEncodingAreRefused) {
  const TempFolder folder;
  const auto expectRefused = [&](const std::string& text, const std::string& message) {
    const std::string path = folder.add("text", text);
    expectFailure(kStatusUnfit, path + message, run({"encode", "definitionFile", "--from", path}));
  };
  expectRefused("", ": must not be empty");
  expectRefused("ok\n\xE9t\xE9\n", ":2: not UTF-8");
  expectRefused("ok\na\x01\n", ":2: U+0001 is no character of XML");
}
