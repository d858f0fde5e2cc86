#include <trnidom/TRNIDOM_Writer.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <trnidom/TRNIDOM_DOMException.h>

#include "store/Document.h"
#include "store/Refusal.h"
#include "text/Utf8.h"

using namespace trnidom_detail;

namespace {

/// What stands for itself and what does not, by what a text is written into.
enum class Escaping { kText, kAttribute, kNone };

/// Levels below this one are indented like it, so that the size of what is written stays linear in the tree's.
constexpr std::size_t kDeepest = 100;

/// Copies bytes of which there are mostly few, and gives the place behind them.
inline char* copyShort(std::string_view bytes, char* to) noexcept {
  const std::size_t size = bytes.size();
  const char* const from = bytes.data();
  const auto copy = [&](std::size_t at, auto word) {
    std::memcpy(&word, from + at, sizeof word);
    std::memcpy(to + at, &word, sizeof word);
  };
  // The last word may overlap the one before it.
  if (size > 16) {
    std::memcpy(to, from, size);
  } else if (size >= 8) {
    copy(0, std::uint64_t{});
    copy(size - 8, std::uint64_t{});
  } else if (size >= 4) {
    copy(0, std::uint32_t{});
    copy(size - 4, std::uint32_t{});
  } else {
    for (std::size_t at = 0; at < size; ++at) to[at] = from[at];
  }
  return to + size;
}

/// Text that grows at its end.
class Output {
 public:
  /// @param expected  the number of bytes that there will be, as far as is known.
  explicit Output(std::size_t expected) { m_bytes.reserve(expected); }

  /// Room for so many bytes, to be written through the pointer; `end` says where they end.
  char* room(std::size_t size) {
    if (size > m_bytes.size() - m_size) grow(size);
    return m_bytes.data() + m_size;
  }
  void end(const char* behind) noexcept { m_size = static_cast<std::size_t>(behind - m_bytes.data()); }

  void put(std::string_view bytes) { end(copyShort(bytes, room(bytes.size()))); }
  void put(std::string_view before, std::string_view bytes, std::string_view behind) {
    char* const at = room(before.size() + bytes.size() + behind.size());
    end(copyShort(behind, copyShort(bytes, copyShort(before, at))));
  }
  void fill(std::size_t count, char byte) {
    std::memset(room(count), byte, count);
    m_size += count;
  }

  std::string take() {
    m_bytes.resize(m_size);
    return std::move(m_bytes);
  }

 private:
  /// What was reserved is not touched before it is needed, since that is when the system supplies it.
  void grow(std::size_t size) {
    constexpr std::size_t kStep = std::size_t{64} << 10;
    const std::size_t needed = m_size + size;
    const std::size_t step = std::min(std::max(m_bytes.size(), std::size_t{512}), kStep);
    if (needed + step <= m_bytes.capacity())
      m_bytes.resize(needed + step);
    else
      m_bytes.resize(needed <= m_bytes.capacity() ? m_bytes.capacity() : std::max(needed + step, needed * 3 / 2));
  }

  std::string m_bytes;
  std::size_t m_size = 0;
};

/// Writes eight code units as they are when all of them stand for themselves everywhere.
inline bool putPlain(const char16_t* from, char* to) noexcept {
  using Units = std::uint16_t __attribute__((vector_size(16)));
  using Bytes = std::uint8_t __attribute__((vector_size(8)));
  Units units;
  std::memcpy(&units, from, sizeof units);
  const auto other = (units - 0x20 > 0x5F) | (units == '&') | (units == '<') | (units == '>') | (units == '"');
  std::uint64_t halves[2];
  std::memcpy(halves, &other, sizeof halves);
  if ((halves[0] | halves[1]) != 0) return false;
  const auto bytes = __builtin_convertvector(units, Bytes);
  std::memcpy(to, &bytes, sizeof bytes);
  return true;
}

class Writer {
 public:
  Writer(const TRNIDOM_Writer::Options& options, std::size_t expected) : m_options(options), m_out(expected) {}

  void declaration() {
    if (!m_options.declaration) return;
    m_out.put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    if (m_options.indent != 0) m_out.put("\n");
  }

  /// The node and all below it. On the way down the depth is counted, on the way up parents are asked for.
  void tree(const Node* root) {
    const Node* node = root;
    while (true) {
      open(node);
      if (node->type != Node::kAttribute && firstListed(node) != nullptr) {
        enter(node);
        node = firstListed(node);
        continue;
      }
      while (true) {
        if (node == root) return;
        if (node->next != nullptr) {
          node = node->next;
          newLine();
          break;
        }
        node = node->parent;
        leave(node);
      }
    }
  }

  std::string take() { return m_out.take(); }

 private:
  static bool isMixed(const Node* element) noexcept {
    for (const ChildNode* child = firstListed(element); child != nullptr; child = child->following())
      if (isText(child)) return true;
    return false;
  }

  /// A node without its children: of an element with children, the start tag.
  void open(const Node* node) {
    switch (node->type) {
      case Node::kElement:
        m_out.put("<", nameOf(node)->utf8(), "");
        for (const auto* at = static_cast<const Element*>(node)->firstAttribute; at != nullptr; at = at->following())
          attribute(" ", at);
        m_out.put(firstListed(node) != nullptr ? ">" : "/>");
        break;
      case Node::kAttribute:
        attribute("", static_cast<const Attribute*>(node));
        break;
      case Node::kText:
        text(ownValue(node), node, Escaping::kText);
        break;
      case Node::kCdata:
        refuse(node, u"]]>");
        m_out.put("<![CDATA[");
        text(ownValue(node), node, Escaping::kNone);
        m_out.put("]]>");
        break;
      case Node::kComment:
        refuse(node, u"--");
        if (!ownValue(node).empty() && ownValue(node).back() == u'-') unwritable(node, "it ends in \"-\"");
        m_out.put("<!--");
        text(ownValue(node), node, Escaping::kNone);
        m_out.put("-->");
        break;
      case Node::kInstruction:
        instruction(node);
        break;
      case Node::kDocument:
        break;
    }
  }

