#include "Capture.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

#include <zlib.h>

#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/text/Words.h>

namespace dxmd_tool {

namespace {

constexpr std::string_view kSpaces(" \t\r\n");

/// The most bytes that headers of HTTP may have.
constexpr std::size_t kMostHeaders = std::size_t{1} << 18;

/// A source whose next bytes can be looked at before they are taken.
class Lookahead {
 public:
  explicit Lookahead(Source source) : m_source(std::move(source)) {}

  /// The next bytes, fewer than `size` only at the end. Valid until the next call.
  std::string_view peek(std::size_t size) {
    if (m_bytes.size() - m_at < size && !m_hasEnded) fill(size);
    return std::string_view(m_bytes).substr(m_at, size);
  }

  void skip(std::size_t count) { m_at += count; }

  std::size_t read(char* buffer, std::size_t size) {
    if (m_at == m_bytes.size() && !m_hasEnded) {
      const std::size_t count = m_source(buffer, size);
      m_hasEnded = count == 0;
      return count;
    }
    const std::size_t count = m_bytes.copy(buffer, size, m_at);
    m_at += count;
    return count;
  }

  /// The next line without its end, which is taken; none when it is longer than that.
  std::optional<std::string> takeLine(std::size_t most) {
    const std::string_view bytes = peek(most);
    const std::size_t end = bytes.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    std::string line(bytes.substr(0, end));
    if (!line.empty() && line.back() == '\r') line.pop_back();
    skip(end + 1);
    return line;
  }

 private:
  void fill(std::size_t size) {
    m_bytes.erase(0, m_at);
    m_at = 0;
    while (m_bytes.size() < size && !m_hasEnded) {
      const std::size_t before = m_bytes.size();
      m_bytes.resize(size);
      const std::size_t count = m_source(m_bytes.data() + before, size - before);
      m_bytes.resize(before + count);
      m_hasEnded = count == 0;
    }
  }

  Source m_source;
  std::string m_bytes;
  std::size_t m_at = 0;
  bool m_hasEnded = false;
};

using Bytes = std::shared_ptr<Lookahead>;

/// The bytes that a filter gives, whatever it reads them from.
template <typename Filter>
Source sourceOf(std::shared_ptr<Filter> filter) {
  return [filter = std::move(filter)](char* buffer, std::size_t size) { return filter->read(buffer, size); };
}

// gzip

constexpr std::string_view kGzipMark("\x1F\x8B");

/// Decompresses one or more members of gzip. Zeros behind the last, as tapes have them, are passed over.
class Gunzip {
 public:
  Gunzip(Bytes bytes, std::string name) : m_bytes(std::move(bytes)), m_name(std::move(name)) {
    constexpr int kGzipOnly = 16 + MAX_WBITS;
    if (::inflateInit2(&m_stream, kGzipOnly) != Z_OK) throw std::bad_alloc();
  }
  Gunzip(const Gunzip&) = delete;
  Gunzip& operator=(const Gunzip&) = delete;
  ~Gunzip() { ::inflateEnd(&m_stream); }

  std::size_t read(char* buffer, std::size_t size) {
    constexpr std::size_t kMost = std::size_t{1} << 30;  // what zlib counts in
    size = std::min(size, kMost);
    m_stream.next_out = reinterpret_cast<Bytef*>(buffer);
    m_stream.avail_out = static_cast<uInt>(size);
    while (m_stream.avail_out == size && !m_hasEnded) inflateSome();
    return size - m_stream.avail_out;
  }

