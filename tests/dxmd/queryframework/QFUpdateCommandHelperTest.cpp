#include <dxmd/queryframework/QFUpdateCommandHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

// The command of an update set with these children behind the model path.
std::string updateOf(const std::string& subjects) {
  return inEnvelope("<update><updateSet><modelPath>m</modelPath>" + subjects + "</updateSet></update>");
}

}  // namespace

TEST(QFUpdateCommandHelper, WritesSubjectsBehindTheModelPathInOrder) {
  QFUpdateCommandHelper command("m");
  expectXml(updateOf(""), made(command));
  const QFUpdateCommandHelper::UpdateSubj subjects[] = {{"b", "1 < 2"}, {"a", ""}, {"b", "1 < 2"}};
  for (const auto& subject : subjects) command.AddUpdateSubject(subject.name, subject.text);
  expectXml(updateOf(R"(<updateSubject name="b">1 &lt; 2</updateSubject><updateSubject name="a"></updateSubject>)"
                     R"(<updateSubject name="b">1 &lt; 2</updateSubject>)"),
            made(command));
  expectXml(inEnvelope("<update><updateSet><modelPath/></updateSet></update>"), made(QFUpdateCommandHelper("")));
}
