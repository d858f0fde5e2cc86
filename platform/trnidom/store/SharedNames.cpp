#include "store/SharedNames.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <new>

namespace trnidom_detail::shared_names {

namespace {

constexpr std::size_t kSlots = 1024;
constexpr std::size_t kLongest = 64;

/// Direct-mapped. A slot is filled once.
std::array<std::atomic<const Name*>, kSlots> theNames;

/// By what tells most names apart: length, both ends, and the middle.
std::atomic<const Name*>& slotOf(Text name) noexcept {
  if (name.empty()) return theNames[0];
  const std::size_t middle = name.size() / 2;
  std::size_t hash = name.size();
  for (const char16_t unit : {name.front(), name[middle / 2], name[middle], name.back()}) hash = hash * 31 + unit;
  return theNames[hash % kSlots];
}

}  // namespace

const Name* find(Text name) noexcept {
  if (name.size() > kLongest) return nullptr;
  const Name* kept = slotOf(name).load(std::memory_order_acquire);
  return kept != nullptr && kept->is(name) ? kept : nullptr;
}

const Name* keep(Text name) noexcept {
  if (name.size() > kLongest) return nullptr;
  std::atomic<const Name*>& slot = slotOf(name);
  if (slot.load(std::memory_order_relaxed) != nullptr) return nullptr;
  const std::size_t utf8 = Name::utf8LengthOf(name);
  void* const memory = ::operator new(Name::sizeFor(name, utf8), std::nothrow);
  if (memory == nullptr) return nullptr;
  const Name* const made = Name::make(memory, name, utf8);
  const Name* expected = nullptr;
  if (slot.compare_exchange_strong(expected, made, std::memory_order_acq_rel)) return made;
  ::operator delete(memory);
  return nullptr;
}

}  // namespace trnidom_detail::shared_names
