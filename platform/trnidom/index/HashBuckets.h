#ifndef TRNIDOM_INDEX_HASHBUCKETS_H
#define TRNIDOM_INDEX_HASHBUCKETS_H

#include <cstddef>
#include <set>
#include <unordered_map>
#include <vector>

#include "store/Node.h"

namespace trnidom_detail {

/// Elements by hash: of each hash the elements in the order of their numbers. Open addressing with linear probing.
class HashBuckets {
 public:
  /// The first element of that hash that is wanted, or null.
  template <typename IsWanted>
  Element* find(std::size_t hash, IsWanted isWanted) const {
    if (m_slots.empty()) return nullptr;
    Element* const first = m_slots[slotOf(hash)].first;
    if (first == nullptr || isWanted(first)) return first;
    const auto rest = m_rest.find(hash);
    if (rest != m_rest.end()) {
      for (Element* other : rest->second)
        if (isWanted(other)) return other;
    }
    return nullptr;
  }

  /// @throws std::bad_alloc, and the element is not entered then.
  void enter(std::size_t hash, Element* element);

  /// Does nothing when the element is not there.
  void erase(std::size_t hash, Element* element) noexcept;

 private:
  struct ByNumber {
    bool operator()(const Element* left, const Element* right) const noexcept { return left->number < right->number; }
  };
  using Rest = std::set<Element*, ByNumber>;

  struct Slot {
    std::size_t hash = 0;
    Element* first = nullptr;  // null in a free slot
  };

  std::size_t slotOf(std::size_t hash) const noexcept;
  void grow();
  void freeSlot(std::size_t at) noexcept;

  std::vector<Slot> m_slots;
  std::size_t m_used = 0;
  std::unordered_map<std::size_t, Rest> m_rest;  // by hash: the elements after the first, if there are more
};

}  // namespace trnidom_detail

#endif
