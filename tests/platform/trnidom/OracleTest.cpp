#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "Oracle.h"
#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

enum class Encoding { kUtf8, kUtf8Marked, kUtf16Le, kUtf16Be, kLatin1 };

/// Writes documents, well-formed ones and others.
class Generator {
 public:
  explicit Generator(unsigned seed) : m_random(seed) {}

  std::string document() {
    m_encoding = static_cast<Encoding>(below(5));
    std::string xml = prolog() + misc();
    element(xml, 0);
    xml += misc();
    if (below(2) == 0)
      for (std::size_t left = below(2); left > 0; --left) insertPiece(xml);
    std::string bytes = encoded(xml);
    if (below(2) == 0)
      for (std::size_t left = below(3); left > 0; --left) mutate(bytes);
    return bytes;
  }

 private:
  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }
  std::string oneOf(const std::vector<const char*>& all) { return all[below(all.size())]; }

  std::string prolog() {
    switch (m_encoding) {
      case Encoding::kLatin1:
        return "<?xml version='1.0' encoding='ISO-8859-1'?>";
      case Encoding::kUtf16Le:
      case Encoding::kUtf16Be:
        return oneOf({"", "<?xml version='1.0' encoding='UTF-16'?>\n", "<?xml version=\"1.0\"?>"});
      default:
        return oneOf({"", "<?xml version='1.0'?>", "<?xml version=\"1.0\" encoding='utf-8' standalone=\"yes\" ?>\r\n"});
    }
  }
  std::string misc() { return oneOf({"", "", "\n", " <!-- c -->", "<?p i ?>\r\n", "<!----><?q?>"}); }
  std::string name() { return oneOf({"a", "b", "p:c", "_d", "e-1.f", "\xC3\xA4", "xml"}); }
  std::string characters() {
    return oneOf({"",     "t",     " ",     "\n",       "\r\n",     "\r",           "\t",           "text",
                  "]",    "]]",    ">",     "\xC3\xA4", "\xC2\x85", "\xE2\x82\xAC", "\xEF\xBF\xBD", "\xF0\x90\x80\x80",
                  "&lt;", "&amp;", "&#65;", "&#xE4;",   "&#13;",    "&#x10FFFF;",   "&quot;",       "&apos;",
                  "&gt;"});
  }
  std::string run() {
    std::string all;
    for (std::size_t left = below(5); left > 0; --left) all += characters();
    return all;
  }
  void element(std::string& xml, int depth) {
    const std::string tag = name();
    xml += "<" + tag;
    for (std::size_t left = below(4); left > 0; --left)
      xml += oneOf({" ", "\n", "  "}) + name() + std::to_string(left) + oneOf({"=", " = "}) + "\"" + run() + "\"";
    if (below(4) == 0) {
      xml += oneOf({"/>", " />"});
      return;
    }
    xml += ">";
    for (std::size_t left = below(5); left > 0; --left) {
      switch (below(6)) {
        case 0:
          xml += "<![CDATA[" + oneOf({"", "d", "<&>", "\r\n", "]", "\xC3\xA4"}) + "]]>";
          break;
        case 1:
          xml += misc();
          break;
        case 2:
        case 3:
          if (depth < 5) element(xml, depth + 1);
          break;
        default:
          xml += run();
      }
    }
    xml += "</" + tag + oneOf({">", " >", "\n>"});
  }

  void insertPiece(std::string& xml) {
    std::istringstream pieces(
        "<|>|&|<a>|</a>|<!--|-->|--|<![CDATA[|]]>|<?|?>|<?xml?>|\"|'|=|&#0;|&#xD800;|&#x110000;|&b;|&#;|"
        "a='1'| |/|<!DOCTYPE a>|\x01|\x7F|\xEF\xBF\xBE|<a\xF0\x90\x80\x80/>|<?xml version='1.1'?>|"
        "\xEF\xBB\xBF");
    std::vector<std::string> all;
    for (std::string each; std::getline(pieces, each, '|');) all.push_back(each);
    const std::string& piece = all[below(all.size())];
    std::size_t at = below(xml.size() + 1);
    while (at < xml.size() && (xml[at] & 0xC0) == 0x80) ++at;
    xml.insert(at, piece);
  }

  void mutate(std::string& bytes) {
    if (bytes.empty()) return;
    const std::size_t at = below(bytes.size());
    switch (below(4)) {
      case 0:
        bytes[at] = static_cast<char>(static_cast<unsigned char>(bytes[at]) ^ 1U << below(8));
        break;
      case 1:
        bytes.resize(at);
        break;
      case 2:
        bytes.erase(at, 1 + below(4));
        break;
      default:
        bytes.insert(at, bytes.substr(below(bytes.size()), below(12)));
    }
  }

  std::string encoded(const std::string& xml) const {
    if (m_encoding == Encoding::kUtf8) return xml;
    if (m_encoding == Encoding::kUtf8Marked) return "\xEF\xBB\xBF" + xml;
    const I18NString text(xml.c_str());
    std::string bytes;
    if (m_encoding == Encoding::kLatin1) {
      for (std::size_t i = 0; i < text.length(); ++i)
        bytes += text.c_str()[i] < 0x100 ? static_cast<char>(text.c_str()[i]) : '?';
      return bytes;
    }
    return utf16(u"\uFEFF" + std::u16string(text.c_str(), text.length()), m_encoding == Encoding::kUtf16Be);
  }

  std::mt19937 m_random;
  Encoding m_encoding = Encoding::kUtf8;
};

}  // namespace

TEST(Oracle, AgreesOnWhatIsAcceptedAndOnTheTree) {
  const XercesPlatform platform;
  Generator generator(printedSeed());
  int accepted = 0;
  for (int i = 0; i < 8000; ++i) {
    const std::string bytes = generator.document();
    const Opinion ours = opinion(bytes);
    const Opinion xerces = opinionOfXerces(bytes);
    accepted += ours.accepts ? 1 : 0;
    const bool agrees = ours.accepts == xerces.accepts && (!ours.accepts || ours.text == xerces.text);
    EXPECT_TRUE(agrees || isKnownDifference(bytes, ours, xerces))
        << shownBytes(bytes) << "\nours: " << ours.text << "\nXerces-C: " << xerces.text;
  }
  EXPECT_LT(2000, accepted);
}
