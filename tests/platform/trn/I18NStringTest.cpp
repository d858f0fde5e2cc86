#include <trn/I18NString.h>

#include <cstdio>
#include <initializer_list>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <trn/I18NLocale.h>

namespace {

I18NString fromUtf16(const std::u16string& text) {
  return I18NString::fromUtf16(text.data(), text.size());
}

std::u16string toUtf16(const I18NString& text) {
  return std::u16string(text.view());
}

/// The malformed sequences that a conversion told of, as hexadecimal bytes.
struct Malformed {
  std::vector<std::string> sequences;

  static void tell(void* context, const char* bytes, std::size_t length) {
    std::string hex;
    for (std::size_t i = 0; i < length; ++i) {
      char digits[3];
      std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned>(static_cast<unsigned char>(bytes[i])));
      hex += digits;
    }
    static_cast<Malformed*>(context)->sequences.push_back(hex);
  }
};

[[noreturn]] void refuse(void*, const char*, std::size_t) {
  throw std::domain_error("refused");
}

// Texts around the length where characters no longer fit into the object: 32 code units with the NUL.
std::vector<std::u16string> textsOfAllSizes() {
  std::vector<std::u16string> texts;
  for (std::size_t length = 0; length < 40; ++length) texts.emplace_back(length, u'\u20AC');
  texts.emplace_back(1000, u'\u20AC');
  return texts;
}

TEST(I18NString, ReadsUtf8) {
  EXPECT_TRUE(I18NString().empty());
  EXPECT_TRUE(I18NString(nullptr).empty());
  EXPECT_TRUE(I18NString(nullptr, nullptr, 3).empty());
  EXPECT_EQ(u"A\u00E9\u20AC\U0001F600", toUtf16("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"));
  EXPECT_EQ(u"ab", toUtf16(I18NString("abc", nullptr, 2)));
  EXPECT_EQ(std::u16string(u"a\0b", 3), toUtf16(I18NString("a\0b", nullptr, 3)));
  EXPECT_EQ(5U, I18NString("A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80").length());
}

TEST(I18NString, MalformedUtf8BecomesReplacementCharacters) {
  const std::pair<const char*, std::u16string> cases[] = {
      {"a\x80z", u"a\uFFFDz"},                            // stray continuation
      {"\xC0\xAF", u"\uFFFD\uFFFD"},                      // overlong
      {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},            // surrogate
      {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},  // beyond U+10FFFF
      {"\xE2\x82", u"\uFFFD"},                            // cut off by the end
      {"\xE2\x82z", u"\uFFFDz"},                          // cut off by another character
      {"\xFF", u"\uFFFD"},
  };
  for (const auto& [bytes, expected] : cases) {
    EXPECT_EQ(expected, toUtf16(bytes));
    EXPECT_EQ(expected, toUtf16(I18NString(bytes, "UTF-8"))) << "by name";
  }
}

TEST(I18NString, CallbackHearsOfEachMalformedSequence) {
  Malformed utf8;
  EXPECT_EQ(u"a\uFFFDb\uFFFD", toUtf16(I18NString("a\xE2\x82"
                                                  "b\xFF",
                                                  nullptr, -1, Malformed::tell, &utf8)));
  EXPECT_EQ((std::vector<std::string>{"E282", "FF"}), utf8.sequences);

  Malformed shiftJis;
  EXPECT_EQ(u"\u3042\uFFFD", toUtf16(I18NString("\x82\xA0\x82", "Shift_JIS", -1, Malformed::tell, &shiftJis)));
  EXPECT_EQ(std::vector<std::string>{"82"}, shiftJis.sequences);
}

TEST(I18NString, CallbackMayRefuseInAnyEncoding) {
  const std::string longText(2000, 'x');
  EXPECT_THROW(I18NString((longText + "\xFF").c_str(), nullptr, -1, refuse), std::domain_error);
  EXPECT_THROW(I18NString((longText + "\x82").c_str(), "Shift_JIS", -1, refuse), std::domain_error);
  EXPECT_EQ(2000U, I18NString(longText.c_str(), "Shift_JIS", -1, refuse).length());
}

TEST(I18NString, ReadsOtherEncodings) {
  EXPECT_EQ(u"\u00E9\u20AC", toUtf16(I18NString("\xE9\x80", "windows-1252")));
  EXPECT_EQ(u"ab", toUtf16(I18NString("a\0b\0", "UTF-16LE", 4)));
  EXPECT_EQ(u"\uFFFD", toUtf16(I18NString("\xA9\xA1", "EUC-JP"))) << "without a meaning in the encoding";

  std::string bytes;
  std::u16string expected;
  for (int i = 0; i < 3000; ++i) {
    bytes += "\x82\xA0";
    expected += u'\u3042';
  }
  EXPECT_EQ(expected, toUtf16(I18NString(bytes.c_str(), "Shift_JIS"))) << "longer than a conversion's buffer";
}

TEST(I18NString, UnknownEncodingIsNamed) {
  for (const char* name : {"no-such-encoding", ""}) {
    try {
      const I18NString text("x", name);
      ADD_FAILURE() << "accepted " << name;
    } catch (const std::invalid_argument& error) {
      EXPECT_EQ("unknown encoding \"" + std::string(name) + "\"", error.what());
    }
  }
}

