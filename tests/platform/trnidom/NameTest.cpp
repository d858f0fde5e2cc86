#include <string>
#include <vector>

#include "RandomTrees.h"
#include "TestSupport.h"

#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_ParseError.h>
#include <trnidom/TRNIDOM_Parser.h>

using namespace dxmd_test;

namespace {

/// Also a surrogate, of which UTF-8 proper has none.
std::string utf8(char32_t character) {
  const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
  const auto rest = [&](int shift) { return byte(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) return {byte(character)};
  if (character < 0x800) return {byte(0xC0 | character >> 6), rest(0)};
  if (character < 0x10000) return {byte(0xE0 | character >> 12), rest(6), rest(0)};
  return {byte(0xF0 | character >> 18), rest(12), rest(6), rest(0)};
}

/// The character behind a prefix in UTF-16; a surrogate remains one.
I18NString utf16(const char* prefix, char32_t character) {
  std::u16string text(prefix, prefix + std::char_traits<char>::length(prefix));
  if (character >= 0x10000) {
    text += static_cast<char16_t>(0xD7C0 + (character >> 10));
    text += static_cast<char16_t>(0xDC00 | (character & 0x3FF));
  } else {
    text += static_cast<char16_t>(character);
  }
  return I18NString::fromUtf16(text.data(), text.size());
}

bool isCreated(TRNIDOM_Document& document, const I18NString& name) {
  try {
    return document.createElement(name).getTagName() == name;
  } catch (const TRNIDOM_DOMException& error) {
    EXPECT_EQ(TRNIDOM_DOMException::INVALID_CHARACTER_ERR, error.code());
    return false;
  }
}

// The name as that of an element, an attribute and a processing instruction.
std::vector<std::string> documentsWith(const std::string& name) {
  return {"<" + name + "/>", "<a " + name + "=''/>", "<a><?" + name + " x?></a>"};
}

/// Whether it parses and has the name, and not only its beginning.
bool isParsed(const std::string& xml, const std::string& name) {
  try {
    const TRNIDOM_Element a = parsed(xml);
    return a.getTagName().toUtf8() == name || a.getAttributes().item(0).getNodeName().toUtf8() == name ||
           a.getFirstChild().getNodeName().toUtf8() == name;
  } catch (const TRNIDOM_ParseError&) {
    return false;
  }
}

/// Whether all these names parse in one document, in each place.
bool areParsed(const std::vector<std::string>& names) {
  std::string xml = "<root>";
  for (const std::string& name : names)
    for (const std::string& document : documentsWith(name)) xml += document;
  try {
    TRNIDOM_Node at = parsed(xml + "</root>").getFirstChild();
    for (const std::string& name : names) {
      if (at.getNodeName().toUtf8() != name) return false;
      at = at.getNextSibling();
      if (!TRNIDOM_Element(at).hasAttribute(name.c_str())) return false;
      at = at.getNextSibling();
      if (at.getFirstChild().getNodeName().toUtf8() != name) return false;
      at = at.getNextSibling();
    }
    return at.isNull();
  } catch (const TRNIDOM_ParseError&) {
    return false;
  }
}

}  // namespace

// All of Unicode. Beyond the BMP, where no character is in a name, one in 64 is tried as its beginning and behind it,
// in every place; of the others each in one way.
TEST(Names, ThatCanBeParsedAreThoseThatCanBeCreated) {
  const char32_t offset = printedSeed() % 64;
  for (const char* prefix : {"", "a"}) {
    TRNIDOM_Document document = newDocument();
    std::vector<std::string> created;
    std::size_t count = 0;
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
      const bool inEachWay = character < 0x10000 || character % 64 == offset;
      if (!inEachWay && (character % 2 == 0) != (*prefix == '\0')) continue;
      const std::string name = prefix + utf8(character);
      if (isCreated(document, utf16(prefix, character))) {
        created.push_back(name);
        ++count;
      } else {
        std::vector<std::string> documents = documentsWith(name);
        if (!inEachWay) documents = {documents[character % documents.size()]};
        for (const std::string& xml : documents)
          ASSERT_FALSE(isParsed(xml, name)) << std::hex << character << " in " << xml << " cannot be created";
      }
      if (created.size() < 100 && character < 0xFFFF) continue;
      ASSERT_TRUE(areParsed(created)) << "one of " << created.front() << " to " << created.back() << " is not parsed";
      created.clear();
    }
    EXPECT_LT(30000U, count);
  }
}
