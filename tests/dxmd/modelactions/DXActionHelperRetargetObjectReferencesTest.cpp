#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Retarget = DXActionHelperRetargetObjectReferences;
using Items = std::vector<Retarget::ItemToUpdate>;

const char* const kFile = "DXActionHelperRetargetObjectReferences";

// What is read, as "current(new:item1,item0)(...) ...": a flag follows its item.
std::string entriesOf(const Retarget& retarget) {
  std::string text;
  for (const Retarget::Entry& entry : retarget.getEntries()) {
    text += entry.m_currentRefValue.toUtf8();
    for (const Retarget::UpdateInfo& info : entry.m_updateInfoList) {
      text += "(" + info.m_newRefValue.toUtf8() + ":";
      for (const auto& item : info.m_itemsToUpdate)
        text += item.m_itemID.toUtf8() + std::to_string(item.m_processDescendants) + ",";
      text += ")";
    }
    text += " ";
  }
  return text;
}

}  // namespace

TEST(RetargetObjectReferences, MergesWhatIsAddedByValueAndItem) {
  Retarget retarget;
  TRNIDOM_Element element = madeElement(retarget);
  retarget.addEntry("old", "new", Items{{"i", 1}, {"j", 2}});
  retarget.addEntry("old", {"newer", {{"i", 0}}});
  retarget.addEntry("other", "new", Retarget::ItemToUpdate{"i", 1});
  retarget.addEntry("old", "new", Items{{"k", 0}, {"i", 0}, {"j", 1}});
  expectXml(
      "<retargetObjectReferences><entry currentRefValue=\"old\"><updateInfo newRefValue=\"new\">"
      "<itemToUpdate processDescendants=\"false\">i</itemToUpdate><itemToUpdate processDescendants=\"true\">j"
      "</itemToUpdate><itemToUpdate processDescendants=\"false\">k</itemToUpdate></updateInfo>"
      "<updateInfo newRefValue=\"newer\"><itemToUpdate processDescendants=\"false\">i</itemToUpdate></updateInfo>"
      "</entry><entry currentRefValue=\"other\"><updateInfo newRefValue=\"new\">"
      "<itemToUpdate processDescendants=\"true\">i</itemToUpdate></updateInfo></entry></retargetObjectReferences>",
      element);
  EXPECT_EQ(element, element.getOwnerDocument().getDocumentElement());
  EXPECT_EQ("old(new:i0,j1,k0,)(newer:i0,) other(new:i1,) ", entriesOf(retarget));
}

TEST(RetargetObjectReferences, ItemsMayBeGivenInBracesOrBeNone) {
  Retarget retarget;
  TRNIDOM_Element element = madeElement(retarget);
  retarget.addEntry("a", "none", {});
  retarget.addEntry("a", "one", {{"i", 1}});
  retarget.addEntry("a", "two", {{"i", 1}, {"j", 0}});
  retarget.addEntry("a", "item", {"i", 1});
  retarget.addEntry("a", {"info", {{"i", 1}}});
  EXPECT_EQ("a(none:)(one:i1,)(two:i1,j0,)(item:i1,)(info:i1,) ", entriesOf(retarget));
}

TEST(RetargetObjectReferences, MergesIntoADocumentTakenAndIntoWhatTheCallerMadeOfIt) {
  Retarget retarget;
  TRNIDOM_Element element = parsed(
      "<r><x><entry currentRefValue='a'/></x><entry currentRefValue='a'><updateInfo newRefValue='b'>"
      "<itemToUpdate processDescendants='true'>i</itemToUpdate></updateInfo></entry></r>");
  retarget.Take(element);
  element.removeChild(element.getFirstChild());
  retarget.addEntry("a", "b", Retarget::ItemToUpdate{"i", 0});
  EXPECT_EQ("a(b:i0,) ", entriesOf(retarget));
  TRNIDOM_Element entry = element.getFirstChild();
  entry.setAttribute("currentRefValue", "renamed");
  retarget.addEntry("a", "b", Retarget::ItemToUpdate{"j", 0});
  EXPECT_EQ("renamed(b:i0,) a(b:j0,) ", entriesOf(retarget));
}

