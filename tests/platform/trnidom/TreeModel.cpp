#include "TreeModel.h"

#include <algorithm>

#include <trnidom/TRNIDOM_DOMException.h>

namespace dxmd_test {

namespace {

std::string escaped(const std::string& text, const std::map<char, std::string>& escapes) {
  std::string out;
  for (const char c : text) {
    const auto escape = escapes.find(c);
    out += escape != escapes.end() ? escape->second : std::string(1, c);
  }
  return out;
}

}  // namespace

bool ModelNode::isBelowOrSame(const ModelNode* above) const {
  for (const ModelNode* node = this; node != nullptr; node = node->parent)
    if (node == above) return true;
  return false;
}

std::string ModelNode::nodeName() const {
  switch (type) {
    case TRNIDOM_Node::TEXT_NODE:
      return "#text";
    case TRNIDOM_Node::CDATA_SECTION_NODE:
      return "#cdata-section";
    case TRNIDOM_Node::COMMENT_NODE:
      return "#comment";
    case TRNIDOM_Node::DOCUMENT_NODE:
      return "#document";
    default:
      return name;
  }
}

std::string ModelNode::value() const {
  return isAttribute() ? text() : data;
}

std::string ModelNode::text() const {
  std::string all;
  for (const ModelNode* child : children)
    if (child->isText()) all += child->data;
  return all;
}

std::string ModelNode::xml(bool readBack) const {
  switch (type) {
    case TRNIDOM_Node::TEXT_NODE:
      return escaped(data, {{'<', "&lt;"}, {'>', "&gt;"}, {'&', "&amp;"}});
    case TRNIDOM_Node::CDATA_SECTION_NODE:
      return "<![CDATA[" + data + "]]>";
    case TRNIDOM_Node::COMMENT_NODE:
      return "<!--" + data + "-->";
    case TRNIDOM_Node::PROCESSING_INSTRUCTION_NODE:
      return "<?" + name + (data.empty() ? "" : " ") + data + "?>";
    case TRNIDOM_Node::ATTRIBUTE_NODE:
      return name + "=\"" +
             escaped(text(), {{'<', "&lt;"}, {'&', "&amp;"}, {'"', "&quot;"}, {'\t', "&#9;"}, {'\n', "&#10;"}}) + "\"";
    default:
      break;
  }
  std::string inner;
  bool isEmpty = true;
  for (const ModelNode* child : children) {
    if (readBack && child->type == TRNIDOM_Node::TEXT_NODE && child->data.empty()) continue;
    inner += child->xml(readBack);
    isEmpty = false;
  }
  if (!isElement()) return inner;
  std::string out = "<" + name;
  for (const auto& attribute : attributes) out += " " + attribute.second->xml();
  return isEmpty ? out + "/>" : out + ">" + inner + "</" + name + ">";
}

ModelNode* ModelNode::sibling(std::ptrdiff_t distance) const {
  if (parent == nullptr || isAttribute()) return nullptr;
  const auto& all = parent->children;
  const std::ptrdiff_t at = std::find(all.begin(), all.end(), this) - all.begin() + distance;
  return at >= 0 && at < static_cast<std::ptrdiff_t>(all.size()) ? all[static_cast<std::size_t>(at)] : nullptr;
}

ModelNode* ModelNode::documentElement() const {
  for (ModelNode* child : children)
    if (child->isElement()) return child;
  return nullptr;
}

void ModelNode::collectElements(const std::string& wanted, std::vector<const ModelNode*>& found) const {
  for (const ModelNode* child : children) {
    if (child->isElement() && (wanted == "*" || child->name == wanted)) found.push_back(child);
    child->collectElements(wanted, found);
  }
}

bool ModelNode::takes(const ModelNode* child) const {
  switch (type) {
    case TRNIDOM_Node::ELEMENT_NODE:
      return !child->isAttribute() && child->type != TRNIDOM_Node::DOCUMENT_NODE;
    case TRNIDOM_Node::ATTRIBUTE_NODE:
      return child->type == TRNIDOM_Node::TEXT_NODE;
    case TRNIDOM_Node::DOCUMENT_NODE:
      return child->isElement() || child->type == TRNIDOM_Node::COMMENT_NODE ||
             child->type == TRNIDOM_Node::PROCESSING_INSTRUCTION_NODE;
    default:
      return false;
  }
}

ModelNode* ModelNode::otherDocumentElement(const ModelNode* child, const ModelNode* replaced) const {
  if (type != TRNIDOM_Node::DOCUMENT_NODE || !child->isElement()) return nullptr;
  ModelNode* present = documentElement();
  return present != child && present != replaced ? present : nullptr;
}

ModelNode::Codes ModelNode::refusals(const ModelNode* child, const ModelNode* before, const ModelNode* replaced) const {
  Codes codes;
  if (child->document != document) codes.insert(TRNIDOM_DOMException::WRONG_DOCUMENT_ERR);
  if (!takes(child) || isBelowOrSame(child)) codes.insert(TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR);
  if (const ModelNode* other = otherDocumentElement(child, replaced))
    if (other != placeholder || !other->children.empty() || !other->attributes.empty())
      codes.insert(TRNIDOM_DOMException::HIERARCHY_REQUEST_ERR);
  for (const ModelNode* expected : {before, replaced})
    if (expected != nullptr && (expected->parent != this || expected->isAttribute()))
      codes.insert(TRNIDOM_DOMException::NOT_FOUND_ERR);
  return codes;
}

void ModelNode::detach() {
  if (parent == nullptr) return;
  parent->children.erase(std::find(parent->children.begin(), parent->children.end(), this));
  parent = nullptr;
}

void ModelNode::insert(ModelNode* child, ModelNode* before) {
  if (child == before) return;
  if (ModelNode* displaced = otherDocumentElement(child, nullptr)) {
    if (before == displaced) before = displaced->sibling(1);
    displaced->detach();
  }
  child->detach();
  child->parent = this;
  children.insert(std::find(children.begin(), children.end(), before), child);
}

void ModelNode::replace(ModelNode* child, ModelNode* old) {
  if (child == old) return;
  ModelNode* before = old->sibling(1);
  if (before == child) before = before->sibling(1);
  old->detach();
  insert(child, before);
}

}  // namespace dxmd_test
