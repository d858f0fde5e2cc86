#include "store/TreeBuilder.h"

#include <algorithm>

#include "text/Utf8.h"

namespace trnidom_detail {

TreeBuilder::TreeBuilder(const TRNIDOM_Document& document)
    : m_handle(document), m_document(Access::document(document)), m_parent(m_document->node()) {}

void TreeBuilder::startElement(std::string_view name) {
  finishOpenParts();
  Element* const element = m_document->makeElement(nameOf(name));
  append(element);
  m_parent = element;
  ++m_depth;
}

void TreeBuilder::attribute(std::string_view name, std::string_view value) {
  const Name* const known = nameOf(name);
  m_attributes.push_back(m_document->makeAttribute(known, converted(value)));
}

void TreeBuilder::endElement() {
  finishOpenParts();
  m_parent = m_parent->parent;
  --m_depth;
}

void TreeBuilder::text(std::string_view characters) {
  m_text.append(characters);
}

void TreeBuilder::cdata(std::string_view characters) {
  finishOpenParts();
  append(m_document->makeCharacterData(Node::kCdata, converted(characters)));
}

void TreeBuilder::comment(std::string_view characters) {
  finishOpenParts();
  append(m_document->makeCharacterData(Node::kComment, converted(characters)));
}

void TreeBuilder::instruction(std::string_view target, std::string_view data) {
  finishOpenParts();
  const Name* const known = nameOf(target);
  append(m_document->makeInstruction(known, converted(data)));
}

void TreeBuilder::appendText() {
  append(m_document->makeCharacterData(Node::kText, m_text.text()));
  m_text.clear();
}

/// Gives the element its attributes in the order of their names.
void TreeBuilder::linkAttributes() noexcept {
  const auto precedes = [](const Attribute* left, const Attribute* right) {
    return left->name->text() < right->name->text();
  };
  if (!std::is_sorted(m_attributes.begin(), m_attributes.end(), precedes))
    std::sort(m_attributes.begin(), m_attributes.end(), precedes);
  Attribute* next = nullptr;
  for (auto at = m_attributes.rbegin(); at != m_attributes.rend(); ++at) {
    (*at)->parent = m_parent;
    (*at)->next = next;
    next = *at;
  }
  static_cast<Element*>(m_parent)->firstAttribute = next;
  m_attributes.clear();
}

const Name* TreeBuilder::nameOf(std::string_view utf8) {
  const auto unit = [](char byte) { return static_cast<std::size_t>(static_cast<unsigned char>(byte)); };
  const Name*& recent = m_recent[(utf8.size() * 5 + unit(utf8.front()) + unit(utf8.back()) * 3) % kRecent];
  if (recent == nullptr || recent->utf8() != utf8) recent = m_document->m_names.intern(converted(utf8));
  return recent;
}

Text TreeBuilder::converted(std::string_view utf8) {
  m_converted.clear();
  m_converted.append(utf8);
  return m_converted.text();
}

void TreeBuilder::Buffer::append(std::string_view utf8) {
  if (utf8.size() > m_capacity - m_size) {
    const std::size_t capacity = std::max(m_size + utf8.size(), m_capacity * 2);
    std::unique_ptr<char16_t[]> larger(new char16_t[capacity]);
    std::copy_n(m_units.get(), m_size, larger.get());
    m_units = std::move(larger);
    m_capacity = capacity;
  }
  m_size = static_cast<std::size_t>(utf16Of(utf8, m_units.get() + m_size) - m_units.get());
}

}  // namespace trnidom_detail
