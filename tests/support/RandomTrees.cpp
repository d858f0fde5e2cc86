#include "RandomTrees.h"

#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <random>
#include <vector>

#include <gtest/gtest.h>
#include <trn/TRNAssertError.h>
#include <trnidom/TRNIDOM_DOMException.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_Node.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include "TestSupport.h"

namespace dxmd_test {

namespace {

constexpr int kTrees = 3000;

/// What random trees are made of.
struct Parts {
  std::vector<TRNIDOM_Element> elements;
  std::vector<I18NString> texts;
};

Parts partsOf(const TRNIDOM_Element& example) {
  Parts parts{{example, example.getOwnerDocument().createElement("x")}, {"a"}};
  for (const TRNIDOM_Node& element : example.getElementsByTagName("*")) parts.elements.emplace_back(element);
  for (const TRNIDOM_Element& element : parts.elements) {
    for (const TRNIDOM_Node& attribute : element.getAttributes()) parts.texts.push_back(attribute.getNodeValue());
    for (const TRNIDOM_Node& child : element.getChildNodes())
      if (child.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) parts.texts.push_back(child.getNodeValue());
  }
  return parts;
}

class RandomTree {
 public:
  RandomTree(const Parts& parts, std::mt19937& random)
      : m_parts(parts), m_random(random), m_document(newDocument()), m_root(newElement()) {
    if (oneIn(2)) m_document.appendChild(m_root);
    std::vector<TRNIDOM_Node> elements{m_root};
    for (std::size_t left = below(40); left > 0; --left) {
      TRNIDOM_Node& parent = elements[oneIn(2) ? elements.size() - 1 : below(elements.size())];
      const TRNIDOM_Node node = parent.appendChild(newNode());
      if (node.getNodeType() == TRNIDOM_Node::ELEMENT_NODE) elements.push_back(node);
    }
  }

  const TRNIDOM_Node& root() const { return m_root; }

  // What the reader is handed: the root, rarely something else.
  TRNIDOM_Element handle() {
    if (oneIn(50)) return TRNIDOM_Element();
    if (oneIn(50)) return TRNIDOM_Node(m_document);
    if (oneIn(20)) return m_root.getFirstChild();
    return m_root;
  }

 private:
  std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random); }
  bool oneIn(std::size_t count) { return below(count) == 0; }

  const TRNIDOM_Element& anyElement() { return m_parts.elements[below(m_parts.elements.size())]; }
  I18NString text() { return oneIn(8) ? I18NString() : m_parts.texts[below(m_parts.texts.size())]; }

  TRNIDOM_Node newElement() {
    const TRNIDOM_Element& example = anyElement();
    TRNIDOM_Element element = m_document.createElement(example.getNodeName());
    for (const TRNIDOM_Node& attribute : (oneIn(4) ? anyElement() : example).getAttributes())
      if (!oneIn(8)) element.setAttribute(attribute.getNodeName(), oneIn(4) ? text() : attribute.getNodeValue());
    return element;
  }

  TRNIDOM_Node newNode() {
    switch (below(12)) {
      case 0:
        return m_document.createComment(text());
      case 1:
        return m_document.createCDATASection(text());
      case 2:
      case 3:
        return m_document.createTextNode(text());
      default:
        return newElement();
    }
  }

  const Parts& m_parts;
  std::mt19937& m_random;
  TRNIDOM_Document m_document;
  TRNIDOM_Node m_root;
};

}  // namespace

unsigned printedSeed() {
  const char* fixed = std::getenv("DXMD_TEST_SEED");
  const unsigned seed =
      fixed != nullptr ? static_cast<unsigned>(std::strtoul(fixed, nullptr, 10)) : std::random_device()();
  std::cout << "DXMD_TEST_SEED=" << seed << std::endl;
  return seed;
}

void feedRandomTrees(const TRNIDOM_Element& example, const std::function<void(TRNIDOM_Element&)>& reader) {
  const Parts parts = partsOf(example);
  const unsigned seed = printedSeed();
  std::mt19937 random(seed);
  for (int number = 0; number < kTrees; ++number) {
    RandomTree tree(parts, random);
    TRNIDOM_Element handle = tree.handle();
    try {
      reader(handle);
    } catch (const TRNAssertError&) {
    } catch (const TRNIDOM_DOMException&) {
    } catch (const std::exception& error) {
      ADD_FAILURE() << "seed " << seed << ", tree " << number << ": " << error.what() << "\n" << xmlOf(tree.root());
    }
  }
}

}  // namespace dxmd_test
