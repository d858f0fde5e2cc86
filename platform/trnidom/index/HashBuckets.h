#ifndef TRNIDOM_INDEX_HASHBUCKETS_H
#define TRNIDOM_INDEX_HASHBUCKETS_H

#include <cstddef>
#include <memory>
#include <set>
#include <vector>

#include "store/Node.h"

namespace trnidom_detail {

/// Elements by hash: of each hash the elements in the order of their numbers. Open addressing with linear probing.
class HashBuckets {
 public:
  struct ByNumber {
    bool operator()(const Element* left, const Element* right) const noexcept { return left->number < right->number; }
  };

  /// The elements of one hash: the first, and the rest if there are more.
  struct Bucket {
    std::size_t hash = 0;
    Element* first = nullptr;  // null in a free slot
    std::unique_ptr<std::set<Element*, ByNumber>> rest;
  };

  /// The elements of that hash, or null.
  const Bucket* find(std::size_t hash) const noexcept;

  /// @throws std::bad_alloc, and the element is not entered then.
  void enter(std::size_t hash, Element* element);

  /// Does nothing when the element is not there.
  void erase(std::size_t hash, Element* element) noexcept;

 private:
  std::size_t slotOf(std::size_t hash) const noexcept;
  void grow();
  void freeSlot(std::size_t at) noexcept;

  std::vector<Bucket> m_slots;
  std::size_t m_used = 0;
};

}  // namespace trnidom_detail

#endif
