#include <dxmd/updateobject/DXActionFeedbackHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Entry = DXFeedbackEntry;

std::string rendered(const std::string& xml, const char* before = "") {
  I18NString text(before);
  taken<DXActionFeedbackHelper>(xml)->Render(text);
  return text.toUtf8();
}

}  // namespace

TEST(DXActionFeedbackHelper, WritesEntriesWithTextBeforeNestedEntries) {
  DXActionFeedbackHelper feedback;
  Entry* error = feedback.AddEntry(Entry::kEntryError, "broken", "label");
  feedback.AddEntry(error, Entry::kEntryWarning, "w", "")->AddEntry(Entry::kEntryTrace, "t", "");
  error->AddEntry(Entry::kEntryInfo, "i", "");
  feedback.AddEntry(Entry::kEntryUnknown, "", "");
  feedback.AddEntry(static_cast<Entry::EEntryClass>(5), "", "");
  expectXml(R"(<feedback><entry class="error" name="label">broken)"
            R"(<entry class="warning">w<entry class="trace">t</entry></entry><entry class="info">i</entry></entry>)"
            R"(<entry class="unknown"></entry><entry class="unknown"></entry></feedback>)",
            made(feedback));
}

TEST(DXActionFeedbackHelper, RendersEachEntryOnOneUnindentedLineInDocumentOrder) {
  EXPECT_EQ("\n*** Error:X\n--- Y\n--- Z\n--- W",
            rendered(R"(<feedback><entry class="error">X<entry class="warning">Y<entry class="info">Z</entry></entry>)"
                     R"(</entry><other><entry>W</entry></other></feedback>)"));
}

TEST(DXActionFeedbackHelper, RendersOnlyTheTextAnEntryBeginsWith) {
  EXPECT_EQ("\n--- ", rendered(R"(<feedback><entry class="Error"><!-- --> late</entry></feedback>)"));
  EXPECT_EQ("\n--- ", rendered(R"(<feedback><entry><![CDATA[no text node]]></entry></feedback>)"));
  EXPECT_EQ("\n*** Error:", rendered(R"(<feedback><entry class="error"/></feedback>)"));
}

TEST(DXActionFeedbackHelper, RenderingAppends) {
  EXPECT_EQ("before\n--- a", rendered("<feedback><entry>a</entry></feedback>", "before"));
  TRNIDOM_Element entry = parsed(R"(<entry class="error">E<entry>below</entry></entry>)");
  I18NString text("before");
  Entry::Render(entry, "  ", text);
  EXPECT_EQ("before\n  *** Error:E", text.toUtf8());
}

TEST(DXActionFeedbackHelper, AddedAndReceivedEntriesDoNotMeet) {
  DXActionFeedbackHelper feedback;
  I18NString text;
  feedback.AddEntry(Entry::kEntryInfo, "added", "");
  feedback.Render(text);
  EXPECT_EQ("", text.toUtf8());
  auto received = taken<DXActionFeedbackHelper>("<feedback><entry>received</entry></feedback>");
  EXPECT_TRUE(received->IsEmpty());
  expectXml("<feedback/>", made(*received));
}

TEST(DXActionFeedbackHelper, NestsToAnyDepth) {
  constexpr int kDepth = 300'000;  // destructors that call each other would need the whole stack
  DXActionFeedbackHelper feedback;
  Entry* entry = feedback.AddEntry(Entry::kEntryError, "x", "");
  for (int depth = 1; depth < kDepth; ++depth) entry = entry->AddEntry(Entry::kEntryError, "x", "");
  TRNIDOM_Element element = madeElement(feedback);
  DXActionFeedbackHelper received;
  received.Take(element);
  I18NString text;
  received.Render(text);
  EXPECT_EQ(std::size_t{kDepth} * 12, text.length());
}
