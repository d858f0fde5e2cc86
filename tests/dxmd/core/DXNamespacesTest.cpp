#include <dxmd/core/DXNamespaces.h>

#include <atomic>
#include <thread>
#include <vector>

#include <dxmd/queryframework/QFCloseConnectionsCommandHelper.h>

#include "TestSupport.h"

using namespace dxmd_test;

TEST(DXNamespaces, BeginAsTheLibraryWasBuilt) {
  EXPECT_EQ(DXMD_QUERY_SERVICE_NAMESPACE, builtNamespaces.queryService);
  EXPECT_EQ(DXMD_SERVICE_BUS_NAMESPACE, builtNamespaces.serviceBus);
}

TEST(DXNamespaces, CommandsDeclareWhatIsSetWhenTheyAreMade) {
  const I18NString before = DXNamespaces::GetQueryService();
  const I18NString bus = DXNamespaces::GetServiceBus();
  const QFCloseConnectionsCommandHelper command;
  const auto declared = [&] { return madeElement(command).getAttribute("xmlns"); };
  EXPECT_EQ(before, declared());
  DXNamespaces::SetQueryService("urn:other");
  DXNamespaces::SetServiceBus("urn:bus");
  EXPECT_EQ("urn:other", declared());
  EXPECT_EQ("urn:bus", DXNamespaces::GetServiceBus());
  DXNamespaces::SetQueryService(before);
  DXNamespaces::SetServiceBus(bus);
  EXPECT_EQ(before, declared());
}

TEST(DXNamespaces, AreReadWhileOthersSetThemAndStayValid) {
  const I18NString& before = DXNamespaces::GetQueryService();
  const std::string text = before.toUtf8();
  std::atomic<bool> done{false};
  std::vector<std::thread> readers;
  for (int i = 0; i < 3; ++i)
    readers.emplace_back([&] {
      do {
        const I18NString& uri = DXNamespaces::GetQueryService();
        EXPECT_TRUE(uri == "urn:a" || uri == "urn:b" || uri == before);
      } while (!done);
    });
  std::thread other([] {
    for (int i = 0; i < 100; ++i) DXNamespaces::SetQueryService("urn:a");
  });
  for (int i = 0; i < 100; ++i) DXNamespaces::SetQueryService("urn:b");
  other.join();
  done = true;
  for (std::thread& reader : readers) reader.join();
  EXPECT_EQ(text, before.toUtf8());
  DXNamespaces::SetQueryService(before);
}
