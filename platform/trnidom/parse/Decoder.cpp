#include "parse/Decoder.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <new>
#include <utility>

#include <unicode/utf8.h>

#include "text/Utf8.h"

namespace trnidom_detail {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kMaxCharacter = 4;  // bytes of a character in UTF-8
/// Bytes that are looked at, and are still in the processor's cache when they are copied.
constexpr std::size_t kChunk = std::size_t{1} << 15;
constexpr std::size_t kUnits = 4096;

/// The length of the text before the first sequence that is malformed or U+0000.
std::size_t lengthOfText(std::string_view bytes) noexcept {
  constexpr std::uint64_t kOnes = 0x0101010101010101;
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
  std::size_t at = 0;
  while (at < bytes.size()) {
    if (bytes.size() - at >= sizeof(std::uint64_t)) {
      std::uint64_t word;
      std::memcpy(&word, data + at, sizeof word);
      // None of the bytes has its high bit, and none gets it by a borrow from zero.
      if (((word | (word - kOnes)) & kHighBits) == 0) {
        at += sizeof word;
        continue;
      }
    }
    const std::size_t end = std::min(bytes.size(), at + sizeof(std::uint64_t));
    while (at < end) {
      const std::size_t begin = at;
      UChar32 character = 0;
      U8_NEXT(data, at, bytes.size(), character);
      if (character <= 0) return begin;
    }
  }
  return at;
}

struct Mark {
  std::string_view bytes;
  const char* encoding;  // null for UTF-8
};

// The longer ones first: the mark of UTF-32 begins as that of UTF-16 does.
constexpr Mark kMarks[] = {{"\0\0\xFE\xFF"sv, "UTF-32BE"},
                           {"\xFF\xFE\0\0"sv, "UTF-32LE"},
                           {"\xEF\xBB\xBF"sv, nullptr},
                           {"\xFE\xFF"sv, "UTF-16BE"},
                           {"\xFF\xFE"sv, "UTF-16LE"}};
// "<?xml", the beginning of an XML declaration if white space follows. Without one a document of wide characters has to
// have a byte order mark.
constexpr Mark kDeclarations[] = {{"\0\0\0<\0\0\0?\0\0\0x\0\0\0m\0\0\0l"sv, "UTF-32BE"},
                                  {"<\0\0\0?\0\0\0x\0\0\0m\0\0\0l\0\0\0"sv, "UTF-32LE"},
                                  {"\0<\0?\0x\0m\0l"sv, "UTF-16BE"},
                                  {"<\0?\0x\0m\0l\0"sv, "UTF-16LE"}};

/// Whether a document begins with the XML declaration of one of kDeclarations.
bool declares(std::string_view first, const Mark& mark) noexcept {
  constexpr std::string_view kWhiteSpace = " \t\r\n";
  const std::size_t width = mark.bytes.size() / std::string_view("<?xml").size();
  if (first.substr(0, mark.bytes.size()) != mark.bytes) return false;
  const std::string_view next = first.substr(mark.bytes.size(), width);
  const std::size_t significant = next.find_first_not_of('\0');
  return next.size() == width && significant == mark.bytes.find('<') &&
         kWhiteSpace.find(next[significant]) != std::string_view::npos &&
         next.find_first_not_of('\0', significant + 1) == std::string_view::npos;
}

/// Whether a document begins with "<?xml" and white space in EBCDIC, whose code pages agree on these.
bool beginsInEbcdic(std::string_view first) noexcept {
  constexpr std::string_view kBegin = "\x4C\x6F\xA7\x94\x93";
  constexpr std::string_view kWhiteSpace = "\x40\x05\x0D\x15\x25";
  return first.size() > kBegin.size() && first.substr(0, kBegin.size()) == kBegin &&
         kWhiteSpace.find(first[kBegin.size()]) != std::string_view::npos;
}

bool isUtf8(std::string_view encoding) noexcept {
  constexpr std::string_view kName = "UTF-8";
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::equal(encoding.begin(), encoding.end(), kName.begin(), kName.end(),
                    [&](char a, char b) { return lower(a) == lower(b); });
}

/// Whether wide characters, as the first of them tell, can be those of an encoding that is declared.
bool isSameWidth(UConverterType told, UConverterType declared) noexcept {
  if (declared == UCNV_UTF16) return told == UCNV_UTF16_BigEndian || told == UCNV_UTF16_LittleEndian;
  if (declared == UCNV_UTF32) return told == UCNV_UTF32_BigEndian || told == UCNV_UTF32_LittleEndian;
  return told == declared;
}

}  // namespace

Decoder::Decoder(ByteInput& input) : m_input(input) {
  constexpr std::size_t kTelling = 24;
  const std::string_view first = input.read(kTelling);
  const auto begins = [first](const Mark& mark) { return first.substr(0, mark.bytes.size()) == mark.bytes; };
  const auto isDeclared = [first](const Mark& mark) { return declares(first, mark); };
  std::size_t markLength = 0;
  const char* encoding = nullptr;
  if (const auto* mark = std::find_if(std::begin(kMarks), std::end(kMarks), begins); mark != std::end(kMarks)) {
    m_kind = Kind::kMarked;
    markLength = mark->bytes.size();
    encoding = mark->encoding;
  } else if (mark = std::find_if(std::begin(kDeclarations), std::end(kDeclarations), isDeclared);
             mark != std::end(kDeclarations)) {
    m_kind = Kind::kWide;
    encoding = mark->encoding;
  } else if (beginsInEbcdic(first)) {
    m_kind = Kind::kEbcdic;
    encoding = "ibm-37";
  }
  input.putBack(first.size() - markLength);
  if (encoding != nullptr) m_converter = open(encoding);
}

