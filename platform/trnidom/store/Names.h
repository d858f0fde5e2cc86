#ifndef TRNIDOM_STORE_NAMES_H
#define TRNIDOM_STORE_NAMES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "store/Arena.h"
#include "text/Text.h"

namespace trnidom_detail {

/// A name of elements, attributes or processing instructions, which does not change. Within a document the same name is
/// the same object.
struct Name {
  std::size_t hash;
  std::uint32_t length;      ///< in UTF-16 code units, which follow this object
  std::uint32_t utf8Length;  ///< in bytes, which follow the code units

  Text text() const noexcept { return {reinterpret_cast<const char16_t*>(this + 1), length}; }
  std::string_view utf8() const noexcept {
    return {reinterpret_cast<const char*>(reinterpret_cast<const char16_t*>(this + 1) + length), utf8Length};
  }

  bool is(Text name) const noexcept {
    return length == name.size() && areEqual(text().data(), name.data(), name.size());
  }

  static std::size_t hashOf(Text text) noexcept;
  static std::size_t utf8LengthOf(Text text) noexcept;
  static std::size_t sizeFor(Text text, std::size_t utf8Length) noexcept {
    return sizeof(Name) + text.size() * sizeof(char16_t) + utf8Length;
  }
  /// A name of that hash, in memory of that size.
  static const Name* make(void* memory, Text text, std::size_t hash, std::size_t utf8Length) noexcept;
};

/// Where caches look for a name: what tells most names apart, without a walk through them.
inline std::size_t quickHash(Text name) noexcept {
  if (name.empty()) return 0;
  const std::size_t middle = name.size() / 2;
  return name.size() * 97 + name.front() + std::size_t{name[middle / 2]} * 29 + std::size_t{name[middle]} * 151 +
         std::size_t{name.back()} * 421;
}

/// The names of one document. A few are looked through one by one; more are in a hash table.
class Names {
 public:
  explicit Names(Arena& arena) noexcept : m_arena(arena) {}
  Names(const Names&) = delete;
  Names& operator=(const Names&) = delete;

  /// The name, or null when no node ever had it. Writes nothing.
  const Name* find(Text name) const noexcept {
    const Name* recent = findRecent(name, quickHash(name));
    return recent != nullptr ? recent : findAmongAll(name);
  }

  /// Like `find`, but looks only among the recent names.
  const Name* findRecent(Text name, std::size_t quick) const noexcept {
    const Name* recent = m_recent[quick % kRecent];
    return recent != nullptr && recent->is(name) ? recent : nullptr;
  }

  /// The name, which is a valid one, made when it is new.
  /// @throws std::bad_alloc
  const Name* intern(Text name);

  /// The name, whose quick hash is given; a new one is what `makeNew(hash)` gives.
  /// @throws std::bad_alloc
  template <typename MakeNew>
  const Name* findOrAdd(Text name, std::size_t quick, MakeNew makeNew) {
    const std::size_t hash = Name::hashOf(name);
    const Name* known = findHashed(name, hash);
    if (known == nullptr) known = add(makeNew(hash));
    return m_recent[quick % kRecent] = known;
  }

  /// A name in the document's memory, not yet one of these.
  /// @throws std::bad_alloc
  const Name* make(Text name, std::size_t hash);

  /// The document's own name that equals this one; this one itself, which outlives the document, when it is new.
  /// @param quick  the name's quick hash.
  /// @throws std::bad_alloc
  const Name* adopt(const Name* name, std::size_t quick);

 private:
  struct Slot {
    std::size_t hash = 0;
    const Name* name = nullptr;  // null in a free slot
  };

  static constexpr std::size_t kFew = 16;
  static constexpr std::size_t kRecent = 64;

  const Name* findAmongAll(Text name) const noexcept;
  const Name* findHashed(Text name, std::size_t hash) const noexcept;
  const Name* add(const Name* name);
  void addToTable(const Name* name);

  Arena& m_arena;
  std::array<const Name*, kRecent> m_recent{};  // a direct-mapped cache, by quick hash
  std::array<const Name*, kFew> m_few;          // the first names, while there are no more
  std::vector<Slot> m_table;                    // open addressing
  std::size_t m_count = 0;
};

}  // namespace trnidom_detail

#endif
