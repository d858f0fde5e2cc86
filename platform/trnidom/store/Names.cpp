#include "store/Names.h"

#include <algorithm>
#include <new>

#include "text/SipHash.h"
#include "text/Utf8.h"

namespace trnidom_detail {

std::size_t Name::hashOf(Text text) noexcept {
  SipHash hash;
  hash.add(text);
  return hash.value();
}

std::size_t Name::utf8LengthOf(Text text) noexcept {
  return trnidom_detail::utf8Length(text);
}

const Name* Name::make(void* memory, Text text, std::size_t hash, std::size_t utf8Length) noexcept {
  auto* name = new (memory) Name{hash, static_cast<std::uint32_t>(text.size()), static_cast<std::uint32_t>(utf8Length)};
  auto* units = reinterpret_cast<char16_t*>(name + 1);
  std::copy(text.begin(), text.end(), units);
  auto* out = reinterpret_cast<char*>(units + text.size());
  for (const char16_t *at = text.data(), *end = at + text.size(); at != end;)
    out = putUtf8(nextCharacter(at, end), out);
  return name;
}

const Name* Names::findAmongAll(Text name) const noexcept {
  if (!m_table.empty()) return findHashed(name, Name::hashOf(name));
  for (std::size_t i = 0; i < m_count; ++i)
    if (m_few[i]->is(name)) return m_few[i];
  return nullptr;
}

const Name* Names::findHashed(Text name, std::size_t hash) const noexcept {
  if (m_table.empty()) {
    for (std::size_t i = 0; i < m_count; ++i)
      if (m_few[i]->hash == hash && m_few[i]->is(name)) return m_few[i];
    return nullptr;
  }
  const std::size_t mask = m_table.size() - 1;
  for (std::size_t at = hash & mask; m_table[at].name != nullptr; at = (at + 1) & mask)
    if (m_table[at].hash == hash && m_table[at].name->is(name)) return m_table[at].name;
  return nullptr;
}

const Name* Names::intern(Text name) {
  const std::size_t quick = quickHash(name);
  if (const Name* recent = findRecent(name, quick)) return recent;
  return findOrAdd(name, quick, [&](std::size_t hash) { return make(name, hash); });
}

const Name* Names::make(Text name, std::size_t hash) {
  constexpr std::size_t kLongest = UINT32_MAX / 3;
  if (name.size() > kLongest) throw std::bad_alloc();
  const std::size_t utf8 = Name::utf8LengthOf(name);
  return Name::make(m_arena.allocate(Name::sizeFor(name, utf8)), name, hash, utf8);
}

const Name* Names::adopt(const Name* name, std::size_t quick) {
  const Name* known = findHashed(name->text(), name->hash);
  if (known == nullptr) known = add(name);
  return m_recent[quick % kRecent] = known;
}

/// Adds a name that is not there.
const Name* Names::add(const Name* name) {
  if (m_count < kFew)
    m_few[m_count] = name;
  else
    addToTable(name);
  ++m_count;
  return name;
}

void Names::addToTable(const Name* name) {
  const auto place = [](std::vector<Slot>& table, const Slot& slot) {
    const std::size_t mask = table.size() - 1;
    std::size_t at = slot.hash & mask;
    while (table[at].name != nullptr) at = (at + 1) & mask;
    table[at] = slot;
  };
  if (m_count >= m_table.size() / 2) {
    std::vector<Slot> larger(std::max(kFew * 4, m_table.size() * 2));
    if (m_table.empty())
      for (const Name* few : m_few) place(larger, {few->hash, few});
    for (const Slot& present : m_table)
      if (present.name != nullptr) place(larger, present);
    m_table.swap(larger);
  }
  place(m_table, {name->hash, name});
}

}  // namespace trnidom_detail
