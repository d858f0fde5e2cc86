#include "TempFolder.h"
#include "TestSupport.h"

#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>

using namespace dxmd_test;

namespace {

/// The error that parsing ends in, as "LINE:COLUMN: reason".
std::string error(const std::string& xml) {
  try {
    TRNIDOM_Parser::parseString(xml);
  } catch (const TRNIDOM_ParseError& error) {
    EXPECT_FALSE(error.getReason().empty());
    EXPECT_EQ(std::to_string(error.getLine()) + ":" + std::to_string(error.getColumn()) + ": " + error.getReason(),
              error.what());
    return error.what();
  }
  return "parsed";
}

/// Its place alone.
std::string errorPlace(const std::string& xml) {
  const std::string all = error(xml);
  return all.substr(0, all.find(": "));
}

}  // namespace

TEST(Parser, KeepsEveryKindOfNode) {
  const std::string xml = "<?p i?><!--c--><a> <b/>\n<![CDATA[<d>]]><?q?><!--e--></a><!--f-->";
  EXPECT_EQ(xml, xmlOf(TRNIDOM_Parser::parseString(xml)));
  EXPECT_EQ("<a><b/></a>", xmlOf(TRNIDOM_Parser::parseString("\n<a><b/></a>\n\n")));
}

TEST(Parser, MakesOneTextOfARunOfCharacters) {
  std::string run;
  for (int i = 0; i < 50000; ++i) run += "a&amp;&#x62;\r\nc]";
  const TRNIDOM_Element a = parsed("<a>" + run + "<![CDATA[]]></a>");
  EXPECT_EQ(2U, a.getChildNodes().getLength());
  EXPECT_EQ(300000U, a.getFirstChild().getNodeValue().length());
  EXPECT_EQ("a&b\nc]a&", a.getFirstChild().getNodeValue().toUtf8().substr(0, 8));
}

TEST(Parser, NeedsNoDeclarationOfPrefixes) {
  const TRNIDOM_Element a = parsed("<p:a q:b='1' xmlns='u'><r:c/></p:a>");
  EXPECT_EQ("p:a", a.getTagName().toUtf8());
  EXPECT_EQ("1", a.getAttribute("q:b").toUtf8());
  EXPECT_EQ("u", a.getAttribute("xmlns").toUtf8());
}

TEST(Parser, NormalisesAttributesAsXmlSays) {
  EXPECT_EQ("1 2 3\n\t&<\"", parsed("<a x='1\t2\r\n3&#10;&#9;&amp;&lt;&quot;'/>").getAttribute("x").toUtf8());
}

TEST(Parser, TakesTheEncodingFromTheDocument) {
  const std::string expected = "<a x=\"\xC3\xA4\"/>";
  EXPECT_EQ(expected, xmlOf(parsed("<?xml version='1.0' encoding='ISO-8859-1'?><a x='\xE4'/>")));
  EXPECT_EQ(expected, xmlOf(parsed("\xEF\xBB\xBF<a x='\xC3\xA4'/>")));
  EXPECT_EQ(expected, xmlOf(parsed("<a x='\xC3\xA4'/>")));
  for (const bool bigEndian : {false, true})
    EXPECT_EQ(expected, xmlOf(parsed(utf16(u"\uFEFF<a x='\u00E4'/>", bigEndian))));
  EXPECT_EQ("1:41", errorPlace("<?xml version='1.0' encoding='no-such'?><a/>"));
}

TEST(Parser, SaysWhereADocumentIsMalformed) {
  EXPECT_EQ("2:3", errorPlace("<a>\n</b>"));
  EXPECT_EQ("1:1", errorPlace("<a x='1' x='2'/>").substr(0, 3));
  for (const char* xml : {"",
                          " ",
                          "text",
                          "<a",
                          "<a>",
                          "<a><b></a>",
                          "<a/><b/>",
                          "<a x/>",
                          "<a x=1/>",
                          "<a>&undefined;</a>",
                          "<a>&#0;</a>",
                          "<a>\x01</a>",
                          "<a>]]></a>",
                          "<a><!-- -- --></a>",
                          "<a>&",
                          "<a x='<'/>",
                          "<a>\xFF</a>",
                          "<a><![CDATA[</a>",
                          "<?xml version='1.1'?><a/>",
                          " <?xml version='1.0'?><a/>",
                          "<1/>",
                          "<a></a >x",
                          "<a/>\n<?xml version='1.0'?>"})
    EXPECT_NE("parsed", errorPlace(xml)) << xml;
}

