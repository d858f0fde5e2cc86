#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>

#include <cstddef>
#include <memory>
#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/Dom.h>
#include <dxmd/core/Nodes.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

QsParamValueItemHierarchyHelper::QsParamValueItemHierarchyHelper() : QsParamValueItemHelper(1) {}

QsParamValueItemHierarchyHelper::~QsParamValueItemHierarchyHelper() {
  m_subNodes.clearNested([](QsParamValueItemHierarchyHelper & node) -> auto& { return node.m_subNodes; });
}

QsParamValueItemSimpleHelper* QsParamValueItemHierarchyHelper::GetValue() {
  if (m_value) return m_value.get();
  // Locals are spelt as the assertions' texts have them, none of which can fail.
  TRNIDOM_Element nodeTemp = element().getElementsByTagName(STR_value).item(0);
  if (nodeTemp.isNull()) return nullptr;
  TRN_ASSERT(nodeTemp.getNodeType() == TRNIDOM_Node::ELEMENT_NODE);
  std::unique_ptr<QsParamValueItemHelper> p(Create(STR_bus_simpleParmValueItem, nodeTemp));
  TRN_ASSERT(p->GetType() == kValueItemSimple);
  p->Take(nodeTemp);
  m_value.reset(static_cast<QsParamValueItemSimpleHelper*>(p.release()));
  return m_value.get();
}

QsParamValueItemSimpleHelper* QsParamValueItemHierarchyHelper::SetValue(const I18NString& use, int inclusive) {
  m_value = std::make_unique<QsParamValueItemSimpleHelper>(inclusive, use);
  return m_value.get();
}

const std::vector<QsParamValueItemHierarchyHelper*>& QsParamValueItemHierarchyHelper::GetSubNodes() {
  if (!m_subNodes.empty()) return m_subNodes.items();
  OwnedList<QsParamValueItemHierarchyHelper> nodes;
  const TRNIDOM_Element subNodes = TRNIDOM_Helper::findChildElement(element(), STR_subNodes);
  for (TRNIDOM_Element& item : ChildElements(subNodes, STR_item)) {
    // Spelt as the assertion's text has it, which cannot fail.
    std::unique_ptr<QsParamValueItemHelper> p(Create(STR_bus_hierarchicalParmValueItem, item));
    TRN_ASSERT(p->GetType() == kValueItemHierarchy);
    p->Take(item);
    nodes.adopt(
        std::unique_ptr<QsParamValueItemHierarchyHelper>(static_cast<QsParamValueItemHierarchyHelper*>(p.release())));
  }
  m_subNodes = std::move(nodes);
  return m_subNodes.items();
}

QsParamValueItemHierarchyHelper* QsParamValueItemHierarchyHelper::AddSubNode() {
  return m_subNodes.emplace();
}

void QsParamValueItemHierarchyHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  struct Made {
    const QsParamValueItemHierarchyHelper* node;
    TRNIDOM_Element item;
    TRNIDOM_Element subNodes;
  };
  QsParamValueItemHelper::doMake(doc, elem);

  // Sub-nodes nest to any depth, so all items are made level by level, the sub-nodes of one item in a row.
  std::vector<Made> all{{this, elem, makeContent(elem)}};
  for (std::size_t i = 0; i < all.size(); ++i) {
    for (const QsParamValueItemHierarchyHelper* node : all[i].node->m_subNodes) {
      TRNIDOM_Element item;
      node->QsParamValueItemHelper::doMake(doc, item);
      all.push_back({node, item, node->makeContent(item)});
    }
  }

  // They are joined from the last up: an append looks for the new child among the parent's ancestors, which are few as
  // long as the parent itself stands alone.
  std::size_t end = all.size();
  for (auto parent = all.rbegin(); parent != all.rend(); ++parent) {
    const std::size_t begin = end - parent->node->m_subNodes.size();
    for (std::size_t i = begin; i < end; ++i) parent->subNodes.appendChild(all[i].item);
    end = begin;
  }
}

// Writes all but the sub-nodes; returns the element they go into.
TRNIDOM_Element QsParamValueItemHierarchyHelper::makeContent(TRNIDOM_Element& item) const {
  if (m_value) {
    TRNIDOM_Element value = appendElement(item, STR_value);
    m_value->makeProperties(value);
  }
  TRNIDOM_Element subNodes = appendElement(item, STR_subNodes);
  if (m_subNodes.empty()) subNodes.setAttribute(STR_xsi_nil, STR_true);
  return subNodes;
}