  void attribute(std::string_view before, const Attribute* node) {
    m_out.put(before, node->name->utf8(), "=\"");
    if (node->has(Node::kHasChildList)) {
      for (const ChildNode* child = firstListed(node); child != nullptr; child = child->following())
        text(ownValue(child), node, Escaping::kAttribute);
    } else {
      text(ownValue(node), node, Escaping::kAttribute);
    }
    m_out.put("\"");
  }

  void instruction(const Node* node) {
    refuse(node, u"?>");
    m_out.put("<?", nameOf(node)->utf8(), "");
    const Text data = ownValue(node);
    if (!data.empty()) {
      if (data.find_first_of(u" \t\n") == 0) unwritable(node, "it begins with white space");
      m_out.put(" ");
      text(data, node, Escaping::kNone);
    }
    m_out.put("?>");
  }

  /// From a start tag to the first child. Below an element with text nothing is indented.
  void enter(const Node* node) {
    if (node->type == Node::kDocument) return;
    if (m_verbatim != 0 || (m_options.indent != 0 && isMixed(node))) ++m_verbatim;
    ++m_depth;
    newLine();
  }

  void leave(const Node* node) {
    if (node->type == Node::kDocument) return;
    --m_depth;
    newLine();
    if (m_verbatim != 0) --m_verbatim;
    m_out.put("</", nameOf(node)->utf8(), ">");
  }

  void newLine() {
    if (m_options.indent == 0 || m_verbatim != 0) return;
    m_out.put("\n");
    m_out.fill(std::min(m_depth, kDeepest) * m_options.indent, ' ');
  }

  void text(Text value, const Node* node, Escaping escaping) {
    constexpr std::ptrdiff_t kPiece = 1024;  // room is made for one at a time
    constexpr std::ptrdiff_t kLongest = 6;   // "&quot;"
    constexpr std::ptrdiff_t kBlock = 8;
    const char16_t* at = value.data();
    const char16_t* const end = at + value.size();
    while (at != end) {
      const char16_t* const pieceEnd = at + std::min(end - at, kPiece);
      char* out = m_out.room(static_cast<std::size_t>((pieceEnd - at + 1) * kLongest));
      while (at < pieceEnd) {
        while (pieceEnd - at >= kBlock && putPlain(at, out)) {
          at += kBlock;
          out += kBlock;
        }
        for (std::ptrdiff_t i = 0; i < kBlock && at < pieceEnd; ++i)
          out = *at > u'>' ? character(at, end, out, node) : escaped(*at++, out, node, escaping);
      }
      m_out.end(out);
    }
  }

  /// A character up to ">": all that may need escaping.
  static char* escaped(char16_t unit, char* out, const Node* node, Escaping escaping) {
    const auto put = [&out](std::string_view bytes) {
      std::memcpy(out, bytes.data(), bytes.size());
      return out + bytes.size();
    };
    switch (unit) {
      case u'&':
        return put(escaping == Escaping::kNone ? "&" : "&amp;");
      case u'<':
        return put(escaping == Escaping::kNone ? "<" : "&lt;");
      case u'>':  // in text it might end "]]>"
        return put(escaping == Escaping::kText ? "&gt;" : ">");
      case u'"':
        return put(escaping == Escaping::kAttribute ? "&quot;" : "\"");
      case u'\t':
        return put(escaping == Escaping::kAttribute ? "&#9;" : "\t");
      case u'\n':
        return put(escaping == Escaping::kAttribute ? "&#10;" : "\n");
      case u'\r':  // would be read as a line feed
        if (escaping == Escaping::kNone) unwritable(node, "it has a carriage return");
        return put("&#13;");
      default:
        if (unit < u' ') unwritable(node, "it has a control character");
        *out = static_cast<char>(unit);
        return out + 1;
    }
  }

  /// Writes the character that begins at `at`, which moves behind it.
  static char* character(const char16_t*& at, const char16_t* end, char* out, const Node* node) {
    const char32_t character = nextCharacter(at, end);
    if (character >= 0xD800 && character < 0xE000) unwritable(node, "it has a lone surrogate");
    if (character == 0xFFFE || character == 0xFFFF) unwritable(node, "it has a character that XML does not have");
    return putUtf8(character, out);
  }

  static void refuse(const Node* node, Text what) {
    if (ownValue(node).find(what) != Text::npos) unwritable(node, "it has \"" + stringOf(what).toUtf8() + '"');
  }

  [[noreturn]] static void unwritable(const Node* node, const std::string& because) {
    throwRefused({TRNIDOM_DOMException::INVALID_CHARACTER_ERR, because}, "toString", node);
  }

  const TRNIDOM_Writer::Options& m_options;
  Output m_out;
  std::size_t m_depth = 0;
  std::size_t m_verbatim = 0;  // elements open since the first one with text
};

}  // namespace

std::string TRNIDOM_Writer::toString(const TRNIDOM_Node& node, const Options& options) {
  if (node.isNull()) return {};
  const Document& document = *Access::document(node);
  const bool isWhole =
      node.getNodeType() == TRNIDOM_Node::DOCUMENT_NODE || document.documentElement() == Access::node(node);
  Writer writer(options, isWhole ? document.expectedSize() : 0);
  writer.declaration();
  writer.tree(Access::node(node));
  return writer.take();
}
