#ifndef DXMD_CORE_OWNEDLIST_H
#define DXMD_CORE_OWNEDLIST_H

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

/// What the helpers' headers share. Programs have no use for it.
namespace dxmd {

/// Records that a helper owns and hands out as plain pointers. They live as long as the list that has them. It is in
/// the helpers' headers because they hold such lists; programs have no use for it.
/// @tparam T  the record; need not be movable.
template <typename T>
class OwnedList {
 public:
  /// An empty list.
  OwnedList() noexcept = default;

  /// Takes the records over; the other list is empty then.
  OwnedList(OwnedList&& other) noexcept : m_items(std::exchange(other.m_items, {})) {}

  /// Swaps the records of the two lists.
  OwnedList& operator=(OwnedList&& other) noexcept {
    std::swap(m_items, other.m_items);
    return *this;
  }

  /// Deletes the records.
  ~OwnedList() {
    for (const T* item : m_items) delete item;
  }

  /// The records in order; they stay owned by the list.
  const std::vector<T*>& items() const noexcept { return m_items; }

  /// Whether there is no record.
  bool empty() const noexcept { return m_items.empty(); }

  /// The number of records.
  std::size_t size() const noexcept { return m_items.size(); }

  /// For a loop over the pointers; as valid as `items().begin()`.
  auto begin() const noexcept { return m_items.begin(); }

  /// The end of that loop.
  auto end() const noexcept { return m_items.end(); }

  /// Appends the record and returns it. Nothing leaks and nothing changes when memory runs out.
  T* adopt(std::unique_ptr<T> item) {
    m_items.push_back(item.get());
    return item.release();
  }

  /// Makes a record from the arguments and appends it.
  template <typename... Args>
  T* emplace(Args&&... args) {
    return adopt(std::make_unique<T>(std::forward<Args>(args)...));
  }

  /// Deletes records that nest in themselves, to any depth, without recursion and without memory of its own.
  ///
  /// A record that owns a list of its own kind calls this on that list in its destructor. On the way down, the slot of
  /// the child that is being emptied holds the way back up.
  /// @param children  gives a record's own list, as in `[](Node& node) -> OwnedList<Node>& { return node.m_children; }`
  template <typename Children>
  void clearNested(Children children) noexcept {
    while (!m_items.empty()) {
      T* parent = nullptr;
      T* current = m_items.back();
      m_items.pop_back();
      while (current != nullptr) {
        std::vector<T*>& below = children(*current).m_items;
        if (!below.empty()) {
          T* child = std::exchange(below.back(), parent);
          parent = std::exchange(current, child);
          continue;
        }
        delete current;
        current = parent;
        if (current == nullptr) continue;
        std::vector<T*>& around = children(*current).m_items;
        parent = around.back();
        around.pop_back();
      }
    }
  }

 private:
  std::vector<T*> m_items;
};

}  // namespace dxmd

#endif
