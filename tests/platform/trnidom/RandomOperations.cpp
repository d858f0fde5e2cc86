#include "RandomOperations.h"

#include <stdexcept>
#include <utility>

#include "TestSupport.h"

#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_Parser.h>

namespace dxmd_test {

namespace {

using Error = TRNIDOM_DOMException;

std::string shown(const std::string& text) {
  return text;
}
std::string shown(const TRNIDOM_Node& node) {
  return node.isNull() ? "null" : node.getNodeName().toUtf8() + " " + xmlOf(node);
}
template <typename Number>
std::string shown(Number number) {
  return std::to_string(number);
}

template <typename Value>
void expectSame(const Value& expected, const Value& actual, const char* what) {
  if (!(expected == actual))
    throw std::logic_error(std::string(what) + "\nexpected: " + shown(expected) + "\nactual:   " + shown(actual));
}

bool matches(const ModelNode* element, const std::string& name, const std::string& attribute,
             const std::string& value) {
  const auto found = element->attributes.find(attribute);
  return element->name == name && found != element->attributes.end() && found->second->text() == value;
}

}  // namespace

RandomOperations::RandomOperations(Choose choose) : m_choose(std::move(choose)) {
  for (const TRNIDOM_Document& real : {TRNIDOM_Parser::parseString("<?p i?><root/>"), newDocument()}) {
    ModelNode* document = add(TRNIDOM_Node::DOCUMENT_NODE, "", "", nullptr, real);
    for (const TRNIDOM_Node& child : real.getChildNodes())
      document->insert(
          add(child.getNodeType(), child.getNodeName().toUtf8(), child.getNodeValue().toUtf8(), document, child),
          nullptr);
    m_documents.push_back(document);
  }
  m_documents[1]->placeholder = m_documents[1]->documentElement();
  m_favourite = m_documents[0]->documentElement();
  m_attributes = m_favourite->handle.getAttributes();
}

void RandomOperations::step() {
  switch (m_choose(16)) {
    case 0:
      return createMalformed();
    case 1:
    case 2:
    case 3:
      return insert();
    case 4:
      return replace();
    case 5:
      return remove();
    case 6:
      return copy();
    case 7:
    case 8:
      return setValue();
    case 9:
    case 10:
    case 11:
      return setAttribute();
    case 12:
      return find();
    default:
      return findOrCreate();
  }
}

// What is chosen.

std::string RandomOperations::anyName() {
  static constexpr const char* kNames[] = {"a", "a", "a", "b", "b", "c", "\xC3\xA4", "p:d"};
  return kNames[m_choose(8)];
}

/// The name of an attribute: more than an element keeps without an index.
std::string RandomOperations::anyKey() {
  return oneIn(2) ? "k" + std::to_string(m_choose(40)) : anyName();
}

std::string RandomOperations::anyValue() {
  switch (m_choose(12)) {
    case 0:
      return "";
    case 1:
      return std::string(40, 'x') + std::to_string(m_choose(3));
    case 2:
      return "<&>\"'\t\n \xC3\xA4\xE2\x82\xAC\xF0\x90\x80\x80";
    case 3:
      return std::string(oneIn(4) ? std::size_t{20} << m_choose(8) : 3, 'y');
    default:
      return "v" + std::to_string(m_choose(8));
  }
}

ModelNode* RandomOperations::any() {
  return &m_nodes[m_choose(m_nodes.size())];
}

/// Mostly one and the same element, so that it has many children and its indexes much to do.
ModelNode* RandomOperations::anyParent() {
  return oneIn(3) ? any() : m_favourite;
}

ModelNode* RandomOperations::anyChild(ModelNode* parent) {
  if (oneIn(20)) return any();
  return parent->children.empty() ? nullptr : parent->children[m_choose(parent->children.size())];
}

// The model.

ModelNode* RandomOperations::add(unsigned short type, const std::string& name, const std::string& data,
                                 ModelNode* document, const TRNIDOM_Node& handle) {
  m_nodes.emplace_back();
  ModelNode& node = m_nodes.back();
  node.type = type;
  node.name = name;
  node.data = data;
  node.document = document != nullptr ? document : &node;
  node.handle = handle;
  return &node;
}

ModelNode* RandomOperations::addCopy(const ModelNode* of, bool deep, ModelNode* document, const TRNIDOM_Node& handle) {
  ModelNode* copied = add(of->type, of->name, of->data, document, handle);
  for (const auto& attribute : of->attributes) {
    ModelNode* added =
        addCopy(attribute.second, true, document, handle.getAttributes().getNamedItem(attribute.first.c_str()));
    added->parent = copied;
    copied->attributes[attribute.first] = added;
  }
  if (!deep && !of->isAttribute()) return copied;
  const bool onDemand = of->isAttribute() && of->children.size() == 1;
  TRNIDOM_Node at = onDemand ? TRNIDOM_Node() : handle.getFirstChild();
  for (const ModelNode* child : of->children) {
    copied->insert(addCopy(child, true, document, at), nullptr);
    at = at.getNextSibling();
  }
  return copied;
}

const TRNIDOM_Node& RandomOperations::handleOf(ModelNode* node) {
  if (node->handle.isNull()) node->handle = node->parent->handle.getFirstChild();
  return node->handle;
}

bool RandomOperations::attempt(const ModelNode::Codes& codes, const std::function<void()>& change) {
  try {
    change();
  } catch (const Error& error) {
    if (codes.count(error.code()) == 0) throw std::logic_error(std::string("refused: ") + error.what());
    return false;
  }
  if (!codes.empty()) throw std::logic_error("not refused with code " + std::to_string(*codes.begin()));
  return true;
}

// What is done.

ModelNode* RandomOperations::create() {
  ModelNode* document = m_documents[m_choose(2)];
  TRNIDOM_Document real = document->handle;
  const std::string value = anyValue();
  switch (m_choose(6)) {
    case 0:
      return add(TRNIDOM_Node::COMMENT_NODE, "", value, document, real.createComment(value.c_str()));
    case 1:
      return add(TRNIDOM_Node::CDATA_SECTION_NODE, "", value, document, real.createCDATASection(value.c_str()));
    case 2:
    case 3:
      return add(TRNIDOM_Node::TEXT_NODE, "", value, document, real.createTextNode(value.c_str()));
    default: {
      const std::string name = anyName();
      return add(TRNIDOM_Node::ELEMENT_NODE, name, "", document, real.createElement(name.c_str()));
    }
  }
}

void RandomOperations::createMalformed() {
  const I18NString nul = I18NString::fromUtf16(u"a\0b", 3);
  ModelNode* node = any();
  TRNIDOM_Document document = node->handle.isNull() ? node->document->handle : handleOf(node);
  ModelNode::Codes codes{Error::INVALID_CHARACTER_ERR};
  if (document.getNodeType() != TRNIDOM_Node::DOCUMENT_NODE) codes.insert(Error::NOT_SUPPORTED_ERR);
  attempt(codes, [&] { document.createElement(oneIn(2) ? nul : "1"); });
  attempt(codes, [&] { document.createTextNode(nul); });
  attempt(codes, [&] { document.createComment(nul); });
  attempt(codes, [&] { document.createCDATASection(nul); });
  attempt({Error::NOT_SUPPORTED_ERR}, [&] { document.importNode(m_documents[0]->handle, oneIn(2)); });
}

void RandomOperations::insert() {
  ModelNode* node = oneIn(4) ? any() : create();
  ModelNode* parent = anyParent();
  ModelNode* before = oneIn(2) ? anyChild(parent) : nullptr;
  TRNIDOM_Node real = handleOf(parent);
  const auto codes = parent->refusals(node, before);
  const bool done = attempt(codes, [&] {
    const TRNIDOM_Node inserted =
        before != nullptr || oneIn(2)
            ? real.insertBefore(handleOf(node), before != nullptr ? handleOf(before) : TRNIDOM_Node())
            : real.appendChild(handleOf(node));
    expectSame(handleOf(node), inserted, "what is inserted is given back");
  });
  if (done) parent->insert(node, before);
}

void RandomOperations::replace() {
  ModelNode* parent = anyParent();
  ModelNode* old = anyChild(parent);
  ModelNode* node = oneIn(2) ? any() : create();
  if (old == nullptr) return;
  const bool done = attempt(parent->refusals(node, nullptr, old), [&] {
    TRNIDOM_Node real = handleOf(parent);
    expectSame(handleOf(old), real.replaceChild(handleOf(node), handleOf(old)), "what is replaced is given back");
  });
  if (done) parent->replace(node, old);
}

void RandomOperations::remove() {
  ModelNode* parent = anyParent();
  ModelNode* child = anyChild(parent);
  if (child == nullptr) return;
  ModelNode::Codes codes;
  if (child->parent != parent || child->isAttribute()) codes.insert(Error::NOT_FOUND_ERR);
  const bool done = attempt(codes, [&] {
    TRNIDOM_Node real = handleOf(parent);
    expectSame(handleOf(child), real.removeChild(handleOf(child)), "what is removed is given back");
  });
  if (done) child->detach();
}

/// Copies of large trees would soon be all there is.
void RandomOperations::copy() {
  ModelNode* node = any();
  const bool deep = oneIn(2);
  if (node->type == TRNIDOM_Node::DOCUMENT_NODE)
    return expectSame(deep ? node->xml() : "", xmlOf(node->handle.cloneNode(deep)), "copy of a document");
  if (node->xml().size() > 200) return;
  ModelNode* document = oneIn(2) ? node->document : m_documents[m_choose(2)];
  TRNIDOM_Document real = document->handle;
  const bool imports = document != node->document || oneIn(2);
  ModelNode* copied =
      addCopy(node, deep, document, imports ? real.importNode(handleOf(node), deep) : handleOf(node).cloneNode(deep));
  expectSame(copied->xml(), xmlOf(copied->handle), "copy");
  checkNode(copied);
  ModelNode* parent = anyParent();
  if (parent->refusals(copied, nullptr).empty()) {
    TRNIDOM_Node(handleOf(parent)).appendChild(copied->handle);
    parent->insert(copied, nullptr);
  }
}

void RandomOperations::setValue() {
  ModelNode* node = any();
  TRNIDOM_Node real = handleOf(node);
  const bool hasValue = node->isAttribute() || !(node->isElement() || node->type == TRNIDOM_Node::DOCUMENT_NODE);
  if (oneIn(10)) {
    ModelNode::Codes codes;
    if (hasValue) codes.insert(Error::INVALID_CHARACTER_ERR);
    attempt(codes, [&] { real.setNodeValue(I18NString::fromUtf16(u"a\0b", 3)); });
    return;
  }
  const std::string value = anyValue();
  askForChildren(node);
  real.setNodeValue(value.c_str());
  if (hasValue) setData(node, value);
}

/// Several texts of an attribute live on without it when it is given a value.
void RandomOperations::askForChildren(ModelNode* node) {
  if (node->isAttribute() && node->children.size() > 1) handleOf(node->children.front());
}

/// An attribute's only text stays and has the new value; several, or none, give way to one.
void RandomOperations::setData(ModelNode* node, const std::string& value) {
  if (!node->isAttribute()) {
    node->data = value;
  } else if (node->children.size() == 1) {
    node->children.front()->data = value;
  } else {
    while (!node->children.empty()) node->children.back()->detach();
    node->insert(add(TRNIDOM_Node::TEXT_NODE, "", value, node->document, TRNIDOM_Node()), nullptr);
  }
}

void RandomOperations::setAttribute() {
  ModelNode* node = anyParent();
  if (ModelNode* child = anyChild(node); child != nullptr && child->isElement()) node = child;
  TRNIDOM_Element element = handleOf(node);
  ModelNode::Codes codes;
  if (!node->isElement()) codes.insert(Error::NOT_SUPPORTED_ERR);
  const std::string name = anyKey();
  if (oneIn(4)) {
    if (!attempt(codes, [&] { element.removeAttribute(name.c_str()); })) return;
    if (const auto found = node->attributes.find(name); found != node->attributes.end()) {
      found->second->parent = nullptr;
      node->attributes.erase(found);
    }
    return;
  }
  const std::string value = anyValue();
  if (oneIn(10)) {
    codes.insert(Error::INVALID_CHARACTER_ERR);
    attempt(codes, [&] { element.setAttribute("1", value.c_str()); });
    attempt(codes, [&] { element.setAttribute(name.c_str(), I18NString::fromUtf16(u"a\0b", 3)); });
    return;
  }
  if (const auto found = node->attributes.find(name); found != node->attributes.end()) askForChildren(found->second);
  if (!attempt(codes, [&] { element.setAttribute(name.c_str(), value.c_str()); })) return;
  ModelNode*& attribute = node->attributes[name];
  if (attribute == nullptr) {
    attribute =
        add(TRNIDOM_Node::ATTRIBUTE_NODE, name, "", node->document, element.getAttributes().getNamedItem(name.c_str()));
    attribute->parent = node;
  }
  setData(attribute, value);
}

void RandomOperations::find() {
  ModelNode* parent = anyParent();
  const std::string name = oneIn(20) ? "1" : anyName();
  const std::string attribute = anyName();
  const std::string value = anyValue();
  TRNIDOM_Node child;
  TRNIDOM_Node first;
  TRNIDOM_Node keyed;
  for (const ModelNode* node : parent->children)
    if (child.isNull() && node->isElement() && node->name == name) child = node->handle;
  std::vector<const ModelNode*> descendants;
  parent->collectElements(name, descendants);
  for (const ModelNode* node : descendants) {
    if (first.isNull()) first = node->handle;
    if (keyed.isNull() && matches(node, name, attribute, value)) keyed = node->handle;
  }
  const TRNIDOM_Node& real = handleOf(parent);
  const TRNIDOM_Element found =
      TRNIDOM_Helper::findElementWithAttribute(real, name.c_str(), attribute.c_str(), value.c_str());
  expectSame<TRNIDOM_Node>(child, TRNIDOM_Helper::findChildElement(real, name.c_str()), "child of that name");
  expectSame<TRNIDOM_Node>(first, TRNIDOM_Helper::findFirstElement(real, name.c_str()), "descendant of that name");
  expectSame<TRNIDOM_Node>(keyed, found, "descendant of that attribute");
}

void RandomOperations::findOrCreate() {
  ModelNode* parent = anyParent();
  TRNIDOM_Node real = handleOf(parent);
  const std::string name = anyName();
  const std::string key = anyName();
  const std::string value = anyValue();
  const std::size_t kind = m_choose(3);
  ModelNode* expected = nullptr;
  for (ModelNode* child : parent->children)
    if (expected == nullptr && child->isElement() && child->name == name && (kind != 1 || child->text() == value) &&
        (kind != 2 || matches(child, name, key, value)))
      expected = child;
  ModelNode* made = nullptr;
  ModelNode::Codes codes;
  if (expected == nullptr) {
    made = add(TRNIDOM_Node::ELEMENT_NODE, name, "", parent->document, TRNIDOM_Node());
    codes = parent->refusals(made, nullptr);
  }
  TRNIDOM_Element found;
  const bool done = attempt(codes, [&] {
    if (kind == 0) found = TRNIDOM_Helper::findOrCreateElement(real, name.c_str());
    if (kind == 1) found = TRNIDOM_Helper::findOrCreateElementWithText(real, name.c_str(), value.c_str());
    if (kind == 2)
      found = TRNIDOM_Helper::findOrCreateElementWithAttribute(real, name.c_str(), key.c_str(), value.c_str());
  });
  if (expected != nullptr) return expectSame<TRNIDOM_Node>(expected->handle, found, "first child of that key");
  if (!done) return m_nodes.pop_back();
  made->handle = found;
  parent->insert(made, nullptr);
  if (kind == 1 && !value.empty())
    made->insert(add(TRNIDOM_Node::TEXT_NODE, "", value, made->document, found.getFirstChild()), nullptr);
  if (kind == 2) {
    ModelNode* attribute =
        add(TRNIDOM_Node::ATTRIBUTE_NODE, key, "", made->document, found.getAttributes().getNamedItem(key.c_str()));
    attribute->parent = made;
    made->attributes[key] = attribute;
    setData(attribute, value);
  }
}

// What is compared.

void RandomOperations::check() {
  for (const ModelNode* document : m_documents) expectSame(document->xml(), xmlOf(document->handle), "document");
  checkNode(any());
  ModelNode* root = anyParent();
  const std::string name = oneIn(3) ? "*" : anyName();
  const bool canHaveDescendants = root->isElement() || root->type == TRNIDOM_Node::DOCUMENT_NODE;
  if (!canHaveDescendants || oneIn(3))
    m_lists.push_back({root, "", handleOf(root).getChildNodes()});
  else if (root->isElement())
    m_lists.push_back({root, name, TRNIDOM_Element(root->handle).getElementsByTagName(name.c_str())});
  else
    m_lists.push_back({root, name, TRNIDOM_Document(root->handle).getElementsByTagName(name.c_str())});
  if (m_lists.size() > 12) m_lists.pop_front();
  checkItems(m_lists[m_choose(m_lists.size())]);
  checkAttributes(m_favourite, m_attributes);
}

void RandomOperations::checkReadBack() {
  for (const ModelNode* document : m_documents)
    if (document->documentElement() != nullptr)
      expectSame(document->xml(true), xmlOf(TRNIDOM_Parser::parseString(xmlOf(document->handle))), "read back");
}

void RandomOperations::checkNode(ModelNode* node) {
  const auto handle = [&](ModelNode* of) { return of != nullptr ? handleOf(of) : TRNIDOM_Node(); };
  const TRNIDOM_Element real = handleOf(node);
  const auto& children = node->children;
  const bool isDocument = node->document == node;
  expectSame(node->type, real.getNodeType(), "type");
  expectSame(node->nodeName(), real.getNodeName().toUtf8(), "name");
  expectSame(node->isElement() ? node->name : "", real.getTagName().toUtf8(), "tag name");
  expectSame(node->value(), real.getNodeValue().toUtf8(), "value");
  expectSame(node->isElement() ? node->text() : "", TRNIDOM_Helper::getElementText(real).toUtf8(), "text");
  expectSame(node->isAttribute() ? TRNIDOM_Node() : handle(node->parent), real.getParentNode(), "parent");
  expectSame(handle(node->sibling(-1)), real.getPreviousSibling(), "previous sibling");
  expectSame(handle(node->sibling(1)), real.getNextSibling(), "next sibling");
  expectSame(!children.empty(), real.hasChildNodes(), "whether there are children");
  expectSame(handle(children.empty() ? nullptr : children.front()), real.getFirstChild(), "first child");
  expectSame(handle(children.empty() ? nullptr : children.back()), real.getLastChild(), "last child");
  expectSame<TRNIDOM_Node>(isDocument ? TRNIDOM_Node() : node->document->handle, real.getOwnerDocument(), "document");
  expectSame<TRNIDOM_Node>(isDocument ? handle(node->documentElement()) : TRNIDOM_Node(),
                           TRNIDOM_Document(real).getDocumentElement(), "document element");
  checkAttributes(node, real.getAttributes());
}

/// Asks for items forward, backward and in leaps, and for the length in between.
void RandomOperations::checkItems(const List& list) {
  std::vector<const ModelNode*> expected(list.root->children.begin(), list.root->children.end());
  if (!list.name.empty()) {
    expected.clear();
    list.root->collectElements(list.name, expected);
  }
  std::size_t at = m_choose(expected.size() + 2);
  for (std::size_t asked = 0; asked < 6; ++asked) {
    if (oneIn(3)) expectSame(expected.size(), list.list.getLength(), "length of a list");
    const TRNIDOM_Node node = at < expected.size() ? handleOf(const_cast<ModelNode*>(expected[at])) : TRNIDOM_Node();
    expectSame(node, list.list.item(at), "item of a list");
    const std::size_t move = m_choose(3);
    if (move == 0) ++at;
    if (move == 1 && at > 0) --at;
    if (move == 2) at = m_choose(expected.size() + 2);
  }
}

void RandomOperations::checkAttributes(ModelNode* node, const TRNIDOM_NamedNodeMap& map) {
  const auto& expected = node->attributes;
  expectSame(expected.size(), map.getLength(), "number of attributes");
  const TRNIDOM_Element element = handleOf(node);
  const std::size_t wanted = m_choose(expected.size() + 1);
  std::size_t at = 0;
  for (const auto& attribute : expected)
    if (at++ == wanted) expectSame(attribute.second->handle, map.item(wanted), "attribute by index");
  if (wanted == expected.size()) expectSame(TRNIDOM_Node(), map.item(wanted), "attribute by index");
  const std::string name = anyKey();
  const auto found = expected.find(name);
  const bool has = found != expected.end();
  expectSame(has ? found->second->handle : TRNIDOM_Node(), map.getNamedItem(name.c_str()), "attribute by name");
  expectSame(has, element.hasAttribute(name.c_str()), "whether there is an attribute");
  expectSame(has ? found->second->value() : "", element.getAttribute(name.c_str()).toUtf8(), "value of an attribute");
}

}  // namespace dxmd_test
