// A reading that memory was lacking for is made up for by the next.

#include <new>
#include <string>

#include <dxmd/queryservice/QsDataSourceFaultHelper.h>
#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>

#include "FailingNew.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(QueryServiceOutOfMemory, SubNodesAreReadAgain) {
  TRNIDOM_Element element = parsed("<i><subNodes><item/><item/><item/></subNodes></i>");
  withEachNewFailing([&] {
    QsParamValueItemHierarchyHelper item;
    item.Take(element);
    try {
      EXPECT_EQ(3U, item.GetSubNodes().size());
    } catch (const std::bad_alloc&) {
      EXPECT_EQ(3U, item.GetSubNodes().size());
      throw;
    }
  });
}

TEST(QueryServiceOutOfMemory, AHalfReadConnectionOrSignonIsReadAgain) {
  const std::string name = R"(<name value="longer than what a text holds in place"/>)";
  TRNIDOM_Element element =
      parsed("<f><faultConnection>" + name + "<x><signon>" + name + "</signon><signon/></x></faultConnection>" +
             "<faultSignon>" + name + R"(<searchPath value="also longer than what a text holds"/></faultSignon></f>)");
  withEachNewFailing([&] {
    QsDataSourceFaultHelper fault;
    fault.Take(element);
    const auto read = [&] {
      EXPECT_EQ(2U, fault.GetFaultConnection()->signons.size());
      EXPECT_FALSE(fault.GetFaultConnection()->signons[0]->name.empty());
      EXPECT_FALSE(fault.GetFaultSignon()->searchPath.empty());
    };
    try {
      read();
    } catch (const std::bad_alloc&) {
      read();
      throw;
    }
  });
}
