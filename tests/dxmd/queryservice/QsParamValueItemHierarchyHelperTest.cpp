#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Hierarchy = QsParamValueItemHierarchyHelper;

constexpr int kDeep = 300'000;  // destructors that call each other would need the whole stack

// An item of that value around the content of its "subNodes".
std::string item(const std::string& use, const std::string& subNodes) {
  return R"(<item xsi:type="bus:hierarchicalParmValueItem"><value><inclusive>true</inclusive><use>)" + use +
         "</use></value>" +
         (subNodes.empty() ? R"(<subNodes xsi:nil="true"/>)" : "<subNodes>" + subNodes + "</subNodes>") + "</item>";
}

// What a reader of the whole tree sees, as `value(sub-node,sub-node,)`.
std::string outline(Hierarchy& node) {
  std::string text = node.GetValue() != nullptr ? node.GetValue()->GetUse().toUtf8() : "-";
  if (node.GetSubNodes().empty()) return text;
  text += "(";
  for (Hierarchy* subNode : node.GetSubNodes()) text += outline(*subNode) + ",";
  return text + ")";
}

}  // namespace

TEST(QsParamValueItemHierarchyHelper, WithoutSubNodesTheyAreNil) {
  Hierarchy node;
  expectXml(R"(<item xsi:type="bus:hierarchicalParmValueItem"><subNodes xsi:nil="true"/></item>)", made(node));
  EXPECT_EQ(nullptr, node.GetValue());
  node.SetValue("old", 0);
  node.SetValue("a", 1);
  expectXml(item("a", ""), made(node));
}

TEST(QsParamValueItemHierarchyHelper, WritesSubNodesInOrderAndReadsThemBack) {
  Hierarchy root;
  root.SetValue("root", 1);
  Hierarchy* first = root.AddSubNode();
  first->SetValue("a", 1);
  first->AddSubNode()->SetValue("a1", 1);
  first->AddSubNode()->SetValue("a2", 1);
  root.AddSubNode()->SetValue("b", 1);
  const std::string xml = item("root", item("a", item("a1", "") + item("a2", "")) + item("b", ""));
  expectXml(xml, made(root));

  const auto read = taken<Hierarchy>(xml);
  EXPECT_EQ("root(a(a1,a2,),b,)", outline(*read));
  expectXml(xml, made(*read));
}

TEST(QsParamValueItemHierarchyHelper, WrittenOnlyAsFarAsItWasRead) {
  const auto node = taken<Hierarchy>(item("root", item("a", item("a1", ""))));
  expectXml(R"(<item xsi:type="bus:hierarchicalParmValueItem"><subNodes xsi:nil="true"/></item>)", made(*node));
  node->GetSubNodes().front()->GetValue();
  expectXml(R"(<item xsi:type="bus:hierarchicalParmValueItem"><subNodes>)" + item("a", "") + "</subNodes></item>",
            made(*node));
}

TEST(QsParamValueItemHierarchyHelper, ItemWithoutValueOfItsOwnGivesTheFirstBelow) {
  const auto node = taken<Hierarchy>("<item><subNodes>" + item("a", "") + item("b", "") + "</subNodes></item>");
  EXPECT_EQ("a(a,b,)", outline(*node));
}

TEST(QsParamValueItemHierarchyHelper, OnlyItemsDirectlyInTheFirstSubNodesCount) {
  const auto node = taken<Hierarchy>(
      "<item><x><subNodes><item/></subNodes></x>text<subNodes> <item/><x><item/></x><!--c--><item/></subNodes>"
      "<subNodes><item/></subNodes></item>");
  EXPECT_EQ(2U, node->GetSubNodes().size());
  EXPECT_TRUE(node->GetSubNodes()[0]->GetSubNodes().empty());
}

TEST(QsParamValueItemHierarchyHelper, SubNodesOnceReadOrAddedStay) {
  const auto node = taken<Hierarchy>(item("root", item("a", "")));
  Hierarchy* first = node->GetSubNodes().front();
  take(*node, item("next", item("b", "") + item("c", "")));
  EXPECT_EQ(std::vector<Hierarchy*>{first}, node->GetSubNodes());
  EXPECT_EQ("next", node->GetValue()->GetUse());

  const auto added = taken<Hierarchy>(item("root", item("never read", "")));
  Hierarchy* own = added->AddSubNode();
  EXPECT_EQ(std::vector<Hierarchy*>{own}, added->GetSubNodes());
}

TEST(QsParamValueItemHierarchyHelper, DeepItemsAreWrittenReadAndDestroyedWithoutRecursion) {
  TRNIDOM_Element element;
  {
    Hierarchy root;
    Hierarchy* node = &root;
    for (int depth = 0; depth < kDeep; ++depth, node = node->AddSubNode()) node->SetValue("v", 1);
    root.Make(element);
  }
  Hierarchy root;
  root.Take(element);
  element = TRNIDOM_Element();
  int depth = 0;
  Hierarchy* node = &root;
  for (; !node->GetSubNodes().empty(); node = node->GetSubNodes().front(), ++depth)
    ASSERT_EQ("v", node->GetValue()->GetUse());
  EXPECT_EQ(kDeep, depth);
}