TEST(RetargetObjectReferences, OnlyTheExactTextTrueSetsTheFlag) {
  const auto retarget = taken<Retarget>(
      "<r><entry><updateInfo newRefValue='n'><itemToUpdate processDescendants='TRUE'>a</itemToUpdate>"
      "<itemToUpdate processDescendants='1'>b</itemToUpdate><itemToUpdate processDescendants='true'>c</itemToUpdate>"
      "</updateInfo></entry></r>");
  EXPECT_EQ("(n:a0,b0,c1,) ", entriesOf(*retarget));
}

TEST(RetargetObjectReferences, PartsAreReadAtAnyDepthByEveryPartAroundThem) {
  const auto retarget = taken<Retarget>(
      "<r><updateInfo newRefValue='outside'/><x><entry currentRefValue='1'><entry currentRefValue='2'>"
      "<updateInfo newRefValue='a'><updateInfo newRefValue='b'><y><itemToUpdate processDescendants='true'>i"
      "</itemToUpdate></y></updateInfo><itemToUpdate processDescendants='no'>j</itemToUpdate></updateInfo></entry>"
      "<updateInfo newRefValue='c'/></entry></x><itemToUpdate/></r>");
  EXPECT_EQ("1(a:i1,j0,)(b:i1,)(c:) 2(a:i1,j0,)(b:i1,) ", entriesOf(*retarget));
}

TEST(RetargetObjectReferences, EntriesNestedAHundredThousandDeepAreReadInOneWalk) {
  auto [root, inner] = nestedDeep("entry");
  TRNIDOM_Element info = inner.appendChild(inner.getOwnerDocument().createElement("updateInfo"));
  info.setAttribute("newRefValue", "n");
  Retarget retarget;
  retarget.Take(root);
  EXPECT_EQ(100'000u, retarget.getEntries().size());
}

TEST(RetargetObjectReferences, AddingNeedsAnElementAndItemIds) {
  Retarget retarget;
  expectAssert("TRN_ASSERT(!entryElem.isNull());", kFile, [&] { retarget.addEntry("a", "b", Items()); });
  TRNIDOM_Element element = madeElement(retarget);
  expectAssert("TRN_ASSERT(!itemsToUpdateIterator->m_itemID.empty());", kFile, [&] {
    retarget.addEntry("a", "b", Items{{"i", 1}, {"", 1}, {"k", 1}});
  });
  EXPECT_EQ("a(b:i1,) ", entriesOf(retarget));
}

TEST(RetargetObjectReferences, IncompleteDocumentsAreRefused) {
  const auto expectRefused = [](const char* text, const std::string& xml) {
    expectAssert(text, kFile, [&] { taken<Retarget>(xml)->getEntries(); });
  };
  expectRefused("TRN_ASSERT(entries.size() > 0);", "<retargetObjectReferences/>");
  expectRefused("TRN_ASSERT(entry.m_updateInfoList.size() > 0);", "<r><entry currentRefValue='a'/></r>");
  expectRefused("TRN_ASSERT(!updateInfo.m_newRefValue.empty());", "<r><entry><updateInfo newRefValue=''/></entry></r>");
  for (const char* item : {"<itemToUpdate>i</itemToUpdate>", "<itemToUpdate processDescendants='true'/>"})
    expectRefused("TRN_ASSERT(!itemID.empty() && !processDescendants.empty());",
                  std::string("<r><entry><updateInfo newRefValue='n'>") + item + "</updateInfo></entry></r>");
  expectAssert(
      "TRN_ASSERT(!pLocaleThis->m_requestRoot.isNull() && !pLocaleThis->m_requestRoot.getOwnerDocument().isNull());",
      kFile, [] { Retarget().getEntries(); });
}
