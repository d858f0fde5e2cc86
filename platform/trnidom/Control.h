#ifndef TRNIDOM_CONTROL_H
#define TRNIDOM_CONTROL_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Node.h>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include "ChildIndexes.h"
#include "DocumentMemory.h"
#include "Text.h"

namespace trnidom_detail {

/// Where a document keeps names that it has given to nodes: they are XML names, then. A few, told apart by little: that
/// is enough for most.
class KnownNames {
 public:
  /// The name where the document keeps it, or null when that is not known.
  const XMLCh* find(Text name) const noexcept {
    if (name.empty()) return nullptr;
    const Text known = m_names[slot(name)];
    if (known.size() != name.size()) return nullptr;
    return std::memcmp(known.data(), name.data(), name.size() * sizeof(XMLCh)) == 0 ? known.data() : nullptr;
  }

  void add(const XMLCh* kept) noexcept {
    const Text name(kept);
    m_names[slot(name)] = name;
  }

 private:
  static std::size_t slot(Text name) noexcept {
    return (name.size() * 5 + name.front() + std::size_t{name.back()} * 3) % kSlots;
  }

  static constexpr std::size_t kSlots = 64;
  std::array<Text, kSlots> m_names{};
};

/// A document and what the wrapper knows of it. Made without handles; the last handle to go deletes it.
struct Control final : DocumentControl {
  /// Makes an empty document, once Xerces-C is initialised.
  Control();

  DocumentMemory memory;
  ChildIndexes indexes;
  KnownNames names;
  xercesc::DOMDocument* document;

  /// The element that was made with the document, or null. It gives way to another document element as long as it has
  /// neither child nor attribute.
  xercesc::DOMNode* placeholder = nullptr;

  /// Moves with each change of the tree's structure; values and attributes leave it alone.
  std::uint64_t structure = 0;
};

/// Between handles and what they stand for.
struct Access {
  static xercesc::DOMNode* node(const TRNIDOM_Node& handle) noexcept {
    return reinterpret_cast<xercesc::DOMNode*>(handle.m_node);
  }
  static Control* control(const TRNIDOM_Node& handle) noexcept { return static_cast<Control*>(handle.m_control); }

  static TRNIDOM_Node handle(xercesc::DOMNode* node, Control* control) noexcept {
    return TRNIDOM_Node(reinterpret_cast<NodeRep*>(node), control);
  }
  /// A handle beside another one, into the same document.
  static TRNIDOM_Node handle(xercesc::DOMNode* node, const TRNIDOM_Node& beside) noexcept {
    return TRNIDOM_Node(reinterpret_cast<NodeRep*>(node), beside.m_control);
  }

  static TRNIDOM_NodeList list(ListRecord* record) noexcept;
  static TRNIDOM_NamedNodeMap map(const TRNIDOM_Node& element) noexcept;
};

/// A handle to a document just made; keeps it until then.
TRNIDOM_Document newDocument();

}  // namespace trnidom_detail

#endif
