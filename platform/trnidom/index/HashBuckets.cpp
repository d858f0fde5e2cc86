#include "index/HashBuckets.h"

#include <algorithm>
#include <utility>

namespace trnidom_detail {

const HashBuckets::Bucket* HashBuckets::find(std::size_t hash) const noexcept {
  if (m_slots.empty()) return nullptr;
  const Bucket& bucket = m_slots[slotOf(hash)];
  return bucket.first != nullptr ? &bucket : nullptr;
}

void HashBuckets::enter(std::size_t hash, Element* element) {
  if (m_used >= m_slots.size() / 2) grow();
  Bucket& bucket = m_slots[slotOf(hash)];
  if (bucket.first == nullptr) {
    bucket.hash = hash;
    bucket.first = element;
    ++m_used;
    return;
  }
  if (bucket.rest == nullptr) bucket.rest = std::make_unique<std::set<Element*, ByNumber>>();
  auto& rest = *bucket.rest;
  if (!ByNumber()(element, bucket.first)) {
    rest.insert(rest.end(), element);
  } else {
    rest.insert(rest.begin(), bucket.first);
    bucket.first = element;
  }
}

void HashBuckets::erase(std::size_t hash, Element* element) noexcept {
  if (m_slots.empty()) return;
  const std::size_t at = slotOf(hash);
  Bucket& bucket = m_slots[at];
  if (bucket.first == nullptr) return;
  if (bucket.first != element) {
    if (bucket.rest != nullptr) bucket.rest->erase(element);
  } else if (bucket.rest != nullptr && !bucket.rest->empty()) {
    bucket.first = *bucket.rest->begin();
    bucket.rest->erase(bucket.rest->begin());
  } else {
    freeSlot(at);
  }
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
  std::vector<Bucket> slots(std::max(kFirst, m_slots.size() * 2));
  m_slots.swap(slots);
  for (Bucket& bucket : slots)
    if (bucket.first != nullptr) m_slots[slotOf(bucket.hash)] = std::move(bucket);
}

/// Frees a slot and moves those behind it that the gap would hide.
void HashBuckets::freeSlot(std::size_t at) noexcept {
  const std::size_t mask = m_slots.size() - 1;
  --m_used;
  for (std::size_t next = (at + 1) & mask; m_slots[next].first != nullptr; next = (next + 1) & mask) {
    const std::size_t home = m_slots[next].hash & mask;
    if (((next - home) & mask) < ((next - at) & mask)) continue;
    m_slots[at] = std::move(m_slots[next]);
    at = next;
  }
  m_slots[at] = Bucket();
}

}  // namespace trnidom_detail
