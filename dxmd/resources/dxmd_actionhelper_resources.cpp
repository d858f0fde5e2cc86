#include <dxmd/resources/dxmd_actionhelper_resources.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <iterator>
#include <memory>

#include <trn/TRNThreadCriticalSection.h>
#include <trn/TRNThreadGuard.h>

namespace {

#define DXMD_ENTRY(index, identifier, text) index,
constexpr long kIndices[] = {
#include <dxmd/resources/vocabulary.def>
};
#undef DXMD_ENTRY

#define DXMD_ENTRY(index, identifier, text) text,
constexpr const char* kTexts[] = {
#include <dxmd/resources/vocabulary.def>
};
#undef DXMD_ENTRY

constexpr bool indicesRunFromZero() {
  long expected = 0;
  for (const long index : kIndices)
    if (index != expected++) return false;
  return true;
}

static_assert(indicesRunFromZero(), "an entry of the vocabulary is missing, stands in it twice or is out of order");

// Zero-initialised: loading the library builds no entry. Entries are never freed.
std::array<std::atomic<const I18NString*>, std::size(kTexts)> entries;

TRNThreadCriticalSection dxmd_actionhelper_resources_lock(0);

// Not inlined: finding an entry that is there, which is done for every name written, then needs no stack.
[[gnu::noinline]] const I18NString& build(std::size_t index) {
  const TRNThreadGuard guard(dxmd_actionhelper_resources_lock);
  const I18NString* entry = entries[index].load(std::memory_order_relaxed);
  if (entry == nullptr) {
    entry = std::make_unique<const I18NString>(kTexts[index], nullptr, -1, nullptr, nullptr).release();
    entries[index].store(entry, std::memory_order_release);
  }
  return *entry;
}

}  // namespace

const I18NString& dxmd_actionhelper_resources::getString(long index) {
  const auto slot = static_cast<std::size_t>(index);
  const I18NString* entry = entries[slot].load(std::memory_order_acquire);
  return entry != nullptr ? *entry : build(slot);
}
