#include <dxmd/core/DXNamespaces.h>

#include <atomic>
#include <memory>

namespace {

// A stack of the URIs that were set, the current one on top. None is ever freed: callers have references to it.
struct Setting {
  I18NString uri;
  const Setting* previous;
};

// Null until a URI is set. Zero-initialised, so that one may be set while other libraries load.
std::atomic<const Setting*> queryService;
std::atomic<const Setting*> serviceBus;

const I18NString kBuiltQueryService(DXMD_QUERY_SERVICE_NAMESPACE);
const I18NString kBuiltServiceBus(DXMD_SERVICE_BUS_NAMESPACE);

const I18NString& get(const std::atomic<const Setting*>& setting, const I18NString& built) {
  const Setting* set = setting.load(std::memory_order_acquire);
  return set != nullptr ? set->uri : built;
}

void set(std::atomic<const Setting*>& setting, const I18NString& uri) {
  auto next = std::make_unique<Setting>(Setting{uri, setting.load(std::memory_order_relaxed)});
  while (!setting.compare_exchange_weak(next->previous, next.get(), std::memory_order_acq_rel)) continue;
  static_cast<void>(next.release());
}

}  // namespace

const I18NString& DXNamespaces::GetQueryService() {
  return get(queryService, kBuiltQueryService);
}

void DXNamespaces::SetQueryService(const I18NString& uri) {
  set(queryService, uri);
}

const I18NString& DXNamespaces::GetServiceBus() {
  return get(serviceBus, kBuiltServiceBus);
}

void DXNamespaces::SetServiceBus(const I18NString& uri) {
  set(serviceBus, uri);
}
