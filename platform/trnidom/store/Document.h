#ifndef TRNIDOM_STORE_DOCUMENT_H
#define TRNIDOM_STORE_DOCUMENT_H

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <unordered_map>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_HandleCount.h>
#include <trnidom/TRNIDOM_Node.h>

#include "index/AttributeIndexes.h"
#include "index/ChildIndexes.h"
#include "store/Arena.h"
#include "store/Names.h"
#include "store/Node.h"
#include "text/Text.h"

namespace trnidom_detail {

/// A document: its nodes, and what is known of them. The only place that changes trees.
///
/// What may be refused throws `Refusal`; every change may throw std::bad_alloc; in either case nothing has changed.
/// What a reader makes on demand (indexes, the text of an attribute) is made under a lock, so that readers may share a
/// document.
class Document final : public TRNIDOM_HandleCount {
 public:
  /// Makes an empty document without handles; the last handle to go frees it.
  static Document* make();
  void free() noexcept;

  DocumentNode* node() noexcept { return &m_node; }
  Element* documentElement() const noexcept { return m_documentElement; }

  // Making nodes, which have no parent then.

  Element* newElement(Text name);
  CharacterData* newCharacterData(Node::Type type, Text data);

  /// The element that createDocument makes: it gives way to another document element as long as it has neither child
  /// nor attribute.
  void setPlaceholder(Text name);

  /// A copy of a node of any document; null for a document. Its attributes come with it, its children when `deep`.
  Node* copy(const Node* source, bool deep);

  /// Copies the children of another document to this one, which is empty.
  void copyChildren(const Document& source);

  // Changing the tree, as the W3C has it. Children and parents are nodes of this document.

  static void requireChild(const Node* parent, const Node* child);

  /// Inserts before a child of the parent, or at the end when `before` is null.
  void insert(Node* parent, Node* child, Node* before);
  void replace(Node* parent, Node* child, Node* old);
  void remove(Node* parent, Node* child);

  /// Appends an element that was just made, with its attributes and its text.
  void appendNew(Node* parent, Element* element);

  /// Sets the value of a node that has one. An attribute's only text stays and has the new value; several are replaced.
  void setValue(Node* node, Text value);

  void setAttribute(Element* element, Text name, Text value);
  void removeAttribute(Element* element, Text name);

  // Reading what may have to be made first.

  /// The attribute, or null.
  Attribute* attribute(const Element* element, Text name) const;

  /// The first child of any node, or null.
  ChildNode* firstChild(const Node* node) const;

  /// The first child element of that key, or null. `attribute` and `value` are as ChildKey has them.
  Element* findChild(Node* parent, ChildKey::Kind kind, Text name, Text attribute = Text(), Text value = Text()) const;

  const Names& names() const noexcept { return m_names; }

  /// The number of bytes that the document is written with: enough for one of ASCII that nothing was removed from or
  /// made longer in, and that needs no escaping.
  std::size_t expectedSize() const noexcept { return m_expectedSize; }

  /// Moves with each node that comes to a tree or goes from one, attributes apart.
  std::uint64_t structureVersion() const noexcept { return m_structure; }
  /// The same, but for children appended at the end: what stands before them is where it was.
  std::uint64_t orderVersion() const noexcept { return m_order; }
  /// Moves with each attribute that comes or goes.
  std::uint64_t attributesVersion() const noexcept { return m_attributesVersion; }

 private:
  friend class TreeBuilder;

  Document(void* first, std::size_t size) noexcept;
  ~Document() = default;

  const Name* validName(Text name);
  [[gnu::noinline]] const Name* checkedName(Text name, std::size_t quick);

  // Without checks.
  template <typename Made>
  Made* makeWithValue(Node::Type type, Text value);
  Element* makeElement(const Name* name);
  Attribute* makeAttribute(const Name* name, Text value);
  CharacterData* makeCharacterData(Node::Type type, Text data);
  Instruction* makeInstruction(const Name* target, Text data);
  ValueBlock* makeBlock(Text value, std::size_t capacity);
  void link(Node* parent, ChildNode* child, ChildNode* before) noexcept;
  void unlink(ChildNode* child) noexcept;

  Node* copyAlone(const Node* source);
  Element* copyElement(const Element* source);
  Attribute* copyAttribute(const Attribute* source);

  // The steps of a change: what may fail comes before what may not.
  void requireInsertable(const Node* parent, const Node* child) const;
  Element* displacedBy(const Node* parent, const Node* child, const Node* replaced) const;
  void prepare(Node* parent, ChildNode* child);
  void put(Node* parent, ChildNode* child, ChildNode* before, Element* displaced) noexcept;
  void take(ChildNode* child) noexcept;
  void assign(Node* node, Text value);
  void noteTextChanging(Node* parent) noexcept;
  void listChildren(Attribute* attribute);

  AttributeIndexes::Place placeOf(const Element* element, Text name) const;
  CharacterData* mirrorOf(const Attribute* attribute) const;

  mutable Arena m_arena;
  DocumentNode m_node{};
  Names m_names{m_arena};
  Element* m_documentElement = nullptr;
  Element* m_placeholder = nullptr;
  std::size_t m_expectedSize = 0;
  std::uint64_t m_structure = 0;
  std::uint64_t m_order = 0;
  std::uint64_t m_attributesVersion = 0;

  // What reading makes. Changes happen while nobody reads, and need no lock.
  mutable std::mutex m_onDemand;
  mutable ChildIndexes m_children;
  mutable AttributeIndexes m_attributes;
  mutable std::unordered_map<const Attribute*, CharacterData*> m_mirrors;
};

/// Between handles and what they stand for.
struct Access {
  static Node* node(const TRNIDOM_Node& handle) noexcept { return handle.m_node; }
  static Document* document(const TRNIDOM_Node& handle) noexcept { return static_cast<Document*>(handle.m_document); }

  static TRNIDOM_Node handle(Node* node, Document* document) noexcept { return TRNIDOM_Node(node, document); }
  /// A handle beside another one, into the same document.
  static TRNIDOM_Node handle(Node* node, const TRNIDOM_Node& beside) noexcept {
    return TRNIDOM_Node(node, beside.m_document);
  }

  static TRNIDOM_NodeList childList(const TRNIDOM_Node& root);
  static TRNIDOM_NodeList descendantList(const TRNIDOM_Node& root, const I18NString& name);
  static TRNIDOM_NamedNodeMap map(const TRNIDOM_Node& element);
};

/// An empty document.
TRNIDOM_Document newDocument();

}  // namespace trnidom_detail

#endif
