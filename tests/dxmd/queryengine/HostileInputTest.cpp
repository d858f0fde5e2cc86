#include <set>

#include <trnidom/TRNIDOM_Helper.h>

#include <dxmd/queryengine/VqeExpandParameterHelper.h>
#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>
#include <dxmd/queryengine/VqeGetParametersHelper.h>
#include <dxmd/queryengine/VqeQuerySubjectHelper.h>
#include <dxmd/queryengine/VqeRefineObjectsHelper.h>

#include "RandomTrees.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(QueryEngineHostileInput, ExpandedParameter) {
  feedRandomTrees({{"response", "expansionResult", "x"}, {}, {"a"}}, [](TRNIDOM_Element& tree) {
    VqeExpandParameterHelper command("m");
    command.Take(tree);
    command.GetExpandedQuery();
  });
}

TEST(QueryEngineHostileInput, JoinPaths) {
  feedRandomTrees({{"response", "joinPath", "join", "x"}, {}, {"a", "b"}}, [](TRNIDOM_Element& tree) {
    VqeGetJoinPathsHelper command("m");
    command.Take(tree);
    // What the definition says, without regard to cost: every join of every path.
    std::set<I18NString> expected;
    for (const TRNIDOM_Element path : tree.getElementsByTagName("joinPath"))
      for (const TRNIDOM_Node join : path.getElementsByTagName("join"))
        expected.insert(TRNIDOM_Helper::getElementText(join));
    std::set<I18NString> joins;
    command.GetJoins(joins);
    EXPECT_EQ(expected, joins);
    EXPECT_TRUE(command.PathExists() || joins.empty());
  });
}

TEST(QueryEngineHostileInput, Parameters) {
  feedRandomTrees({{"parameters", "parameter"}, {"name", "value", "x"}, {"a"}}, [](TRNIDOM_Element& tree) {
    VqeGetParametersHelper helper;
    helper.Take(tree);
    EXPECT_EQ(tree.getElementsByTagName("parameter").getLength(), helper.GetParameters().size());
    madeElement(helper);
  });
}

TEST(QueryEngineHostileInput, RefinedObjects) {
  feedRandomTrees({{"response", "expression", "x"}, {}, {"a"}}, [](TRNIDOM_Element& tree) {
    VqeRefineObjectsHelper command("m");
    command.Take(tree);
    I18NString object;
    while (command.getResponseObject(object)) EXPECT_FALSE(object.empty());
  });
}

TEST(QueryEngineHostileInput, QuerySubjectDefinition) {
  feedRandomTrees({{"sql", "definition", "x"}, {"type"}, {"veltra", "a"}},
                  [](TRNIDOM_Element& tree) { madeElement(VqeQuerySubjectHelper("m", tree)); });
}
