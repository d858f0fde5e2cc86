#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>

#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>

#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

namespace {

using Joins = std::set<I18NString>;

Joins joinsOf(const std::string& response) {
  Joins joins;
  taken<VqeGetJoinPathsHelper>(response, "m")->GetJoins(joins);
  return joins;
}

}  // namespace

TEST(VqeGetJoinPathsHelper, WritesItemsInOrderWithoutEmptyOnes) {
  VqeGetJoinPathsHelper command("m");
  expectXml(inDXEnvelope("<getJoinPaths/>"), made(command));
  for (const char* item : {"b", "", "a", "b"}) command.AddItem(item);
  expectXml(inDXEnvelope("<getJoinPaths><expression>b</expression><expression>a</expression><expression>b</expression>"
                         "</getJoinPaths>"),
            made(command));
}

TEST(VqeGetJoinPathsHelper, PathCountsAtAnyDepthBelowTheResponse) {
  EXPECT_FALSE(VqeGetJoinPathsHelper("m").PathExists());
  EXPECT_FALSE(taken<VqeGetJoinPathsHelper>("<joinPath><join>a</join></joinPath>", "m")->PathExists());
  EXPECT_TRUE(taken<VqeGetJoinPathsHelper>("<r><x><y><joinPath/></y></x></r>", "m")->PathExists());
}

TEST(VqeGetJoinPathsHelper, JoinsCountAtAnyDepthBelowAPathOnlyAndAreAddedToTheCallers) {
  EXPECT_EQ((Joins{"a", "b"}), joinsOf("<r><join>no</join><x><joinPath><y><join>b</join></y></joinPath></x>"
                                       "<join>no</join><joinPath><join>a</join><join>b</join></joinPath></r>"));
  EXPECT_EQ(Joins{}, joinsOf("<joinPath><join>the root is no path</join></joinPath>"));
  Joins joins{"held"};
  taken<VqeGetJoinPathsHelper>("<r><joinPath><join>a<x>-</x>b</join><join/></joinPath></r>", "m")->GetJoins(joins);
  EXPECT_EQ((Joins{"", "ab", "held"}), joins);
}

TEST(VqeGetJoinPathsHelper, JoinsAreThoseOfEachPathWhereverTheyStand) {
  feedRandomTrees(parsed("<response><joinPath/><join>b</join></response>"), [](TRNIDOM_Element& tree) {
    Joins expected;
    for (const TRNIDOM_Element path : tree.getElementsByTagName("joinPath"))
      for (const TRNIDOM_Node join : path.getElementsByTagName("join"))
        expected.insert(TRNIDOM_Helper::getElementText(join));
    VqeGetJoinPathsHelper command("m");
    command.Take(tree);
    Joins joins;
    command.GetJoins(joins);
    EXPECT_EQ(expected, joins);
  });
}

TEST(VqeGetJoinPathsHelper, ResponseThatIsNoElementHoldsNothing) {
  VqeGetJoinPathsHelper command("m");
  TRNIDOM_Document document = newDocument();
  TRNIDOM_Element root = document.getDocumentElement();
  root.appendChild(document.createElement("joinPath"));
  Joins joins;
  for (const TRNIDOM_Node& node : {TRNIDOM_Node(document), document.createTextNode("t"), TRNIDOM_Node()}) {
    TRNIDOM_Element response = node;
    command.Take(response);
    EXPECT_FALSE(command.PathExists());
    command.GetJoins(joins);
  }
  EXPECT_EQ(Joins{}, joins);
}

// Every path contains all paths after it, and the innermost one a join.
TEST(VqeGetJoinPathsHelper, DeeplyNestedPathsCostOneWalk) {
  auto [response, innermost] = nestedDeep("joinPath");
  TRNIDOM_Document document = response.getOwnerDocument();
  innermost.appendChild(document.createElement("join")).appendChild(document.createTextNode("deep"));
  VqeGetJoinPathsHelper command("m");
  command.Take(response);
  Joins joins;
  command.GetJoins(joins);
  EXPECT_EQ(Joins{"deep"}, joins);
}