TEST(Parser, RefusesTruncatedInputAtEveryByte) {
  const std::string xml = "<?xml version='1.0'?><a x='1'>t&amp;<b/><![CDATA[c]]><!--d--><?e f?></a>";
  for (std::size_t length = 0; length < xml.size(); ++length)
    EXPECT_NE("parsed", errorPlace(xml.substr(0, length))) << length;
}

TEST(Parser, RefusesWhatIsNoCharacter) {
  using namespace std::string_literals;
  EXPECT_EQ("1:5", errorPlace("<a/>\0"s));
  EXPECT_EQ("2:3", errorPlace("<a>\n\xC3\xA9 \0</a>"s));
  EXPECT_EQ("2:1", errorPlace("<a/>\n\0<b/>"s));
  for (const char* end : {"\xC3", "\xE2\x82", "\n\xFE"}) EXPECT_NE("parsed", errorPlace("<a/>"s + end)) << end;
  for (const bool bigEndian : {false, true}) {
    const std::string a = utf16(u"\uFEFF<a/>", bigEndian);
    EXPECT_EQ("parsed", errorPlace(a + utf16(u"\n", bigEndian)));
    EXPECT_NE("parsed", errorPlace(a + ' '));
    EXPECT_NE("parsed", errorPlace(a + utf16(u"\xD800", bigEndian)));
    EXPECT_NE("parsed", errorPlace(a + utf16({u'\0', u'\n'}, bigEndian)));
  }
}

TEST(Parser, SaysWhereBytesAreMalformed) {
  EXPECT_EQ("2:1", errorPlace("<a>\n\xC3</a>"));
  EXPECT_EQ("1:4", errorPlace("<a>\xFF</a>"));
  EXPECT_EQ("1:9", errorPlace("<a b='\xC3\xA9 \xE2(\xA1'/>"));
  EXPECT_EQ("3:2", errorPlace("<a>" + std::string(20000, 'x') + "\n\n \xC3(</a>"));
  EXPECT_EQ("parsed", errorPlace("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3</a>"));
  EXPECT_EQ("1:50", errorPlace("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xC3</b>"));
}

TEST(Parser, SaysWhereBytesAreMalformedInEveryEncoding) {
  using namespace std::string_literals;
  // A surrogate in UTF-8, overlong forms, values above U+10FFFF, bytes that begin nothing.
  for (const char* bytes : {"\xED\xA0\x80", "\xED\xBF\xBF", "\xC0\xAF", "\xE0\x80\xAF", "\xF0\x80\x80\xAF",
                            "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\x80"})
    for (const std::string& before : {"<a>\n\xC3\xA4"s, "<a b='\n\xF0\x90\x80\x80"s, "<a><!--\r\n-"s, "<a>\r<?p"s})
      EXPECT_EQ("2:" + std::to_string(before.back() == 'p' ? 4 : 2), errorPlace(before + bytes + "</a>")) << before;
  for (const bool bigEndian : {false, true}) {
    for (const char16_t unit : {u'\xD800', u'\xDC00', u'\0'}) {
      const std::u16string lone = {unit, u'x'};
      EXPECT_EQ("2:2", errorPlace(utf16(u"\uFEFF<a>\n\u00E4" + lone + u"</a>", bigEndian)));
      EXPECT_EQ("2:3", errorPlace(utf16(u"\uFEFF<a b='\n\U00010000 " + lone + u"'/>", bigEndian)));
    }
  }
  const auto in = [](const char* encoding, const std::string& bytes) {
    return errorPlace("<?xml version='1.0' encoding='" + std::string(encoding) + "'?>\n<a b='" + bytes + "'/>");
  };
  EXPECT_EQ("parsed", in("gb18030", "\xC4\xE3\x81\x30\x81\x30"));
  EXPECT_EQ("2:8", in("gb18030", "\xC4\xE3\x81\xFF"));
  EXPECT_EQ("2:8", in("gb18030", "\xC4\xE3\x81\x30\x81"));
  EXPECT_EQ("2:8", in("Shift_JIS", "\x88\x9F\x81\x01"));
  EXPECT_EQ("2:8", in("UTF-7", "x+AAA-")) << "U+0000, of which the bytes show nothing";
  EXPECT_EQ("2:8", in("ISO-8859-1", "\xE4\0"s));
}

