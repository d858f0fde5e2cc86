#ifndef TRNIDOM_PARSE_BYTEINPUT_H
#define TRNIDOM_PARSE_BYTEINPUT_H

#include <cstddef>
#include <functional>
#include <memory>
#include <string_view>

namespace trnidom_detail {

/// The bytes of a document, which are in memory or come from a source. All of them are kept, and can be read once more,
/// until `forget`.
class ByteInput {
 public:
  /// Gives up to `size` bytes into `buffer` and says how many; 0 at the end.
  using Source = std::function<std::size_t(char* buffer, std::size_t size)>;

  /// Those bytes, which stay the caller's.
  explicit ByteInput(std::string_view bytes) noexcept : m_bytes(bytes) {}
  /// The bytes of a source, which stays the caller's and is not called again after it has given 0.
  explicit ByteInput(const Source& source) noexcept : m_source(&source) {}

  /// The next bytes, fewer than `size` only at the end of the input. Valid until the next call.
  /// @throws std::bad_alloc; whatever the source throws.
  std::string_view read(std::size_t size);

  /// The last `count` bytes read come again.
  void putBack(std::size_t count) noexcept { m_at -= count; }

  /// All bytes come again.
  void rewind() noexcept { m_at = 0; }

  /// Keeps no more than has been put back. There is no rewinding after this.
  void forget() noexcept { m_keepsAll = false; }

 private:
  void fill(std::size_t size);

  const Source* m_source = nullptr;  // null when nothing is to come
  std::unique_ptr<char[]> m_buffer;  // of a source
  std::size_t m_capacity = 0;
  std::string_view m_bytes;  // in memory
  std::size_t m_at = 0;      // of them are read
  bool m_keepsAll = true;
};

}  // namespace trnidom_detail

#endif
