#ifndef TESTS_PLATFORM_TRNIDOM_TREEMODEL_H
#define TESTS_PLATFORM_TRNIDOM_TREEMODEL_H

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <trnidom/TRNIDOM_Node.h>

namespace dxmd_test {

/// A node as plainly as it can be written down, with the handle to the real one.
struct ModelNode {
  /// Codes of TRNIDOM_DOMException, any of which fits; a change that is allowed has none.
  using Codes = std::set<unsigned short>;

  unsigned short type = 0;
  std::string name;  ///< of an element, attribute or processing instruction
  std::string data;  ///< of a text, CDATA section, comment or processing instruction
  ModelNode* document = nullptr;
  ModelNode* parent = nullptr;  ///< of an attribute: its element
  std::vector<ModelNode*> children;
  std::map<std::string, ModelNode*> attributes;
  ModelNode* placeholder = nullptr;  ///< of a document: the element that it was made with
  TRNIDOM_Node handle;               ///< null for the text of an attribute that nobody has asked for yet

  bool isElement() const { return type == TRNIDOM_Node::ELEMENT_NODE; }
  bool isAttribute() const { return type == TRNIDOM_Node::ATTRIBUTE_NODE; }
  bool isText() const { return type == TRNIDOM_Node::TEXT_NODE || type == TRNIDOM_Node::CDATA_SECTION_NODE; }
  bool isBelowOrSame(const ModelNode* above) const;

  std::string nodeName() const;
  std::string value() const;
  std::string text() const;
  /// As compact XML; as it is read back, that is, without empty texts, when `readBack`.
  std::string xml(bool readBack = false) const;

  ModelNode* sibling(std::ptrdiff_t distance) const;
  ModelNode* documentElement() const;
  void collectElements(const std::string& wanted, std::vector<const ModelNode*>& found) const;

  /// Why a child is not inserted before another, in the place of `replaced`.
  Codes refusals(const ModelNode* child, const ModelNode* before, const ModelNode* replaced = nullptr) const;
  void detach();
  void insert(ModelNode* child, ModelNode* before);
  void replace(ModelNode* child, ModelNode* old);

 private:
  bool takes(const ModelNode* child) const;
  ModelNode* otherDocumentElement(const ModelNode* child, const ModelNode* replaced) const;
};

}  // namespace dxmd_test

#endif
