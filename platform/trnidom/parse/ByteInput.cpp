#include "parse/ByteInput.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace trnidom_detail {

std::string_view ByteInput::read(std::size_t size) {
  if (m_source != nullptr && m_bytes.size() - m_at < size) fill(size);
  const std::string_view bytes = m_bytes.substr(m_at, size);
  m_at += bytes.size();
  return bytes;
}

/// Has the source give bytes until `size` are there to be read, or all.
void ByteInput::fill(std::size_t size) {
  const std::size_t dropped = m_keepsAll ? 0 : m_at;
  const std::string_view kept = m_bytes.substr(dropped);
  const std::size_t wanted = m_at - dropped + size;
  if (wanted > m_capacity) {
    const std::size_t capacity = std::max(wanted, 2 * m_capacity);
    std::unique_ptr<char[]> grown(new char[capacity]);  // of no value yet, which std::vector would give it
    std::copy(kept.begin(), kept.end(), grown.get());
    m_buffer = std::move(grown);
    m_capacity = capacity;
  } else if (!kept.empty()) {
    std::memmove(m_buffer.get(), kept.data(), kept.size());
  }
  m_at -= dropped;
  std::size_t filled = kept.size();
  m_bytes = {m_buffer.get(), filled};
  while (filled < wanted) {
    const std::size_t count = (*m_source)(m_buffer.get() + filled, wanted - filled);
    if (count == 0) {
      m_source = nullptr;
      break;
    }
    filled += std::min(count, wanted - filled);
  }
  m_bytes = {m_buffer.get(), filled};
}

}  // namespace trnidom_detail