TEST(Parser, CountsPlacesInCharacters) {
  EXPECT_EQ("1:9", errorPlace("<a>\xC3\xA4\xE2\x82\xAC\xF0\x90\x80\x80 <1/></a>"));
  EXPECT_EQ("2:4", errorPlace("<a>\r\n\xC3\xA4 <1/></a>"));
  EXPECT_EQ("2:4", errorPlace(utf16(u"\uFEFF<a>\n\U00010000 <1/></a>", true)));
  EXPECT_EQ("2:4", errorPlace("<?xml version='1.0' encoding='windows-1252'?><a>\n\x80 <1/></a>"));
}

TEST(Parser, RefusesNamesBeyondTheBmp) {
  EXPECT_EQ("1:3", errorPlace("<?\xF0\x90\x80\x80 x?><a/>"));
  EXPECT_EQ("1:2", errorPlace("<\xF0\x90\x80\x80/>"));
}

TEST(Parser, ReadsWhatTheByteOrderMarkSays) {
  for (const bool bigEndian : {false, true})
    EXPECT_EQ("<a x=\"\xC3\xA4\"/>",
              xmlOf(parsed(utf16(u"\uFEFF<?xml version='1.0' encoding='UTF-8'?><a x='\u00E4'/>", bigEndian))));
}

TEST(Parser, ReadsUtf32WithAByteOrderMarkAlone) {
  using std::string_literals::operator""s;
  for (const std::string& xml : {"<\0\0\0a\0\0\0/\0\0\0>\0\0\0"s, "\0\0\0<\0\0\0a\0\0\0/\0\0\0>"s}) {
    const std::string mark = xml[0] == '<' ? "\xFF\xFE\0\0"s : "\0\0\xFE\xFF"s;
    EXPECT_EQ("<a/>", xmlOf(parsed(mark + xml)));
    EXPECT_NE("parsed", errorPlace(xml)) << xml;
  }
}

TEST(Parser, TellsWideCharactersByTheXmlDeclaration) {
  const auto wide = [](const std::string& xml, std::size_t zerosBefore, std::size_t zerosBehind) {
    std::string bytes;
    for (const char c : xml) bytes += std::string(zerosBefore, '\0') + c + std::string(zerosBehind, '\0');
    return bytes;
  };
  const auto declared = [](const std::string& encoding) {
    return "<?xml version='1.0' encoding='" + encoding + "'?><a>b</a>";
  };
  EXPECT_EQ("<a>b</a>", xmlOf(parsed(wide(declared("UTF-32"), 3, 0))));
  EXPECT_EQ("<a>b</a>", xmlOf(parsed(wide(declared("UTF-32LE"), 0, 3))));
  EXPECT_EQ("<a>b</a>", xmlOf(parsed(wide(declared("UTF-16"), 1, 0))));
  EXPECT_EQ("<a>b</a>", xmlOf(parsed(wide(declared("UTF-16LE"), 0, 1))));
  EXPECT_EQ("<a>b</a>", xmlOf(parsed(wide("<?xml\tversion='1.0'?><a>b</a>", 0, 1))));
  for (const char* encoding : {"UTF-16BE", "UTF-32", "ISO-8859-1"})
    EXPECT_NE(std::string::npos, error(wide(declared(encoding), 0, 1))
                                     .find(": the document is not in the encoding \"" + std::string(encoding) + "\""));
  // No declaration, but an instruction.
  EXPECT_NE("parsed", error(wide("<?xmlm ?><a>b</a>", 0, 1)));
}

TEST(Parser, ReadsEbcdicThatIsDeclared) {
  const auto ebcdic = [](const std::string& xml) {
    const std::string letters = "<>?='/ .-";
    const std::string bytes = "\x4C\x6E\x6F\x7E\x7D\x61\x40\x4B\x60";
    std::string all;
    for (const char c : xml) {
      if (const std::size_t at = letters.find(c); at != std::string::npos)
        all += bytes[at];
      else if (c >= '0' && c <= '9')
        all += static_cast<char>(0xF0 + (c - '0'));
      else
        all += static_cast<char>(c < 'j' ? 0x81 + (c - 'a') : c < 's' ? 0x91 + (c - 'j') : 0xA2 + (c - 's'));
    }
    return all;
  };
  EXPECT_EQ("<a>b</a>", xmlOf(parsed(ebcdic("<?xml version='1.0' encoding='ibm-37'?><a>b</a>"))));
  EXPECT_EQ("1:22: a document in EBCDIC has to declare its encoding", error(ebcdic("<?xml version='1.0'?><a/>")));
}