 private:
  void inflateSome() {
    constexpr std::size_t kPiece = std::size_t{1} << 16;
    const std::string_view in = m_bytes->peek(kPiece);
    // zlib takes what it does not change as not const.
    m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(in.data()));
    m_stream.avail_in = static_cast<uInt>(in.size());
    const int result = ::inflate(&m_stream, Z_NO_FLUSH);
    m_bytes->skip(in.size() - m_stream.avail_in);
    if (result == Z_STREAM_END) {
      m_hasEnded = m_bytes->peek(kGzipMark.size()) != kGzipMark;
      ::inflateReset(&m_stream);
    } else if (result == Z_MEM_ERROR) {
      throw std::bad_alloc();
    } else if (in.empty()) {
      throw ToolError(kStatusSyntax, m_name + ": the gzip data ends too early");
    } else if (result != Z_OK && result != Z_BUF_ERROR) {
      throw ToolError(kStatusSyntax, m_name + ": the gzip data is damaged");
    }
  }

  Bytes m_bytes;
  std::string m_name;
  z_stream m_stream{};
  bool m_hasEnded = false;
};

// HTTP

/// Whether it is the first line of an HTTP message, or a header.
bool isHeadLine(std::string_view line) {
  if (startsWith(line, "HTTP/")) return true;
  std::size_t token = 0;
  while (token < line.size() && (std::isalnum(static_cast<unsigned char>(line[token])) != 0 || line[token] == '-'))
    ++token;
  if (token == 0 || token == line.size()) return false;
  return line[token] == ':' || (line[token] == ' ' && line.find(" HTTP/", token + 1) != std::string_view::npos);
}

struct Head {
  std::size_t size = 0;  ///< with the empty line that ends it; 0 when there is none
  std::size_t lines = 0;
  bool isChunked = false;
};

Head headOf(std::string_view bytes) {
  Head head;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = bytes.find('\n', at);
    if (end == std::string_view::npos) return {};
    std::string_view line = bytes.substr(at, end - at);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (at == 0 && !isHeadLine(line)) return {};
    at = end + 1;
    ++head.lines;
    const std::string lower = lowerCase(std::string(line));
    if (startsWith(lower, "transfer-encoding:") && lower.find("chunked") != std::string::npos) head.isChunked = true;
    head.size = at;
    if (line.empty()) return head;
  }
  return {};
}

/// The content of chunks, as `Transfer-Encoding: chunked` has them.
class Chunks {
 public:
  Chunks(Bytes bytes, std::string name) : m_bytes(std::move(bytes)), m_name(std::move(name)) {}

  /// The size in a line that begins a chunk; none when it begins none. Tools that capture often join the chunks and
  /// leave the header.
  static std::optional<std::size_t> sizeIn(std::string_view line) {
    constexpr std::size_t kMostDigits = 8;
    const std::size_t digits = std::min(line.find_first_not_of("0123456789abcdefABCDEF"), line.size());
    if (digits == 0 || digits > kMostDigits) return std::nullopt;
    if (line.find_first_not_of(" \t", digits) != std::string_view::npos && line[digits] != ';') return std::nullopt;
    return std::strtoul(std::string(line.substr(0, digits)).c_str(), nullptr, 16);
  }

  std::size_t read(char* buffer, std::size_t size) {
    if (m_left == 0 && !m_hasEnded) begin();
    if (m_hasEnded) return 0;
    const std::size_t count = m_bytes->read(buffer, std::min(size, m_left));
    if (count == 0) fail();
    m_left -= count;
    return count;
  }

 private:
  void begin() {
    constexpr std::size_t kMostInLine = 4096;
    if (std::exchange(m_hasBegun, true) && m_bytes->takeLine(kMostInLine) != "") fail();
    const std::optional<std::string> line = m_bytes->takeLine(kMostInLine);
    const std::optional<std::size_t> size = line ? sizeIn(*line) : std::nullopt;
    if (!size) fail();
    m_left = *size;
    m_hasEnded = m_left == 0;
  }

  [[noreturn]] void fail() const {
    throw ToolError(kStatusSyntax, m_name + ": the chunks of the HTTP message are damaged");
  }

  Bytes m_bytes;
  std::string m_name;
  std::size_t m_left = 0;
  bool m_hasBegun = false;
  bool m_hasEnded = false;
};

