#include <algorithm>
#include <deque>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "TestSupport.h"

#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

// Random operations on a document, and the same on a plain model of it. After each of them, what the document is
// written as, what lists hold and what searches find must be what the model says.

using namespace dxmd_test;

namespace {

struct Model {
  unsigned short type;
  std::string name;
  std::string value;
  std::map<std::string, std::string> attributes;
  Model* parent = nullptr;
  std::vector<Model*> children;
  TRNIDOM_Node handle;

  bool isElement() const { return type == TRNIDOM_Node::ELEMENT_NODE; }

  std::size_t index() const {
    const auto at = std::find(parent->children.begin(), parent->children.end(), this);
    return static_cast<std::size_t>(at - parent->children.begin());
  }
  void detach() {
    if (parent != nullptr) parent->children.erase(parent->children.begin() + static_cast<std::ptrdiff_t>(index()));
    parent = nullptr;
  }
  void insert(Model* child, Model* before) {
    child->detach();
    child->parent = this;
    const std::size_t at = before != nullptr ? before->index() : children.size();
    children.insert(children.begin() + static_cast<std::ptrdiff_t>(at), child);
  }
  bool isBelowOrSame(const Model* above) const {
    for (const Model* node = this; node != nullptr; node = node->parent)
      if (node == above) return true;
    return false;
  }
  std::string text() const {
    std::string all;
    for (const Model* child : children)
      if (child->type == TRNIDOM_Node::TEXT_NODE || child->type == TRNIDOM_Node::CDATA_SECTION_NODE)
        all += child->value;
    return all;
  }
  std::string xml() const {
    if (type == TRNIDOM_Node::TEXT_NODE) return value;
    if (type == TRNIDOM_Node::CDATA_SECTION_NODE) return "<![CDATA[" + value + "]]>";
    if (type == TRNIDOM_Node::COMMENT_NODE) return "<!--" + value + "-->";
    std::string out = "<" + name;
    for (const auto& attribute : attributes) out += " " + attribute.first + "=\"" + attribute.second + "\"";
    if (children.empty()) return out + "/>";
    out += ">";
    for (const Model* child : children) out += child->xml();
    return out + "</" + name + ">";
  }
  void collect(const std::string& wanted, std::vector<const Model*>& found) const {
    for (const Model* child : children) {
      if (child->isElement() && child->name == wanted) found.push_back(child);
      child->collect(wanted, found);
    }
  }
};

class RandomRun {
 public:
  explicit RandomRun(unsigned seed) : m_random(seed) {
    m_document = newDocument();
    m_root = add({TRNIDOM_Node::ELEMENT_NODE, "root", {}, {}, nullptr, {}, m_document.createElement("root")});
    m_document.appendChild(m_root->handle);
    for (const char* name : kNames) m_lists.push_back(TRNIDOM_Element(m_root->handle).getElementsByTagName(name));
    m_children = m_root->handle.getChildNodes();
  }

  void step() {
    switch (below(20)) {
      case 0:
        return insertNew();
      case 1:
        return move();
      case 2:
        return replace();
      case 3:
        return remove();
      case 4:
        return clone();
      case 5:
      case 6:
        return append();
      case 7:
      case 8:
        return setValue();
      case 9:
      case 10:
      case 11:
      case 12:
        return setAttribute();
      default:
        return findOrCreate();
    }
  }

  void checkReadBack() { EXPECT_EQ(m_root->xml(), xmlOf(parsed(m_root->xml()))); }

  void check() {
    ASSERT_EQ(m_root->xml(), xmlOf(m_root->handle));
    for (std::size_t i = 0; i < m_lists.size(); ++i) {
      std::vector<const Model*> expected;
      m_root->collect(kNames[i], expected);
      ASSERT_EQ(expected.size(), m_lists[i].getLength());
      if (!expected.empty()) {
        const std::size_t at = below(expected.size());
        ASSERT_EQ(expected[at]->handle, m_lists[i].item(at));
      }
    }
    ASSERT_EQ(m_root->children.size(), m_children.getLength());
    const Model* node = any();
    ASSERT_EQ(node->parent != nullptr ? node->parent->handle : (node == m_root ? m_document : TRNIDOM_Node()),
              node->handle.getParentNode());
    if (node->parent == nullptr) return;
    const std::size_t at = node->index();
    const auto& siblings = node->parent->children;
    ASSERT_EQ(at != 0 ? siblings[at - 1]->handle : TRNIDOM_Node(), node->handle.getPreviousSibling());
    ASSERT_EQ(at + 1 != siblings.size() ? siblings[at + 1]->handle : TRNIDOM_Node(), node->handle.getNextSibling());
    ASSERT_EQ(siblings.back()->handle, node->parent->handle.getLastChild());
  }

