#include <dxmd/modelactions/DXActionHelperObjectAccess.h>

#include <trn/TRNAssertError.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Access = DXActionHelperObjectAccess;
using SecurityObject = DXActionHelperSecurityObject;

SecurityObject user(const char* path) {
  return {path, "", SecurityObject::kUser};
}

// The entries as "path:rule", for the comparison in one line.
std::string entriesOf(const Access& access) {
  std::vector<Access::SecurityObjectAccess> entries;
  access.getEntries(entries);
  std::string text;
  for (const auto& entry : entries)
    text +=
        entry.securityObject->cmSearchPath.toUtf8() + ":" + Access::getObjectAccessRuleStr(entry.rule).toUtf8() + " ";
  return text;
}

}  // namespace

TEST(ObjectAccess, WritesEachPrincipalWithItsRule) {
  Access access;
  TRNIDOM_Element element = madeElement(access);
  access.addEntry({"group('a')", "A > B", SecurityObject::kGroup}, Access::kAllow);
  access.addEntry({"b", "", "custom"}, Access::kUnspecified);
  expectXml(
      "<objectAccess><securityObject cmSearchPath=\"group('a')\" displayPath=\"A > B\" "
      "type=\"group\"><rule>allow</rule>"
      "</securityObject><securityObject cmSearchPath=\"b\" displayPath=\"\" type=\"custom\"><rule>unspecified</rule>"
      "</securityObject></objectAccess>",
      element);
  EXPECT_EQ(element, element.getOwnerDocument().getDocumentElement());
}

TEST(ObjectAccess, StrongerRuleWinsInDocumentWhileEachCallIsHeldAsGiven) {
  Access held;
  for (const auto rule : {Access::kAllow, Access::kUnspecified, Access::kDeny, Access::kAllow})
    held.addEntry(user("u"), rule);
  EXPECT_EQ("u:allow u:unspecified u:deny u:allow ", entriesOf(held));

  Access access;
  TRNIDOM_Element element = madeElement(access);
  access.addEntry(user("u"), Access::kAllow);
  access.addEntry(user("u"), Access::kUnspecified);
  EXPECT_EQ("u:allow ", entriesOf(access));
  access.addEntry(user("u"), Access::kDeny);
  access.addEntry(user("u"), Access::kAllow);
  EXPECT_EQ("u:deny ", entriesOf(access));
}

TEST(ObjectAccess, LaterCallsChangeNothingButTheRuleWhichBecomesTheLastChild) {
  Access access;
  TRNIDOM_Element element = parsed(
      "<objectAccess><securityObject cmSearchPath='u' displayPath='kept' type='kept'><rule>allow</rule><note/>"
      "</securityObject></objectAccess>");
  access.Take(element);
  access.addEntry({"u", "new", SecurityObject::kRole}, Access::kDeny);
  expectXml(
      "<objectAccess><securityObject cmSearchPath=\"u\" displayPath=\"kept\" type=\"kept\"><note/><rule>deny</rule>"
      "</securityObject></objectAccess>",
      element);
}

TEST(ObjectAccess, PrincipalsAreMatchedAmongDirectChildrenOnly) {
  Access access;
  TRNIDOM_Element element = parsed(
      "<objectAccess><group><securityObject cmSearchPath='u'><rule>deny</rule></securityObject></group>"
      "<other cmSearchPath='u'/></objectAccess>");
  access.Take(element);
  access.addEntry(user("u"), Access::kAllow);
  expectXml(
      "<objectAccess><group><securityObject cmSearchPath=\"u\"><rule>deny</rule></securityObject></group>"
      "<other cmSearchPath=\"u\"/>"
      "<securityObject cmSearchPath=\"u\" displayPath=\"\" type=\"account\"><rule>allow</rule></securityObject>"
      "</objectAccess>",
      element);
}

TEST(ObjectAccess, FindsWhatIsThereWhenTheCallerChangesTheDocumentBetweenCalls) {
  Access access;
  TRNIDOM_Element element = madeElement(access);
  for (int i = 0; i < 40; ++i) access.addEntry(user(("u" + std::to_string(i)).c_str()), Access::kDeny);
  TRNIDOM_Element first = element.getFirstChild();
  TRNIDOM_Element second = first.getNextSibling();
  element.removeChild(first);
  second.setAttribute("cmSearchPath", "renamed");
  access.addEntry(user("u0"), Access::kAllow);
  access.addEntry(user("u1"), Access::kAllow);
  access.addEntry(user("renamed"), Access::kAllow);
  const std::string entries = entriesOf(access);
  EXPECT_EQ("renamed:deny u2:deny ", entries.substr(0, 21));
  EXPECT_EQ("u39:deny u0:allow u1:allow ", entries.substr(entries.size() - 27));
}

