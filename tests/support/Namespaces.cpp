// Part of every test program: expected documents name these, whatever the library was built for.

#include "TestSupport.h"

#include <dxmd/core/DXNamespaces.h>

const dxmd_test::Namespaces dxmd_test::builtNamespaces{DXNamespaces::GetQueryService(), DXNamespaces::GetServiceBus()};

namespace {

const bool namespacesSet = [] {
  DXNamespaces::SetQueryService("urn:dxmd:query-service:api:1");
  DXNamespaces::SetServiceBus("urn:dxmd:service-bus:1");
  return true;
}();

}  // namespace
