#include "RowStore.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include <unistd.h>

#include <tools/dxmd/ToolError.h>

namespace dxmd_tool {

namespace {

// Each value is its length and its bytes; each row begins with a mark.
using Length = std::uint32_t;
constexpr Length kNull = 0xFFFFFFFF;
constexpr Length kRow = 0xFFFFFFFE;

constexpr std::size_t kMostInMemory = std::size_t{4} << 20;

[[noreturn]] void fail(const char* what) {
  throw ToolError(kStatusFile, std::string("temporary file: ") + what + ": " + std::strerror(errno));
}

std::FILE* newFile() {
  const char* const folder = std::getenv("TMPDIR");
  std::string path = std::string(folder != nullptr && *folder != '\0' ? folder : "/tmp") + "/dxmd.XXXXXX";
  const int number = ::mkstemp(path.data());
  if (number < 0) fail("cannot be made");
  ::unlink(path.c_str());
  std::FILE* const file = ::fdopen(number, "w+b");
  if (file == nullptr) ::close(number);
  if (file == nullptr) fail("cannot be made");
  return file;
}

void appendLength(std::string& bytes, Length length) {
  char raw[sizeof length];
  std::memcpy(raw, &length, sizeof length);
  bytes.append(raw, sizeof raw);
}

/// Reads the bytes back: from memory, or from the file by way of memory.
class Reader {
 public:
  Reader(std::string& bytes, std::FILE* file) : m_bytes(bytes), m_file(file) {}

  /// Has that many bytes at `m_at`; false at the end. Bytes behind `m_kept` stay in their place among each other.
  bool need(std::size_t count) {
    if (m_bytes.size() - m_at >= count) return true;
    if (m_file == nullptr) return false;
    m_bytes.erase(0, m_kept);
    m_at -= m_kept;
    m_kept = 0;
    constexpr std::size_t kPiece = std::size_t{1} << 18;
    const std::size_t before = m_bytes.size();
    m_bytes.resize(before + std::max(kPiece, count));
    m_bytes.resize(before + std::fread(m_bytes.data() + before, 1, m_bytes.size() - before, m_file));
    if (std::ferror(m_file) != 0) fail("cannot be read");
    return m_bytes.size() - m_at >= count;
  }

  bool peek(Length& length) {
    if (!need(sizeof length)) return false;
    std::memcpy(&length, m_bytes.data() + m_at, sizeof length);
    return true;
  }

  void skip(std::size_t count) { m_at += count; }
  /// What was read so far may go.
  void release() { m_kept = m_at; }
  /// Counted from what was released last, since the bytes may move.
  std::size_t offset() const { return m_at - m_kept; }
  std::string_view at(std::size_t offset, std::size_t size) const {
    return std::string_view(m_bytes).substr(m_kept + offset, size);
  }

 private:
  std::string& m_bytes;
  std::FILE* m_file;
  std::size_t m_at = 0;
  std::size_t m_kept = 0;
};

}  // namespace

void RowStore::begin() {
  ++m_size;
  appendLength(m_bytes, kRow);
}

void RowStore::add(std::string_view value) {
  if (value.size() >= kRow) throw ToolError(kStatusUnfit, "a value of 4 GB is too large");
  appendLength(m_bytes, static_cast<Length>(value.size()));
  m_bytes += value;
  if (m_bytes.size() > kMostInMemory) spill();
}

void RowStore::addNull() {
  appendLength(m_bytes, kNull);
}

void RowStore::spill() {
  if (m_file == nullptr) m_file.reset(newFile());
  if (std::fwrite(m_bytes.data(), 1, m_bytes.size(), m_file.get()) != m_bytes.size()) fail("cannot be written");
  m_bytes.clear();
}

void RowStore::forEach(const std::function<void(const Row&)>& visit) {
  if (m_file != nullptr) {
    spill();
    if (std::fflush(m_file.get()) != 0 || std::fseek(m_file.get(), 0, SEEK_SET) != 0) fail("cannot be written");
  }
  struct Span {
    std::size_t offset;
    Length length;
  };
  Reader reader(m_bytes, m_file.get());
  std::vector<Span> spans;
  Row row;
  Length length = 0;
  while (reader.peek(length)) {
    reader.skip(sizeof length);  // of the mark
    reader.release();
    spans.clear();
    while (reader.peek(length) && length != kRow) {
      reader.skip(sizeof length);
      spans.push_back({reader.offset(), length});
      if (length == kNull) continue;
      reader.need(length);
      reader.skip(length);
    }
    row.clear();
    for (const Span& span : spans)
      row.push_back(span.length == kNull ? std::nullopt
                                         : std::optional<std::string_view>(reader.at(span.offset, span.length)));
    visit(row);
  }
}

}  // namespace dxmd_tool