/// The converter, which stops at a malformed sequence; null for an encoding that nobody knows.
Decoder::Converter Decoder::open(const char* encoding) {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(encoding, &status));
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  if (U_FAILURE(status) || converter == nullptr) return nullptr;
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  return converter;
}

Decoder::Declared Decoder::declare(std::string_view encoding) {
  if (m_isSettled) return Declared::kFits;
  m_isSettled = true;
  if (encoding.empty()) return m_kind == Kind::kEbcdic ? Declared::kMissing : Declared::kFits;
  if (m_converter == nullptr && isUtf8(encoding)) return Declared::kFits;
  Converter declared = open(std::string(encoding).c_str());
  if (declared == nullptr) return Declared::kUnknown;
  if (m_kind == Kind::kMarked) return Declared::kFits;

  const UConverterType type = ucnv_getType(declared.get());
  if (m_kind == Kind::kWide)
    return isSameWidth(ucnv_getType(m_converter.get()), type) ? Declared::kFits : Declared::kImpossible;
  if (m_kind == Kind::kAscii && type == UCNV_UTF8) return Declared::kFits;
  if (type == UCNV_UTF8 || ucnv_getMinCharSize(declared.get()) > 1) return Declared::kImpossible;

  m_converter = std::move(declared);
  m_input.rewind();
  m_state = State::kMore;
  m_bytes = {};
  m_hasAllBytes = false;
  m_units.clear();
  m_unitsAt = 0;
  m_stateAfterUnits = State::kMore;
  return Declared::kElse;
}

std::size_t Decoder::read(char* out, std::size_t size) {
  return m_converter == nullptr ? readUtf8(out, size) : readConverted(out, size);
}

std::size_t Decoder::readUtf8(char* out, std::size_t size) {
  std::size_t written = 0;
  while (m_state == State::kMore && size - written >= kMaxCharacter) {
    const std::size_t wanted = std::min(kChunk, size - written);
    const std::string_view bytes = m_input.read(wanted);
    const bool isLast = bytes.size() < wanted;
    const std::size_t length = lengthOfText(bytes);
    std::copy_n(bytes.data(), length, out + written);
    written += length;

    const std::string_view rest = bytes.substr(length);
    if (rest.empty())
      m_state = isLast ? State::kEnd : State::kMore;
    else if (rest.front() == '\0')
      m_state = State::kNul;
    else if (isLast || rest.size() >= kMaxCharacter)
      m_state = State::kMalformed;
    else
      m_input.putBack(rest.size());  // maybe the start of a character
  }
  return written;
}

std::size_t Decoder::readConverted(char* out, std::size_t size) {
  constexpr char16_t kNextLine = 0x85;
  char* at = out;
  while (size - static_cast<std::size_t>(at - out) >= kMaxCharacter) {
    if (m_unitsAt == m_units.size() && !convert()) {
      m_state = m_stateAfterUnits;
      break;
    }
    const char16_t* const begin = m_units.data() + m_unitsAt;
    const char16_t* next = begin;
    char32_t character = nextCharacter(next, m_units.data() + m_units.size());
    if (character == 0 || (character >= 0xD800 && character < 0xE000)) {
      m_state = character == 0 ? State::kNul : State::kMalformed;
      break;
    }
    // EBCDIC's own end of a line, beside which it has that of ASCII.
    if (character == kNextLine && m_kind == Kind::kEbcdic) character = '\n';
    m_unitsAt += static_cast<std::size_t>(next - begin);
    at = putUtf8(character, at);
  }
  return static_cast<std::size_t>(at - out);
}

/// Converts further bytes when all units are written. Gives whether there are units now; a pair of surrogates is whole
/// but for what is malformed.
bool Decoder::convert() {
  m_units.clear();
  m_unitsAt = 0;
  while (m_stateAfterUnits == State::kMore) {
    if (m_bytes.empty() && !m_hasAllBytes) {
      m_bytes = m_input.read(kChunk);
      m_hasAllBytes = m_bytes.size() < kChunk;
    }
    const std::size_t before = m_units.size();
    m_units.resize(before + kUnits);
    char16_t* target = &m_units[before];
    const char* source = m_bytes.data();
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(m_converter.get(), &target, m_units.data() + m_units.size(), &source, source + m_bytes.size(),
                   nullptr, m_hasAllBytes ? 1 : 0, &status);
    if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
    m_bytes.remove_prefix(static_cast<std::size_t>(source - m_bytes.data()));
    m_units.resize(static_cast<std::size_t>(target - m_units.data()));
    if (status != U_BUFFER_OVERFLOW_ERROR) {
      if (U_FAILURE(status))
        m_stateAfterUnits = State::kMalformed;
      else if (m_hasAllBytes)
        m_stateAfterUnits = State::kEnd;
    }
    if (!m_units.empty() && !isLeadSurrogate(m_units.back())) break;
  }
  return !m_units.empty();
}

}  // namespace trnidom_detail