TEST(I18NString, IsTerminatedHoweverItCameAbout) {
  for (const std::u16string& units : textsOfAllSizes()) {
    SCOPED_TRACE(units.size());
    const I18NString built = fromUtf16(units);
    const I18NString viewed(built.view());
    const I18NString converted(built.toUtf8().c_str());
    const I18NString copied(built);
    I18NString assigned("something else that is long enough to be on the heap");
    assigned = built;
    I18NString source(built);
    const I18NString moved(std::move(source));
    I18NString second(built);
    I18NString moveAssigned("x");
    moveAssigned = std::move(second);
    using Texts = std::initializer_list<const I18NString*>;
    for (const I18NString* text : Texts{&built, &viewed, &converted, &copied, &assigned, &moved, &moveAssigned}) {
      EXPECT_EQ(units, text->c_str());
      EXPECT_EQ(units, toUtf16(*text));
    }
    for (const I18NString* text : Texts{&source, &second}) {  // NOLINT(bugprone-use-after-move): left empty
      EXPECT_TRUE(text->empty());
      EXPECT_EQ(u'\0', *text->c_str());
    }
  }
}

TEST(I18NString, SurvivesAssignmentToItself) {
  for (const std::u16string& units : textsOfAllSizes()) {
    I18NString text = fromUtf16(units);
    I18NString& same = text;
    text = same;
    EXPECT_EQ(units, text.c_str());
    text = std::move(same);
    EXPECT_EQ(units, text.c_str());
  }
}

TEST(I18NString, CopiesOfLongTextShareCharactersUntilOneChanges) {
  const std::u16string units(1000, u'x');
  const I18NString original = fromUtf16(units);
  I18NString copy(original);
  EXPECT_EQ(original.c_str(), copy.c_str());
  copy += "y";
  EXPECT_EQ(units, original.c_str());
  EXPECT_EQ(units + u"y", copy.c_str());
}

// Without room to spare, appending these takes minutes.
TEST(I18NString, GrowsByLittleAtATime) {
  I18NString text;
  for (int i = 0; i < 1000000; ++i) text += "xy";
  EXPECT_EQ(2000000U, text.length());
  I18NString twice("ab");
  for (int i = 0; i < 6; ++i) twice += twice;
  EXPECT_EQ(128U, twice.length());
}

TEST(I18NString, Concatenates) {
  EXPECT_EQ(I18NString("[model].[query]"), I18NString("[model]") + "." + I18NString("[query]"));
  I18NString text;
  std::u16string expected;
  for (int i = 0; i < 200; ++i) {
    text += "ab";
    expected += u"ab";
    ASSERT_EQ(expected, text.c_str());
  }
  text += text;
  EXPECT_EQ(expected + expected, text.c_str());
}

TEST(I18NString, OrdersByCodeUnit) {
  EXPECT_TRUE(I18NString("") < I18NString("a"));
  EXPECT_TRUE(I18NString("a") < I18NString("ab"));
  EXPECT_TRUE(I18NString("Z") < I18NString("a"));
  EXPECT_TRUE(I18NString("z") < I18NString("\xC3\xA4"));
  // U+1F600 begins with the code unit D83D, before U+FF5E, which it follows as a character.
  EXPECT_TRUE(I18NString("\xF0\x9F\x98\x80") < I18NString("\xEF\xBD\x9E"));
  EXPECT_FALSE(I18NString("same") < I18NString("same"));
}

TEST(I18NString, ComparesAndHashesExactly) {
  EXPECT_EQ(I18NString("name"), fromUtf16(u"name"));
  EXPECT_NE(I18NString("name"), I18NString("Name"));
  EXPECT_NE(I18NString("\xC3\xA9"), I18NString("e\xCC\x81")) << "normalised";
  const std::unordered_set<I18NString> names{"query", "queries", "query"};
  EXPECT_EQ(2U, names.size());
  EXPECT_EQ(1U, names.count(fromUtf16(u"queries")));
}

TEST(I18NString, DiffersWhereverOneCodeUnitDiffers) {
  for (const std::u16string& units : textsOfAllSizes()) {
    const I18NString text = fromUtf16(units);
    EXPECT_EQ(text, fromUtf16(units));
    for (std::size_t at = 0; at < units.size(); ++at) {
      std::u16string other = units;
      other[at] = static_cast<char16_t>(other[at] ^ 0x100);
      ASSERT_NE(text, fromUtf16(other)) << "at " << at << " of " << units.size();
    }
  }
}

TEST(I18NString, WritesUtf8) {
  const std::string mixed = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80";
  EXPECT_EQ(mixed, I18NString(mixed.c_str()).toUtf8());
  EXPECT_EQ("", I18NString().toUtf8());
  EXPECT_EQ("\xEF\xBF\xBD!", fromUtf16({0xD800, u'!'}).toUtf8()) << "a lone surrogate";
  EXPECT_EQ(std::string("a\0b", 3), I18NString("a\0b", nullptr, 3).toUtf8());
  std::ostringstream out;
  out << I18NString(mixed.c_str());
  EXPECT_EQ(mixed, out.str());
}

TEST(I18NString, IsReadByManyThreadsAtOnce) {
  const std::u16string shortUnits(26, u's');
  const std::u16string longUnits(300, u'l');
  const I18NString shortText = fromUtf16(shortUnits);
  const I18NString longText = fromUtf16(longUnits);
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < 500; ++round) {
        for (const auto& [text, units] : {std::pair(&shortText, &shortUnits), std::pair(&longText, &longUnits)}) {
          const I18NString copy(*text);
          EXPECT_EQ(*units, copy.c_str());
          EXPECT_EQ(*units, text->c_str());
          EXPECT_EQ(copy, *text);
          EXPECT_EQ(units->size() + 1, (copy + "x").length());
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(I18NLocale, KeepsItsNameAsGiven) {
  EXPECT_EQ(I18NString("EN-us@weird"), I18NLocale("EN-us@weird").getName());
}

static_assert(std::is_nothrow_move_constructible_v<I18NString> && std::is_nothrow_move_assignable_v<I18NString>);

}  // namespace
