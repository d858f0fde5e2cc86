#include <gtest/gtest.h>

#include "RunTool.h"

using namespace dxmd_test;

TEST(UpdateKind, CapturedCommandDecodesToWhatMakesIt) {
  expectDecoded("update", R"(<command><update><updateSet>
        <modelPath>m</modelPath><note/>
        <updateSubject name="s">&lt;x/&gt;<![CDATA[ & y]]></updateSubject><updateSubject name="s"/>
      </updateSet></update><commandID value="C"/><requestID value="R"/></command>)",
                R"({"modelPath":"m","commandID":"C","requestID":"R","updateSubjects":[)"
                R"({"name":"s","text":"<x/> & y"},{"name":"s","text":""}]})");
  expectDecoded("update", "<command><update><updateSet/></update></command>",
                R"({"modelPath":"","commandID":"","requestID":""})");
}

TEST(UpdateKind, CommandWithoutItsPartsIsRefused) {
  expectNotDecoded("update", "<command><update/></command>", R"(/command/update: the element "updateSet" is missing)");
  expectNotDecoded("update", "<command><validate/></command>",
                   R"(no update: its command is not "update"; it is validate; try dxmd decode validate)");
}
