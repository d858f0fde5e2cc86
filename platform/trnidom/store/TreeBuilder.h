#ifndef TRNIDOM_STORE_TREEBUILDER_H
#define TRNIDOM_STORE_TREEBUILDER_H

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>

#include "store/Document.h"
#include "text/Text.h"

namespace trnidom_detail {

/// Appends what a parser finds to an empty document, in document order. Names and texts are valid UTF-8; nothing is
/// checked.
///
/// Everything may throw std::bad_alloc; the document is then as far as it was built.
class TreeBuilder {
 public:
  explicit TreeBuilder(const TRNIDOM_Document& document);
  TreeBuilder(const TreeBuilder&) = delete;
  TreeBuilder& operator=(const TreeBuilder&) = delete;

  void startElement(std::string_view name);
  /// An attribute of the element just started; names are distinct.
  void attribute(std::string_view name, std::string_view value);
  void endElement();
  /// Goes on the run of characters that is open; the run is one text node, ended by any call but this one.
  void text(std::string_view characters);
  /// One whole CDATA section.
  void cdata(std::string_view characters);
  void comment(std::string_view characters);
  void instruction(std::string_view target, std::string_view data);

  /// The number of elements that are open.
  std::size_t depth() const noexcept { return m_depth; }

 private:
  /// UTF-16 that is put together from pieces of UTF-8.
  class Buffer {
   public:
    void append(std::string_view utf8);
    void clear() noexcept { m_size = 0; }
    bool empty() const noexcept { return m_size == 0; }
    Text text() const noexcept { return {m_units.get(), m_size}; }

   private:
    std::unique_ptr<char16_t[]> m_units;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
  };

  const Name* nameOf(std::string_view utf8);
  /// The characters as UTF-16, valid until the next call.
  Text converted(std::string_view utf8);
  void append(ChildNode* child) noexcept { m_document->link(m_parent, child, nullptr); }
  void finishOpenParts() {
    if (!m_attributes.empty()) linkAttributes();
    if (!m_text.empty()) appendText();
  }
  void linkAttributes() noexcept;
  void appendText();

  static constexpr std::size_t kRecent = 64;

  const TRNIDOM_Document m_handle;
  Document* const m_document;
  Node* m_parent;
  std::size_t m_depth = 0;
  std::vector<Attribute*> m_attributes;  // of the element just started
  Buffer m_text;                         // the run of characters that is open
  Buffer m_converted;
  std::array<const Name*, kRecent> m_recent{};  // a direct-mapped cache of names, by their UTF-8
};

}  // namespace trnidom_detail

#endif