TEST(Parser, ReadsCharactersThatLieAcrossPieces) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "\xE2\x82\xAC";
  for (const std::string begin : {"", "x", "xx"}) {
    const std::string xml = "<a>" + begin + text + "</a>";
    std::size_t given = 0;
    const auto source = [&](char* buffer, std::size_t size) {
      const std::size_t count = xml.copy(buffer, size, given);
      given += count;
      return count;
    };
    EXPECT_EQ(xml, xmlOf(TRNIDOM_Parser::parseEach(source, "b", [](const TRNIDOM_Element&) {})));
  }
}

TEST(Parser, RefusesOtherVersionsInEveryEncoding) {
  for (const char* version : {"1.1", "1.2", "2.0", "1.", "1.00"}) {
    const std::string xml = "<?xml version='" + std::string(version) + "'?><a/>";
    EXPECT_NE("parsed", errorPlace(xml)) << xml;
    EXPECT_NE("parsed", errorPlace("\xEF\xBB\xBF" + xml)) << xml;
    EXPECT_NE("parsed", errorPlace(utf16(u"\uFEFF" + std::u16string(xml.begin(), xml.end()), false))) << xml;
  }
}

TEST(Parser, RefusesWithAShortMessageWhateverTheInput) {
  const std::string name(10000000, 'n');
  for (const std::string& xml : {"<" + name + "></b>", "<a></" + name + ">", "<a " + name + "='' " + name + "=''/>",
                                 "<a>&" + name + ";</a>", "<?xml version='1.0' encoding='" + name + "'?><a/>"}) {
    try {
      TRNIDOM_Parser::parseString(xml);
      ADD_FAILURE() << xml.substr(0, 10);
    } catch (const TRNIDOM_ParseError& error) {
      EXPECT_GT(1000U, error.getReason().size()) << xml.substr(0, 10);
    }
  }
}

TEST(Parser, RefusesDocumentTypes) {
  const std::string bomb = "<!DOCTYPE a [<!ENTITY b 'b'><!ENTITY c '&b;&b;'>]><a>&c;</a>";
  for (const std::string& doctype :
       {std::string("<!DOCTYPE a>\n<a/>"), bomb, std::string("<!DOCTYPE a SYSTEM 'file:///etc/passwd'><a/>"),
        std::string("<!DOCTYPE a PUBLIC 'p' 's'><a/>"), std::string("<!DOCTYPE a []><a/>"),
        std::string("<!DOCTYPE\na SYSTEM 's' [<!ELEMENT a ANY>]><a/>")}) {
    try {
      TRNIDOM_Parser::parseString("<?xml version='1.0'?>\n<!-- <!DOCTYPE b> -->\n" + doctype);
      ADD_FAILURE() << doctype;
    } catch (const TRNIDOM_ParseError& error) {
      EXPECT_EQ(3U, error.getLine());
      EXPECT_GE(error.getColumn(), 1U);
      EXPECT_EQ("a document type declaration is not allowed", error.getReason());
    }
  }
  EXPECT_NE("parsed", errorPlace(utf16(u"\uFEFF<!DOCTYPE a><a/>", true)));
}

TEST(Parser, ReadsFiles) {
  const TempFolder folder;
  EXPECT_EQ("<a>\n</a>", xmlOf(TRNIDOM_Parser::parseFile(folder.add("a.xml", "<a>\n</a>"))));
  const std::string path = folder.path("absent.xml");
  try {
    TRNIDOM_Parser::parseFile(path);
    ADD_FAILURE();
  } catch (const TRNIDOM_ParseError& error) {
    EXPECT_EQ(0U, error.getLine() + error.getColumn());
    EXPECT_NE(std::string::npos, std::string(error.what()).find(path));
  }
  EXPECT_THROW(TRNIDOM_Parser::parseFile(folder.path(".")), TRNIDOM_ParseError) << "a folder";
}
