// A reading that memory was lacking for is made up for by the next.

#include <new>
#include <string>

#include <dxmd/materialize/DXMaterializeRequestHelper.h>

#include "FailingNew.h"
#include "TestSupport.h"

using namespace dxmd_test;

TEST(MaterializeOutOfMemory, TasksAndTargetAreReadAgain) {
  const std::string password(100, 'p');
  TRNIDOM_Element element = parsed(
      "<r><task>loadDataFromFile</task><task>materializeResultSet</task><task>x</task><targetDataSource type='t'>"
      "<username>u</username><password>" +
      password + "</password></targetDataSource></r>");
  withEachNewFailing([&] {
    DXMaterializeRequestHelper request;
    request.Take(element);
    const auto read = [&] {
      EXPECT_EQ(3U, request.GetTasks().size());
      EXPECT_EQ(I18NString(password.c_str()), *request.GetTargetDataSourceInfo().password);
    };
    try {
      read();
    } catch (const std::bad_alloc&) {
      read();
      throw;
    }
  });
}