bool beginsChunk(Lookahead& bytes) {
  constexpr std::size_t kMostInLine = 256;
  std::string_view line = bytes.peek(kMostInLine);
  line = line.substr(0, std::min(line.find('\n'), line.size()));
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return Chunks::sizeIn(line).has_value();
}

// The encoding

/// How the characters of ASCII stand in the bytes.
struct Encoding {
  std::string_view mark;  ///< the byte order mark
  std::size_t width;      ///< of a unit
  std::size_t low;        ///< where in a unit its lowest byte is
};
constexpr Encoding kUtf8{"\xEF\xBB\xBF", 1, 0};
constexpr Encoding kWide[] = {{std::string_view("\xFF\xFE\0\0", 4), 4, 0},
                              {std::string_view("\0\0\xFE\xFF", 4), 4, 3},
                              {"\xFF\xFE", 2, 0},
                              {"\xFE\xFF", 2, 1}};

/// The unit's character of ASCII; -1 when it is another.
int asciiOf(std::string_view unit, const Encoding& encoding) {
  for (std::size_t i = 0; i < unit.size(); ++i)
    if (i != encoding.low && unit[i] != '\0') return -1;
  return unit.size() == encoding.width ? static_cast<unsigned char>(unit[encoding.low]) : -1;
}

/// The encoding that the first four bytes tell, and whether a mark does.
std::pair<Encoding, bool> encodingOf(std::string_view bytes) {
  if (startsWith(bytes, kUtf8.mark)) return {kUtf8, true};
  for (const Encoding& wide : kWide)
    if (startsWith(bytes, wide.mark)) return {wide, true};
  for (const Encoding& wide : kWide)
    if (bytes.size() == 4 && asciiOf(bytes.substr(0, wide.width), wide) > 0 &&
        asciiOf(bytes.substr(4 - wide.width, wide.width), wide) > 0)
      return {wide, false};
  return {kUtf8, false};
}

/// Whether bytes that continue ASCII declare an encoding that does not.
bool declaresWide(std::string_view bytes) {
  const std::string declaration = lowerCase(std::string(bytes.substr(0, bytes.find("?>"))));
  if (!startsWith(declaration, "<?xml")) return false;
  const std::size_t encoding = declaration.find("encoding");
  if (encoding == std::string::npos) return false;
  const std::size_t name = declaration.find_first_of("'\"", encoding);
  if (name == std::string::npos) return false;
  for (const char* wide : {"utf-16", "utf16", "utf-32", "utf32", "ucs-2", "ucs-4", "iso-10646-ucs", "unicode"})
    if (declaration.compare(name + 1, std::string_view(wide).size(), wide) == 0) return true;
  return false;
}

/// Bytes without the NULs at their end, nor the white space behind the first of these.
class WithoutLastNuls {
 public:
  WithoutLastNuls(std::string start, Bytes bytes, const Encoding& encoding)
      : m_bytes(std::move(bytes)), m_encoding(encoding), m_buffer(std::move(start)), m_ready(m_buffer.size()) {}

  std::size_t read(char* buffer, std::size_t size) {
    while (m_at == m_ready && !m_hasEnded) fill();
    const std::size_t count = std::min(size, m_ready - m_at);
    m_buffer.copy(buffer, count, m_at);
    m_at += count;
    return count;
  }

 private:
  void fill() {
    constexpr std::size_t kPiece = std::size_t{1} << 16;
    constexpr std::size_t kMostNuls = std::size_t{1} << 20;
    m_buffer.erase(0, m_ready);
    m_at = 0;
    const std::size_t before = m_buffer.size();
    m_buffer.resize(before + kPiece);
    const std::size_t count = m_bytes->read(m_buffer.data() + before, kPiece);
    m_buffer.resize(before + count);
    m_hasEnded = count == 0;
    m_ready = startOfNuls();
    // At the end, a unit that was cut off is an error, which the parser tells.
    if (m_buffer.size() - m_ready > kMostNuls || (m_hasEnded && m_buffer.size() - m_ready < m_encoding.width))
      m_ready = m_buffer.size();
  }

