#include <memory>

#include <dxmd/queryservice/GetSimpleNodeValue.h>
#include <dxmd/queryservice/QsDataSourceFaultHelper.h>
#include <dxmd/queryservice/QsParamValueItemHelper.h>
#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>
#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>

#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

void readAll(QsParamValueItemHierarchyHelper& node) {
  node.GetValue();
  for (QsParamValueItemHierarchyHelper* subNode : node.GetSubNodes()) readAll(*subNode);
}

}  // namespace

TEST(QueryServiceHostileInput, ValueItemOfTheTypeItSays) {
  const TreeWords words{{"item", "value", "subNodes", "inclusive", "use", "display", "bus:start", "start", "end"},
                        {"xsi:type"},
                        {"bus:simpleParmValueItem", "bus:boundRangeParmValueItem", "bus:hierarchicalParmValueItem",
                         "bus:unboundedEndParmValueItem", "xsi:nil", "false", "odd"}};
  feedRandomTrees(words, [](TRNIDOM_Element& tree) {
    const std::unique_ptr<QsParamValueItemHelper> item(
        QsParamValueItemHelper::Create(tree.getAttribute("xsi:type"), tree));
    if (item == nullptr) return;
    item->Take(tree);
    madeElement(*item);
    if (auto* range = dynamic_cast<QsParamValueItemRangeHelper*>(item.get())) {
      range->GetStart();
      range->GetEnd();
    }
    if (auto* hierarchy = dynamic_cast<QsParamValueItemHierarchyHelper*>(item.get())) readAll(*hierarchy);
    madeElement(*item);
  });
}

TEST(QueryServiceHostileInput, HierarchyIsWrittenAsRead) {
  feedRandomTrees({{"item", "item", "value", "subNodes", "subNodes"}, {}, {"a"}}, [](TRNIDOM_Element& tree) {
    // Below a document there are children to walk, but no descendants to ask for.
    if (tree.getNodeType() == TRNIDOM_Node::DOCUMENT_NODE) return;
    QsParamValueItemHierarchyHelper node;
    node.Take(tree);
    readAll(node);
    TRNIDOM_Element first = madeElement(node);
    QsParamValueItemHierarchyHelper again;
    again.Take(first);
    readAll(again);
    expectXml(xmlOf(first), madeElement(again));
  });
}

TEST(QueryServiceHostileInput, DataSourceFault) {
  const TreeWords words{{"faultcode", "faultstring", "faultDataSource", "faultConnection", "faultSignon", "dataSource",
                         "connection", "signon", "name", "type", "searchPath", "connectionString"},
                        {"value"},
                        {"a", "b"}};
  feedRandomTrees(words, [](TRNIDOM_Element& tree) {
    QsDataSourceFaultHelper fault;
    fault.Take(tree);
    QsDataSourceFaultHelper::DataSourceInfo info;
    for (const char* name : {"a", "b", ""}) fault.GetDataSourceInfo(name, info);
    info.GetConnectionInfo("a");
    EXPECT_EQ(fault.GetFaultConnection(), fault.GetFaultConnection());
    EXPECT_EQ(fault.GetFaultSignon(), fault.GetFaultSignon());
    fault.Take(tree);
  });
}

TEST(QueryServiceHostileInput, SimpleNodeValue) {
  feedRandomTrees({{"n", "x"}, {}, {"a"}}, [](TRNIDOM_Element& tree) {
    I18NString value("none");
    EXPECT_TRUE(GetSimpleNodeValue(tree, "n", value) || value == "none");
  });
}
