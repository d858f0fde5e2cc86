#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>

#include <utility>

#include <trn/TRNAssert.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

QsParamValueItemHierarchyHelper::QsParamValueItemHierarchyHelper() : QsParamValueItemHelper(1) {}

QsParamValueItemHierarchyHelper::~QsParamValueItemHierarchyHelper() {
  m_subNodes.clearNested([](QsParamValueItemHierarchyHelper & node) -> auto& { return node.m_subNodes; });
}

QsParamValueItemSimpleHelper* QsParamValueItemHierarchyHelper::GetValue() {
  if (m_value) return m_value.get();
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
  const TRNIDOM_Element subNodes = TRNIDOM_Helper::findChildElement(element(), STR_subNodes);
  for (TRNIDOM_Element item = TRNIDOM_Helper::findChildElement(subNodes, STR_item); !item.isNull();
       item = TRNIDOM_Helper::findNextSiblingElement(item, STR_item)) {
    std::unique_ptr<QsParamValueItemHelper> p(Create(STR_bus_hierarchicalParmValueItem, item));
    TRN_ASSERT(p->GetType() == kValueItemHierarchy);
    p->Take(item);
    m_subNodes.adopt(
        std::unique_ptr<QsParamValueItemHierarchyHelper>(static_cast<QsParamValueItemHierarchyHelper*>(p.release())));
  }
  return m_subNodes.items();
}

QsParamValueItemHierarchyHelper* QsParamValueItemHierarchyHelper::AddSubNode() {
  return m_subNodes.emplace();
}

void QsParamValueItemHierarchyHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  QsParamValueItemHelper::doMake(doc, elem);

  // The items whose sub-nodes are still to be written, each with the element they go into. Sub-nodes may nest to any
  // depth, so this is a list and no recursion; each item enters the tree while it is empty, which costs the DOM no
  // search for cycles.
  std::vector<std::pair<const QsParamValueItemHierarchyHelper*, TRNIDOM_Element>> open{{this, makeContent(elem)}};
  while (!open.empty()) {
    auto [node, subNodes] = std::move(open.back());
    open.pop_back();
    for (const QsParamValueItemHierarchyHelper* subNode : node->m_subNodes) {
      TRNIDOM_Element item;
      subNode->QsParamValueItemHelper::doMake(doc, item);
      subNodes.appendChild(item);
      open.emplace_back(subNode, subNode->makeContent(item));
    }
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
