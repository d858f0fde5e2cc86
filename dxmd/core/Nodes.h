#ifndef DXMD_CORE_NODES_H
#define DXMD_CORE_NODES_H

#include <cstddef>
#include <utility>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Node.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/resources/Vocabulary.h>

// The small steps that every helper reads with. A null node has no children, descendants or text.

namespace dxmd {

/// Whether the node is an element; a null handle is none.
inline bool isElement(const TRNIDOM_Node& node) {
  return node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE;
}

/// The node's first child when that is a text node, else null.
TRNIDOM_Node firstText(const TRNIDOM_Node& parent);

/// Replaces the text by that of the parent's first child element of that name; without one the text stays as it was.
void readChildText(const TRNIDOM_Node& parent, const I18NString& name, I18NString& text);

/// The node, or the first sibling after it, that is an element of that name; null when there is none.
inline TRNIDOM_Element firstNamed(TRNIDOM_Node node, const I18NString& name) {
  // Of the nodes of another kind only a processing instruction could have the name.
  while (!node.isNull() && !(node.getNodeName() == name && isElement(node))) node = node.getNextSibling();
  return node;
}

/// For a loop over the children that are elements of one name.
class ChildElements {
 public:
  struct End {};

  class Iterator {
   public:
    Iterator(TRNIDOM_Element element, const I18NString& name) : m_element(std::move(element)), m_name(&name) {}

    TRNIDOM_Element& operator*() { return m_element; }
    Iterator& operator++() {
      m_element = firstNamed(m_element.getNextSibling(), *m_name);
      return *this;
    }
    bool operator!=(End) const { return !m_element.isNull(); }

   private:
    TRNIDOM_Element m_element;
    const I18NString* m_name;
  };

  ChildElements(const TRNIDOM_Node& parent, FixedText name)
      : m_name(name.text()), m_first(firstNamed(parent.getFirstChild(), m_name)) {}

  Iterator begin() const { return Iterator(m_first, m_name); }
  End end() const { return {}; }

 private:
  const I18NString& m_name;
  TRNIDOM_Element m_first;
};

/// For a loop over the descendant elements of one name, in document order.
class DescendantElements {
 public:
  struct End {};

  class Iterator {
   public:
    explicit Iterator(const TRNIDOM_NodeList& list) : m_list(&list), m_element(list.item(0)) {}

    TRNIDOM_Element& operator*() { return m_element; }
    Iterator& operator++() {
      m_element = m_list->item(++m_index);
      return *this;
    }
    bool operator!=(End) const { return !m_element.isNull(); }

   private:
    const TRNIDOM_NodeList* m_list;
    std::size_t m_index = 0;
    TRNIDOM_Element m_element;
  };

  DescendantElements(const TRNIDOM_Element& root, const I18NString& name) : m_list(root.getElementsByTagName(name)) {}

  Iterator begin() const { return Iterator(m_list); }
  End end() const { return {}; }

 private:
  TRNIDOM_NodeList m_list;
};

}  // namespace dxmd

#endif
