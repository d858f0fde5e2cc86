#include <dxmd/queryengine/VqeGetParametersHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Parameters = std::vector<std::pair<I18NString, I18NString>>;

}  // namespace

TEST(VqeGetParametersHelper, WritesEveryPairInOrder) {
  VqeGetParametersHelper helper;
  expectXml("<parameters/>", made(helper));
  helper.SetParameters({{"old", "list"}});
  helper.SetParameters({{"b", "1"}, {"a", ""}, {"b", "<2"}});
  expectXml(R"(<parameters><parameter name="b" value="1"/><parameter name="a" value=""/>)"
            R"(<parameter name="b" value="&lt;2"/></parameters>)",
            made(helper));
  const TRNIDOM_Element element = madeElement(helper);
  EXPECT_EQ(element, element.getOwnerDocument().getDocumentElement());
}

TEST(VqeGetParametersHelper, ReadsParametersAtAnyDepthIntoTheListItHas) {
  const auto helper = taken<VqeGetParametersHelper>(
      R"(<x><y><parameter name="a" value="1"><parameter name="in" value="2"/></parameter></y><parameter/></x>)");
  EXPECT_EQ((Parameters{{"a", "1"}, {"in", "2"}, {"", ""}}), helper->GetParameters());

  take(*helper, R"(<parameters><parameter value="3"/></parameters>)");
  EXPECT_EQ((Parameters{{"a", "1"}, {"in", "2"}, {"", ""}, {"", "3"}}), helper->GetParameters());
}

TEST(VqeGetParametersHelper, WhatItWritesItReads) {
  VqeGetParametersHelper helper;
  const Parameters parameters{{"tab\tand\nline", "\xF0\x9F\x98\x80"}, {"\"quoted\"", "&amp;"}};
  helper.SetParameters(parameters);
  EXPECT_EQ(parameters, taken<VqeGetParametersHelper>(made(helper))->GetParameters());
}
