// A reading that memory was lacking for is made up for by the next.

#include <new>

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
