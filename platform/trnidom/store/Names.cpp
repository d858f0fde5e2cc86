#include "store/Names.h"

#include <algorithm>
#include <new>

#include "text/SipHash.h"
#include "text/Utf8.h"

namespace trnidom_detail {

namespace {

std::size_t hashOf(Text name) noexcept {
  SipHash hash;
  hash.add(name);
  return hash.value();
}

void place(std::vector<const Name*>& table, const Name* name) noexcept {
  const std::size_t mask = table.size() - 1;
  std::size_t at = name->hash & mask;
  while (table[at] != nullptr) at = (at + 1) & mask;
  table[at] = name;
}

}  // namespace

std::size_t Name::utf8LengthOf(Text text) noexcept {
  return trnidom_detail::utf8Length(text);
}

const Name* Name::make(void* memory, Text text, std::size_t utf8Length) noexcept {
  auto* name =
      new (memory) Name{hashOf(text), static_cast<std::uint32_t>(text.size()), static_cast<std::uint32_t>(utf8Length)};
  auto* units = reinterpret_cast<char16_t*>(name + 1);
  std::copy(text.begin(), text.end(), units);
  auto* out = reinterpret_cast<char*>(units + text.size());
  for (const char16_t *at = text.data(), *end = at + text.size(); at != end;)
    out = putUtf8(nextCharacter(at, end), out);
  return name;
}

const Name* Names::findAmongAll(Text name) const noexcept {
  if (!m_table.empty()) return findInTable(name, hashOf(name));
  for (std::size_t i = 0; i < m_count; ++i)
    if (m_few[i]->is(name)) return m_few[i];
  return nullptr;
}

const Name* Names::findInTable(Text name, std::size_t hash) const noexcept {
  const std::size_t mask = m_table.size() - 1;
  for (std::size_t at = hash & mask; m_table[at] != nullptr; at = (at + 1) & mask)
    if (m_table[at]->hash == hash && m_table[at]->is(name)) return m_table[at];
  return nullptr;
}

/// The document's own name, found by the hash that names have.
const Name* Names::findEqual(const Name* name) const noexcept {
  if (!m_table.empty()) return findInTable(name->text(), name->hash);
  for (std::size_t i = 0; i < m_count; ++i)
    if (m_few[i]->hash == name->hash && m_few[i]->is(name->text())) return m_few[i];
  return nullptr;
}

const Name* Names::intern(Text name) {
  const std::size_t quick = quickHash(name);
  if (const Name* recent = findRecent(name, quick)) return recent;
  if (const Name* known = findAmongAll(name)) return m_recent[quick % kRecent] = known;
  constexpr std::size_t kLongest = UINT32_MAX / 3;
  if (name.size() > kLongest) throw std::bad_alloc();
  const std::size_t utf8 = Name::utf8LengthOf(name);
  return add(Name::make(m_arena.allocate(Name::sizeFor(name, utf8)), name, utf8), quick);
}

const Name* Names::adopt(const Name* name, std::size_t quick) {
  const Name* const known = findEqual(name);
  return known != nullptr ? m_recent[quick % kRecent] = known : add(name, quick);
}

/// Adds a name that is not there.
const Name* Names::add(const Name* name, std::size_t quick) {
  if (m_count < kFew)
    m_few[m_count] = name;
  else
    addToTable(name);
  ++m_count;
  return m_recent[quick % kRecent] = name;
}

void Names::addToTable(const Name* name) {
  if (m_count >= m_table.size() / 2) {
    std::vector<const Name*> larger(std::max(kFew * 4, m_table.size() * 2));
    if (m_table.empty())
      for (const Name* few : m_few) place(larger, few);
    for (const Name* present : m_table)
      if (present != nullptr) place(larger, present);
    m_table.swap(larger);
  }
  place(m_table, name);
}

}  // namespace trnidom_detail
