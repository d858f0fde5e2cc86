#ifndef TESTS_PLATFORM_TRNIDOM_RANDOMOPERATIONS_H
#define TESTS_PLATFORM_TRNIDOM_RANDOMOPERATIONS_H

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <trnidom/TRNIDOM_NamedNodeMap.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include "TreeModel.h"

namespace dxmd_test {

/// Two documents, and a plain model of them that every operation is also done to. Whatever the documents are then asked
/// must be what the model says. What differs is thrown as std::logic_error.
class RandomOperations {
 public:
  /// Gives a number below `limit`, which is not 0: by chance, or from the bytes of a fuzzer.
  using Choose = std::function<std::size_t(std::size_t limit)>;

  explicit RandomOperations(Choose choose);

  /// One operation, which may be one that is refused.
  void step();
  /// Compares the documents as they are written, and some node, list and map in each regard.
  void check();
  /// Compares what is written with what is read back of it.
  void checkReadBack();

 private:
  struct List {
    ModelNode* root;
    std::string name;  // empty: its children
    TRNIDOM_NodeList list;
  };

  bool oneIn(std::size_t count) { return m_choose(count) == 0; }
  std::string anyName();
  std::string anyKey();
  std::string anyValue();
  ModelNode* any();
  ModelNode* anyParent();
  ModelNode* anyChild(ModelNode* parent);
  ModelNode* add(unsigned short type, const std::string& name, const std::string& data, ModelNode* document,
                 const TRNIDOM_Node& handle);
  ModelNode* addCopy(const ModelNode* of, bool deep, ModelNode* document, const TRNIDOM_Node& handle);
  const TRNIDOM_Node& handleOf(ModelNode* node);

  /// Does the change, which must be refused with one of the codes, if there are any. Gives whether it was done.
  bool attempt(const ModelNode::Codes& codes, const std::function<void()>& change);

  ModelNode* create();
  void createMalformed();
  void insert();
  void replace();
  void remove();
  void copy();
  void setValue();
  void askForChildren(ModelNode* node);
  void setData(ModelNode* node, const std::string& value);
  void setAttribute();
  void find();
  void findOrCreate();

  void checkNode(ModelNode* node);
  void checkItems(const List& list);
  void checkAttributes(ModelNode* node, const TRNIDOM_NamedNodeMap& map);

  Choose m_choose;
  std::deque<ModelNode> m_nodes;
  std::vector<ModelNode*> m_documents;
  ModelNode* m_favourite;  // the parent of most
  std::deque<List> m_lists;
  TRNIDOM_NamedNodeMap m_attributes;  // of the favourite, asked again and again
};

}  // namespace dxmd_test

#endif
