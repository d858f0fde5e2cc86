// A reading that memory was lacking for is made up for by the next.

#include <new>
#include <vector>

#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>
#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

#include "FailingNew.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(UpdateObjectOutOfMemory, ARequestsParametersAreReadAgain) {
  TRNIDOM_Element element = parsed("<r><task name='addObject'><param name='objectID' value='i'/></task></r>");
  withEachNewFailing([&] {
    DXUpdateObjectRequestHelper request(element);
    DXUpdateRequestTaskHelper::ParamValue* value = nullptr;
    const auto read = [&] {
      return request.GetTasks()[0]->GetParameter(DXUpdateRequestTaskHelper::kParamObjectID, value);
    };
    try {
      EXPECT_TRUE(read());
    } catch (const std::bad_alloc&) {
      EXPECT_TRUE(read());
      throw;
    }
  });
}

TEST(UpdateObjectOutOfMemory, AResponsesParametersAreReadAgain) {
  TRNIDOM_Element element = parsed("<r><task name='addObject'><param name='object' value='o'/></task></r>");
  withEachNewFailing([&] {
    DXUpdateObjectResponseHelper response(element);
    std::vector<I18NString> values;
    const auto read = [&] {
      return response.GetTasks()[0]->GetParameter(DXUpdateResponseTaskHelper::kParamObject, values);
    };
    try {
      EXPECT_TRUE(read());
    } catch (const std::bad_alloc&) {
      EXPECT_TRUE(read());
      EXPECT_EQ(std::vector<I18NString>{"o"}, values);
      throw;
    }
  });
}
