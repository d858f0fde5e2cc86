#include <trnidom/TRNIDOM_Writer.h>

#include <algorithm>

#include <trnidom/TRNIDOM_DOMException.h>

#include "Control.h"
#include "NodeOps.h"
#include "Xerces.h"

using namespace trnidom_detail;
using xercesc::DOMNode;

namespace {

/// What stands for itself and what does not, by the place a text is written in.
enum class Place { kText, kAttribute, kVerbatim };

/// Levels below this one are indented like it, so that the size of what is written stays linear in the tree's.
constexpr std::size_t kDeepest = 100;

class Writer {
 public:
  explicit Writer(const TRNIDOM_Writer::Options& options) : m_options(options) {}

  void declaration() {
    if (!m_options.declaration) return;
    m_out += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
    if (m_options.indent != 0) m_out += '\n';
  }

  /// The node and all below it. On the way down the depth is counted, on the way up parents are asked for.
  void tree(const DOMNode* root) {
    const DOMNode* node = root;
    while (true) {
      open(node);
      if (const DOMNode* child = ops::firstChild(node); child != nullptr && hasContent(node)) {
        enter(node);
        node = child;
        continue;
      }
      while (true) {
        if (node == root) return;
        const DOMNode* next = ops::nextSibling(node);
        if (next != nullptr) {
          node = next;
          newLine();
          break;
        }
        node = ops::parent(node);
        leave(node);
      }
    }
  }

  std::string take() { return std::move(m_out); }

 private:
  static bool hasContent(const DOMNode* node) noexcept {
    return node->getNodeType() == DOMNode::ELEMENT_NODE || node->getNodeType() == DOMNode::DOCUMENT_NODE;
  }

  static bool isMixed(const DOMNode* element) noexcept {
    for (const DOMNode* child = ops::firstChild(element); child != nullptr; child = ops::nextSibling(child)) {
      const auto type = child->getNodeType();
      if (type == DOMNode::TEXT_NODE || type == DOMNode::CDATA_SECTION_NODE) return true;
    }
    return false;
  }

  /// A node without its children: of an element with children, the start tag.
  void open(const DOMNode* node) {
    switch (node->getNodeType()) {
      case DOMNode::ELEMENT_NODE: {
        m_out += '<';
        name(node);
        const std::size_t count = ops::attributeCount(node);
        for (std::size_t i = 0; i < count; ++i) {
          m_out += ' ';
          open(ops::attributeAt(node, i));
        }
        m_out += ops::firstChild(node) != nullptr ? ">" : "/>";
        break;
      }
      case DOMNode::ATTRIBUTE_NODE:
        name(node);
        m_out += "=\"";
        text(node, Place::kAttribute);
        m_out += '"';
        break;
      case DOMNode::TEXT_NODE:
        text(node, Place::kText);
        break;
      case DOMNode::CDATA_SECTION_NODE:
        refuse(node, u"]]>");
        m_out += "<![CDATA[";
        text(node, Place::kVerbatim);
        m_out += "]]>";
        break;
      case DOMNode::COMMENT_NODE:
        refuse(node, u"--");
        if (!ops::value(node).empty() && ops::value(node).back() == u'-') unwritable(node, "it ends in \"-\"");
        m_out += "<!--";
        text(node, Place::kVerbatim);
        m_out += "-->";
        break;
      case DOMNode::PROCESSING_INSTRUCTION_NODE:
        instruction(node);
        break;
      default:
        break;
    }
  }

  void instruction(const DOMNode* node) {
    refuse(node, u"?>");
    m_out += "<?";
    name(node);
    const Text data = ops::value(node);
    if (!data.empty()) {
      if (data.find_first_of(u" \t\n") == 0) unwritable(node, "it begins with white space");
      m_out += ' ';
      text(node, Place::kVerbatim);
    }
    m_out += "?>";
  }

  /// From a start tag to the first child. Below an element with text nothing is indented.
  void enter(const DOMNode* node) {
    if (node->getNodeType() == DOMNode::DOCUMENT_NODE) return;
    if (m_verbatim != 0 || (m_options.indent != 0 && isMixed(node))) ++m_verbatim;
    ++m_depth;
    newLine();
  }