 private:
  static constexpr const char* kNames[] = {"a", "b", "c"};

  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_random); }
  std::string anyName() { return kNames[below(3)]; }
  std::string anyValue() { return "v" + std::string(below(4) == 0 ? 40 : 0, 'x') + std::to_string(below(12)); }

  Model* add(Model model) {
    m_nodes.push_back(std::move(model));
    return &m_nodes.back();
  }
  Model* any() { return &m_nodes[below(m_nodes.size())]; }

  /// Mostly the root, so that it has many children and its indexes much to do.
  Model* anyElement() {
    if (below(2) == 0) return m_root;
    for (;;)
      if (Model* node = any(); node->isElement()) return node;
  }

  Model* anyNew() {
    const std::string value = anyValue();
    switch (below(6)) {
      case 0:
        return add({TRNIDOM_Node::COMMENT_NODE, "", value, {}, nullptr, {}, m_document.createComment(value.c_str())});
      case 1:
        return add({TRNIDOM_Node::CDATA_SECTION_NODE,
                    "",
                    value,
                    {},
                    nullptr,
                    {},
                    m_document.createCDATASection(value.c_str())});
      case 2:
      case 3:
        return add({TRNIDOM_Node::TEXT_NODE, "", value, {}, nullptr, {}, m_document.createTextNode(value.c_str())});
      default: {
        const std::string name = anyName();
        return add({TRNIDOM_Node::ELEMENT_NODE, name, "", {}, nullptr, {}, m_document.createElement(name.c_str())});
      }
    }
  }

  Model* anyChild(Model* parent) {
    return parent->children.empty() ? nullptr : parent->children[below(parent->children.size())];
  }

  void insertInto(Model* parent, Model* node, Model* before) {
    parent->handle.insertBefore(node->handle, before != nullptr ? before->handle : TRNIDOM_Node());
    if (before != node) parent->insert(node, before);
  }

  void insertNew() {
    Model* parent = anyElement();
    insertInto(parent, anyNew(), anyChild(parent));
  }

  void append() {
    Model* parent = anyElement();
    Model* node = anyNew();
    parent->handle.appendChild(node->handle);
    parent->insert(node, nullptr);
  }

  void move() {
    Model* parent = anyElement();
    Model* node = any();
    if (node == m_root || parent->isBelowOrSame(node)) return;
    insertInto(parent, node, below(2) == 0 ? anyChild(parent) : nullptr);
  }

  void replace() {
    Model* parent = anyElement();
    Model* old = anyChild(parent);
    Model* node = any();
    if (old == nullptr || node == m_root || parent->isBelowOrSame(node)) return;
    parent->handle.replaceChild(node->handle, old->handle);
    if (node == old) return;
    parent->insert(node, old);
    old->detach();
  }

  void remove() {
    Model* parent = anyElement();
    Model* child = anyChild(parent);
    if (child == nullptr) return;
    parent->handle.removeChild(child->handle);
    child->detach();
  }

  void setAttribute() {
    Model* node = anyElement();
    if (Model* child = anyChild(node); child != nullptr && child->isElement()) node = child;
    TRNIDOM_Element element = node->handle;
    const std::string name = anyName();
    if (below(4) == 0) {
      element.removeAttribute(name.c_str());
      node->attributes.erase(name);
      return;
    }
    const std::string value = anyValue();
    element.setAttribute(name.c_str(), value.c_str());
    node->attributes[name] = value;
  }

  void setValue() {
    Model* node = any();
    const std::string value = anyValue();
    node->handle.setNodeValue(value.c_str());
    if (!node->isElement()) node->value = value;
  }

  /// Copies of large trees would soon be all there is.
  void clone() {
    Model* node = any();
    if (node == m_root || node->xml().size() > 200) return;
    const bool imported = below(2) == 0;
    Model* parent = anyElement();
    Model* copy = copyOf(node, imported ? m_document.importNode(node->handle, true) : node->handle.cloneNode(true));
    parent->handle.appendChild(copy->handle);
    parent->insert(copy, nullptr);
  }

  Model* copyOf(const Model* node, const TRNIDOM_Node& handle) {
    Model* copy = add({node->type, node->name, node->value, node->attributes, nullptr, {}, handle});
    TRNIDOM_Node below = handle.getFirstChild();
    for (const Model* child : std::vector<Model*>(node->children)) {
      copy->insert(copyOf(child, below), nullptr);
      below = below.getNextSibling();
    }
    return copy;
  }

  void findOrCreate() {
    Model* parent = anyElement();
    const std::string name = anyName();
    const std::string key = anyName();
    const std::string value = below(10) == 0 ? "" : anyValue();
    const std::size_t kind = below(3);
    TRNIDOM_Element found;
    if (kind == 0) found = TRNIDOM_Helper::findOrCreateElement(parent->handle, name.c_str());
    if (kind == 1) found = TRNIDOM_Helper::findOrCreateElementWithText(parent->handle, name.c_str(), value.c_str());
    if (kind == 2)
      found =
          TRNIDOM_Helper::findOrCreateElementWithAttribute(parent->handle, name.c_str(), key.c_str(), value.c_str());
    for (const Model* child : parent->children) {
      if (!child->isElement() || child->name != name) continue;
      const auto attribute = child->attributes.find(key);
      if (kind == 1 && child->text() != value) continue;
      if (kind == 2 && (attribute == child->attributes.end() || attribute->second != value)) continue;
      ASSERT_EQ(child->handle, found) << "not the first child of its key";
      return;
    }
    Model* made = add({TRNIDOM_Node::ELEMENT_NODE, name, "", {}, nullptr, {}, found});
    if (kind == 2) made->attributes[key] = value;
    if (kind == 1 && !value.empty())
      made->insert(add({TRNIDOM_Node::TEXT_NODE, "", value, {}, nullptr, {}, found.getFirstChild()}), nullptr);
    parent->insert(made, nullptr);
  }

  std::mt19937 m_random;
  std::deque<Model> m_nodes;
  TRNIDOM_Document m_document;
  Model* m_root;
  std::vector<TRNIDOM_NodeList> m_lists;
  TRNIDOM_NodeList m_children;
};

}  // namespace

TEST(Random, OperationsDoWhatTheyDoToAPlainModel) {
  const unsigned first = std::random_device()();
  for (unsigned seed = first; seed != first + 8; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomRun run(seed);
    for (int i = 0; i < 800; ++i) {
      run.step();
      run.check();
      if (HasFatalFailure()) return;
    }
    run.checkReadBack();
  }
}
