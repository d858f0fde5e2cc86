#include "store/SharedNames.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <new>

namespace trnidom_detail::shared_names {

namespace {

constexpr std::size_t kSlots = 1024;
constexpr std::size_t kLongest = 64;

/// Direct-mapped, by quick hash. A slot is filled once.
std::array<std::atomic<const Name*>, kSlots> theNames;

}  // namespace

const Name* find(Text name, std::size_t quick) noexcept {
  const Name* kept = theNames[quick % kSlots].load(std::memory_order_acquire);
  return kept != nullptr && kept->is(name) ? kept : nullptr;
}

const Name* keep(Text name, std::size_t quick, std::size_t hash) noexcept {
  if (name.size() > kLongest) return nullptr;
  std::atomic<const Name*>& slot = theNames[quick % kSlots];
  if (slot.load(std::memory_order_relaxed) != nullptr) return nullptr;
  const std::size_t utf8 = Name::utf8LengthOf(name);
  void* const memory = ::operator new(Name::sizeFor(name, utf8), std::nothrow);
  if (memory == nullptr) return nullptr;
  const Name* const made = Name::make(memory, name, hash, utf8);
  const Name* expected = nullptr;
  if (slot.compare_exchange_strong(expected, made, std::memory_order_acq_rel)) return made;
  ::operator delete(memory);
  return nullptr;
}

}  // namespace trnidom_detail::shared_names
