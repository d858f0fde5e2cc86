#include <dxmd/core/ActionHandlerBase.h>

#include <trn/TRNAssert.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

class Notice : public ActionHandlerBase {
 public:
  int taken = 0;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override { elem = doc.createElement("notice"); }
  void doTake(TRNIDOM_Element& elem) override {
    ++taken;
    TRN_ASSERT(elem.getTagName() == "notice");
  }
};

}  // namespace

TEST(ActionHandlerBase, AHelperThatOverridesNothingWritesAndReadsNothing) {
  ActionHandlerBase helper;
  TRNIDOM_Element element = parsed("<before/>");
  const TRNIDOM_Element before = element;
  helper.Make(element);
  helper.Take(element);
  EXPECT_EQ(before, element);
  expectXml("<before/>", element);
}

TEST(ActionHandlerBase, WhatIsHandedBackStandsUnattachedBesideItsDocumentsElement) {
  const Notice notice;
  TRNIDOM_Element element = parsed("<before/>");
  notice.Make(element);
  expectXml("<notice/>", element);
  EXPECT_TRUE(element.getParentNode().isNull());
  expectXml("<requestDoc/>", element.getOwnerDocument().getDocumentElement());
  EXPECT_NE(element.getOwnerDocument(), madeElement(notice).getOwnerDocument());
}

TEST(ActionHandlerBase, AFailedAssertionReachesTheCallerAndKeepsWhatWasStored) {
  Notice notice;
  expectAssert("TRN_ASSERT(elem.getTagName() == \"notice\");", "ActionHandlerBaseTest",
               [&] { take(notice, "<other/>"); });
  EXPECT_EQ(1, notice.taken);
}
