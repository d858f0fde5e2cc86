#include <dxmd/core/EnumTexts.h>

#include <gtest/gtest.h>

namespace {

enum EColour : int { kColourUnknown = 0, kRed = 1, kTrue = 2, kBlue = 3 };

const I18NString STR_red("red");
const I18NString STR_colourless("colourless");

constexpr dxmd::EnumTexts<EColour, 2> kColours({{kRed, STR_red}, {kTrue, STR_true}});

}  // namespace

TEST(EnumTexts, ServesBothDirectionsFromConstantsAndVocabulary) {
  EXPECT_EQ(&STR_red, &kColours.text(kRed));
  EXPECT_EQ(&dxmd_actionhelper_resources::getString(355), &kColours.text(kTrue));
  EXPECT_EQ(kRed, kColours.value("red"));
  EXPECT_EQ(kTrue, kColours.value("true"));
}

TEST(EnumTexts, ComparesTextsExactlyAndAnyOtherIsUnset) {
  for (const char* other : {"Red", "red ", "", "unknown"}) EXPECT_EQ(kColourUnknown, kColours.value(other));
  EXPECT_EQ(kBlue, kColours.value("blue", kBlue));
}

TEST(EnumTexts, ValuesOutsideTheTableAreUnknownUnlessSaidOtherwise) {
  EXPECT_EQ("unknown", kColours.text(kBlue));
  EXPECT_EQ("unknown", kColours.text(static_cast<EColour>(-1)));
  EXPECT_EQ(&STR_colourless, &kColours.text(kColourUnknown, STR_colourless));
}