  void leave(const DOMNode* node) {
    if (node->getNodeType() == DOMNode::DOCUMENT_NODE) return;
    --m_depth;
    newLine();
    if (m_verbatim != 0) --m_verbatim;
    m_out += "</";
    name(node);
    m_out += '>';
  }

  void newLine() {
    if (m_options.indent == 0 || m_verbatim != 0) return;
    m_out += '\n';
    m_out.append(std::min(m_depth, kDeepest) * m_options.indent, ' ');
  }

  void name(const DOMNode* node) {
    for (const char16_t* at = ops::name(node); *at != 0;) at = character(at, at + 2, node);
  }

  void text(const DOMNode* node, Place place) {
    const Text value = ops::value(node);
    const char16_t* const end = value.data() + value.size();
    for (const char16_t* at = value.data(); at != end;) {
      if (*at > u'>') {
        at = character(at, end, node);
        continue;
      }
      escaped(*at++, node, place);
    }
  }

  /// A character up to ">": all that may need escaping.
  void escaped(char16_t unit, const DOMNode* node, Place place) {
    switch (unit) {
      case u'&':
        m_out += place == Place::kVerbatim ? "&" : "&amp;";
        return;
      case u'<':
        m_out += place == Place::kVerbatim ? "<" : "&lt;";
        return;
      case u'>':  // in text it might end "]]>"
        m_out += place == Place::kText ? "&gt;" : ">";
        return;
      case u'"':
        m_out += place == Place::kAttribute ? "&quot;" : "\"";
        return;
      case u'\t':
        m_out += place == Place::kAttribute ? "&#9;" : "\t";
        return;
      case u'\n':
        m_out += place == Place::kAttribute ? "&#10;" : "\n";
        return;
      case u'\r':  // would be read as a line feed
        if (place == Place::kVerbatim) unwritable(node, "it has a carriage return");
        m_out += "&#13;";
        return;
      default:
        if (unit < u' ') unwritable(node, "it has a control character");
        m_out += static_cast<char>(unit);
    }
  }

  /// Writes the character that begins there and gives the place behind it.
  const char16_t* character(const char16_t* at, const char16_t* end, const DOMNode* node) {
    const auto byte = [this](unsigned value) { m_out += static_cast<char>(static_cast<unsigned char>(value)); };
    const unsigned unit = *at++;
    if (unit < 0x80) {
      byte(unit);
    } else if (unit < 0x800) {
      byte(0xC0 | unit >> 6);
      byte(0x80 | (unit & 0x3F));
    } else if (unit < 0xD800 || (unit > 0xDFFF && unit < 0xFFFE)) {
      byte(0xE0 | unit >> 12);
      byte(0x80 | (unit >> 6 & 0x3F));
      byte(0x80 | (unit & 0x3F));
    } else if (unit < 0xDC00 && at < end && *at >= 0xDC00 && *at < 0xE000) {
      const unsigned code = 0x10000 + ((unit - 0xD800) << 10) + (*at++ - 0xDC00U);
      byte(0xF0 | code >> 18);
      byte(0x80 | (code >> 12 & 0x3F));
      byte(0x80 | (code >> 6 & 0x3F));
      byte(0x80 | (code & 0x3F));
    } else {
      unwritable(node, unit < 0xFFFE ? "it has a lone surrogate" : "it has a character that XML does not have");
    }
    return at;
  }

  void refuse(const DOMNode* node, Text what) {
    if (ops::value(node).find(what) != Text::npos) unwritable(node, "it has \"" + stringOf(what).toUtf8() + '"');
  }

  [[noreturn]] static void unwritable(const DOMNode* node, const std::string& because) {
    fail(TRNIDOM_DOMException::INVALID_CHARACTER_ERR, "toString", node, because);
  }

  const TRNIDOM_Writer::Options& m_options;
  std::string m_out;
  std::size_t m_depth = 0;
  std::size_t m_verbatim = 0;  // elements open since the first one with text
};

}  // namespace

std::string TRNIDOM_Writer::toString(const TRNIDOM_Node& node, const Options& options) {
  if (node.isNull()) return {};
  const DOMNode* root = Access::node(node);
  return guarded("toString", root, [&] {
    Writer writer(options);
    writer.declaration();
    writer.tree(root);
    return writer.take();
  });
}