TEST(ObjectAccess, EntriesHeldBeforeMakeAreGivenUpForTheDocument) {
  Access access;
  access.addEntry(user("early"), Access::kDeny);
  EXPECT_FALSE(access.isUnspecifiedForAllEntries());
  expectXml("<objectAccess/>", madeElement(access));
  access.addEntry(user("u"), Access::kUnspecified);
  EXPECT_TRUE(access.isUnspecifiedForAllEntries());
  EXPECT_EQ("u:unspecified ", entriesOf(access));
}

TEST(ObjectAccess, EntriesAreAppendedToTheCallersAndHeldAsCopies) {
  Access access;
  std::vector<Access::SecurityObjectAccess> entries;
  {
    SecurityObject object = user("u");
    access.addEntry(object, Access::kAllow);
    object.cmSearchPath = "changed";
  }
  access.getEntries(entries);
  access.getEntries(entries);
  ASSERT_EQ(2u, entries.size());
  EXPECT_EQ(entries[0].securityObject, entries[1].securityObject);
  EXPECT_EQ("u", entries[0].securityObject->cmSearchPath);
}

TEST(ObjectAccess, WithoutSearchPathAPrincipalIsIgnored) {
  Access access;
  access.addEntry({"", "d", SecurityObject::kUser}, Access::kDeny);
  TRNIDOM_Element element = madeElement(access);
  access.addEntry({"", "d", SecurityObject::kUser}, Access::kDeny);
  EXPECT_EQ("", entriesOf(access));
  expectXml("<objectAccess/>", element);
}

TEST(ObjectAccess, ReadingStartsAtTheFirstPrincipalAndTakesEveryFollowingSibling) {
  const auto access = taken<Access>(
      "<any><note/><securityObject cmSearchPath='a'><rule>Allow</rule></securityObject>"
      "<access cmSearchPath='b'><rule>deny</rule><rule>allow</rule></access><securityObject/></any>");
  EXPECT_EQ("a:unspecified b:deny :unspecified ", entriesOf(*access));

  const auto spaced = taken<Access>("<any><securityObject cmSearchPath='a'/> <securityObject/></any>");
  expectAssert("TRN_ASSERT(securityObjectElemName == dxmd_actionhelper_resources_securityObject_str);",
               "DXActionHelperSecurityObject", [&] { entriesOf(*spaced); });
}

TEST(ObjectAccess, RulesAndTheirTexts) {
  EXPECT_EQ(Access::kAllow, Access::getObjectAccessRule("allow"));
  EXPECT_EQ(Access::kDeny, Access::getObjectAccessRule("deny"));
  for (const char* other : {"Allow", " deny", "unspecified", ""})
    EXPECT_EQ(Access::kUnspecified, Access::getObjectAccessRule(other));
  EXPECT_EQ("deny", Access::getObjectAccessRuleStr(Access::kDeny));
  for (const int other : {0, 3, -1})
    EXPECT_EQ("unspecified", Access::getObjectAccessRuleStr(static_cast<Access::EObjectAccessRule>(other)));
}

TEST(ObjectAccess, NeedsAnElementToReadAndHasTheEntriesBeforeARefusedOne) {
  const char* const text = "TRN_ASSERT(!m_requestRoot.isNull());";
  expectAssert(text, "DXActionHelperObjectAccess", [] { Access().buildAccessVector(); });
  const auto access = taken<Access>("<objectAccess><securityObject cmSearchPath='a'/></objectAccess>");
  EXPECT_EQ("a:unspecified ", entriesOf(*access));
  take(*access, "<o><securityObject cmSearchPath='b'/><x/></o>");
  EXPECT_THROW(entriesOf(*access), TRNAssertError);
  expectAssert(text, "DXActionHelperObjectAccess", [&] { take(*access, TRNIDOM_Element()); });
  EXPECT_EQ("b:unspecified ", entriesOf(*access)) << "without an element nothing is read";
}
