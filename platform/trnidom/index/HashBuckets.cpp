#include "index/HashBuckets.h"

#include <algorithm>

namespace trnidom_detail {

void HashBuckets::enter(std::size_t hash, Element* element) {
  if (m_used >= m_slots.size() / 2) grow();
  Slot& slot = m_slots[slotOf(hash)];
  if (slot.first == nullptr) {
    slot = {hash, element};
    ++m_used;
    return;
  }
  Rest& rest = m_rest[hash];
  if (!ByNumber()(element, slot.first)) {
    rest.insert(rest.end(), element);
  } else {
    rest.insert(rest.begin(), slot.first);
    slot.first = element;
  }
}

void HashBuckets::erase(std::size_t hash, Element* element) noexcept {
  if (m_slots.empty()) return;
  const std::size_t at = slotOf(hash);
  Slot& slot = m_slots[at];
  if (slot.first == nullptr) return;
  const auto found = m_rest.find(hash);
  if (found == m_rest.end()) {
    if (slot.first == element) freeSlot(at);
    return;
  }
  Rest& rest = found->second;
  if (slot.first != element) {
    rest.erase(element);
  } else if (!rest.empty()) {
    slot.first = *rest.begin();
    rest.erase(rest.begin());
  } else {
    freeSlot(at);
  }
  if (rest.empty()) m_rest.erase(found);
}

/// The slot that has the hash, or the free one where it would go.
std::size_t HashBuckets::slotOf(std::size_t hash) const noexcept {
  const std::size_t mask = m_slots.size() - 1;
  std::size_t at = hash & mask;
  while (m_slots[at].first != nullptr && m_slots[at].hash != hash) at = (at + 1) & mask;
  return at;
}

void HashBuckets::grow() {
  constexpr std::size_t kFirst = 64;
  std::vector<Slot> slots(std::max(kFirst, m_slots.size() * 2));
  m_slots.swap(slots);
  for (const Slot& slot : slots)
    if (slot.first != nullptr) m_slots[slotOf(slot.hash)] = slot;
}

/// Frees a slot and moves those behind it that the gap would hide.
void HashBuckets::freeSlot(std::size_t at) noexcept {
  const std::size_t mask = m_slots.size() - 1;
  --m_used;
  for (std::size_t next = (at + 1) & mask; m_slots[next].first != nullptr; next = (next + 1) & mask) {
    const std::size_t home = m_slots[next].hash & mask;
    if (((next - home) & mask) < ((next - at) & mask)) continue;
    m_slots[at] = m_slots[next];
    at = next;
  }
  m_slots[at] = Slot();
}

}  // namespace trnidom_detail
