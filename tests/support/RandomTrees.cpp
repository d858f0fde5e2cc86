#include "RandomTrees.h"

#include <cstddef>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <random>

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

class RandomTree {
 public:
  RandomTree(const TreeWords& words, std::mt19937& random)
      : m_words(words), m_random(random), m_document(newDocument()), m_root(newElement()) {
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

  const std::string& oneOf(const std::vector<std::string>& words) { return words[below(words.size())]; }
  I18NString text() { return m_words.texts.empty() || oneIn(8) ? I18NString() : oneOf(m_words.texts).c_str(); }

  TRNIDOM_Node newElement() {
    TRNIDOM_Element element = m_document.createElement(oneOf(m_words.elements).c_str());
    for (std::size_t left = m_words.attributes.empty() ? 0 : below(3); left > 0; --left)
      element.setAttribute(oneOf(m_words.attributes).c_str(), text());
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

  const TreeWords& m_words;
  std::mt19937& m_random;
  TRNIDOM_Document m_document;
  TRNIDOM_Node m_root;
};

void collectWords(const TRNIDOM_Node& node, TreeWords& words) {
  if (node.getNodeType() != TRNIDOM_Node::ELEMENT_NODE) return words.texts.push_back(node.getNodeValue().toUtf8());
  words.elements.push_back(node.getNodeName().toUtf8());
  for (const TRNIDOM_Node& attribute : node.getAttributes()) {
    words.attributes.push_back(attribute.getNodeName().toUtf8());
    words.texts.push_back(attribute.getNodeValue().toUtf8());
  }
  for (const TRNIDOM_Node& child : node.getChildNodes()) collectWords(child, words);
}

}  // namespace

TreeWords wordsOf(const TRNIDOM_Element& example) {
  TreeWords words{{"x"}, {}, {"a"}};
  collectWords(example, words);
  return words;
}

unsigned printedSeed() {
  const char* fixed = std::getenv("DXMD_TEST_SEED");
  const unsigned seed =
      fixed != nullptr ? static_cast<unsigned>(std::strtoul(fixed, nullptr, 10)) : std::random_device()();
  std::cout << "DXMD_TEST_SEED=" << seed << std::endl;
  return seed;
}

void feedRandomTrees(const TreeWords& words, const std::function<void(TRNIDOM_Element&)>& reader, int trees) {
  const unsigned seed = printedSeed();
  std::mt19937 random(seed);
  for (int number = 0; number < trees; ++number) {
    RandomTree tree(words, random);
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