  /// Where the last run of NULs begins; units are whole before it.
  std::size_t startOfNuls() const {
    const std::size_t width = m_encoding.width;
    std::size_t start = m_buffer.size() / width * width;
    for (std::size_t at = start; at > 0; at -= width) {
      const int character = asciiOf(std::string_view(m_buffer).substr(at - width, width), m_encoding);
      if (character == 0)
        start = at - width;
      else if (character < 0 || kSpaces.find(static_cast<char>(character)) == std::string_view::npos)
        break;
    }
    return start;
  }

  Bytes m_bytes;
  Encoding m_encoding;
  std::string m_buffer;
  std::size_t m_at = 0;     ///< of the buffer, what was given
  std::size_t m_ready = 0;  ///< what may be given
  bool m_hasEnded = false;
};

/// The document as the parser takes it.
Capture documentIn(const Bytes& bytes, std::size_t linesBefore) {
  const auto [encoding, isMarked] = encodingOf(bytes->peek(4));
  if (isMarked) bytes->skip(encoding.mark.size());
  // Before a declaration there may be no white space, elsewhere it is part of the document.
  constexpr std::size_t kMostSpaces = std::size_t{1} << 16;
  const std::string_view start = bytes->peek(kMostSpaces);
  Capture capture{nullptr, linesBefore, 0};
  std::string ascii;
  std::size_t skipped = 0;
  for (std::size_t at = 0; at + encoding.width <= start.size(); at += encoding.width) {
    const int character = asciiOf(start.substr(at, encoding.width), encoding);
    if (ascii.empty() && character > 0 && kSpaces.find(static_cast<char>(character)) != std::string_view::npos) {
      skipped += encoding.width;
      capture.columns = character == '\n' ? 0 : capture.columns + 1;
      capture.lines += character == '\n' ? 1 : 0;
      continue;
    }
    constexpr std::size_t kMostOfDeclaration = 200;
    if (character <= 0 || ascii.size() == kMostOfDeclaration) break;
    ascii += static_cast<char>(character);
  }
  if (startsWith(ascii, "<?xml"))
    bytes->skip(skipped);
  else
    capture = {nullptr, linesBefore, 0};
  const bool needsMark = isMarked || encoding.width > 1 || declaresWide(ascii);
  capture.source = sourceOf(
      std::make_shared<WithoutLastNuls>(needsMark ? std::string(encoding.mark) : std::string(), bytes, encoding));
  return capture;
}

}  // namespace

Capture captured(const Source& raw, const std::string& name) {
  // Headers of a proxy, of the answer "100 Continue", and of the message itself, say; a file of a capture is compressed
  // once, and its content once more.
  constexpr int kMostLayers = 16;
  Bytes bytes = std::make_shared<Lookahead>(raw);
  std::size_t lines = 0;
  for (int layer = 0; layer < kMostLayers; ++layer) {
    if (bytes->peek(kGzipMark.size()) == kGzipMark) {
      bytes = std::make_shared<Lookahead>(sourceOf(std::make_shared<Gunzip>(bytes, name)));
      lines = 0;
      continue;
    }
    const std::string_view first = bytes->peek(1);
    const bool mayBeHead = !first.empty() && std::isalpha(static_cast<unsigned char>(first[0])) != 0;
    const Head head = mayBeHead ? headOf(bytes->peek(kMostHeaders)) : Head{};
    if (head.size == 0) return documentIn(bytes, lines);
    bytes->skip(head.size);
    lines += head.lines;
    if (head.isChunked && beginsChunk(*bytes))
      bytes = std::make_shared<Lookahead>(sourceOf(std::make_shared<Chunks>(bytes, name)));
  }
  throw ToolError(kStatusSyntax, name + ": compressed or wrapped too many times");
}

}  // namespace dxmd_tool
