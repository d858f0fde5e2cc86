#include <trn/I18NString.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <exception>
#include <limits>
#include <memory>
#include <new>
#include <ostream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>
#include <unicode/utf8.h>

namespace {

using icu::UnicodeString;

constexpr char16_t kReplacement = 0xFFFD;
constexpr std::size_t kMaxLength = std::numeric_limits<std::int32_t>::max() - 1;

/// Copies at most 32 code units, by words of which the last ones may overlap: a call would cost more.
inline void copyFew(char16_t* to, const char16_t* from, std::size_t length) noexcept {
  const auto copy = [&](std::size_t at, std::size_t units) {
    std::memcpy(to + at, from + at, units * sizeof(char16_t));
  };
  if (length >= 8) {
    copy(0, 8);
    if (length > 16) copy(8, 8);
    if (length > 24) copy(16, 8);
    copy(length - 8, 8);
  } else if (length >= 4) {
    copy(0, 4);
    copy(length - 4, 4);
  } else if (length >= 2) {
    copy(0, 2);
    copy(length - 2, 2);
  } else if (length == 1) {
    copy(0, 1);
  }
}

/// Room to write a text of up to `length` code units; to be closed.
char16_t* openBuffer(UnicodeString& text, std::size_t length) {
  char16_t* const buffer = length <= kMaxLength ? text.getBuffer(static_cast<std::int32_t>(length + 1)) : nullptr;
  if (buffer == nullptr) throw std::bad_alloc();
  return buffer;
}

/// Ends the writing that `openBuffer` began.
void closeBuffer(UnicodeString& text, char16_t* buffer, std::size_t length) noexcept {
  buffer[length] = 0;
  text.releaseBuffer(static_cast<std::int32_t>(length));
}

/// Whom to tell of malformed sequences.
struct Listener {
  I18NString::ConversionCallback callback;
  void* context;

  void tell(const char* bytes, std::size_t length) const {
    if (callback != nullptr) callback(context, bytes, length);
  }
};

// ICU's macro narrows on purpose.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
/// The character at `at`, which moves behind it; negative for a malformed sequence.
inline UChar32 nextUtf8(const char* bytes, std::size_t& at, std::size_t length) noexcept {
  UChar32 character = 0;
  U8_NEXT(bytes, at, length, character);
  return character;
}
#pragma GCC diagnostic pop

/// Converts to UTF-16, which has no more code units than there are bytes, and gives their number.
std::size_t convertUtf8(const char* bytes, std::size_t length, const Listener& listener, char16_t* const out) {
  char16_t* end = out;
  for (std::size_t at = 0; at < length;) {
    const std::size_t begin = at;
    UChar32 character = nextUtf8(bytes, at, length);
    if (character < 0) {
      listener.tell(bytes + begin, at - begin);
      character = kReplacement;
    }
    if (character <= 0xFFFF) {
      *end++ = static_cast<char16_t>(character);
    } else {
      *end++ = U16_LEAD(character);
      *end++ = U16_TRAIL(character);
    }
  }
  return static_cast<std::size_t>(end - out);
}

struct CloseConverter {
  void operator()(UConverter* converter) const noexcept { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

Converter openConverter(const char* encoding) {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(*encoding != '\0' ? ucnv_open(encoding, &status) : nullptr);
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  if (!converter) throw std::invalid_argument("unknown encoding \"" + std::string(encoding) + "\"");
  return converter;
}

/// A listener called from inside ICU, whose frames no exception may cross.
struct ConversionListener {
  Listener listener;
  std::exception_ptr failure;
};

extern "C" void onMalformed(const void* context, UConverterToUnicodeArgs* args, const char* bytes, std::int32_t length,
                            UConverterCallbackReason reason, UErrorCode* status) {
  if (reason > UCNV_IRREGULAR) return;  // no sequence, but the converter's own start and end
  auto* const target = static_cast<ConversionListener*>(const_cast<void*>(context));
  try {
    target->listener.tell(bytes, static_cast<std::size_t>(length));
  } catch (...) {
    target->failure = std::current_exception();
    *status = U_ILLEGAL_CHAR_FOUND;
    return;
  }
  *status = U_ZERO_ERROR;
  ucnv_cbToUWriteUChars(args, &kReplacement, 1, 0, status);
}

UnicodeString converted(UConverter* converter, const char* bytes, std::size_t length, const Listener& listener) {
  ConversionListener target{listener, nullptr};
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setToUCallBack(converter, onMalformed, &target, nullptr, nullptr, &status);

  UnicodeString text;
  const char* const end = bytes + length;
  do {
    char16_t chunk[512];
    char16_t* chunkEnd = chunk;
    status = U_ZERO_ERROR;
    ucnv_toUnicode(converter, &chunkEnd, std::end(chunk), &bytes, end, nullptr, true, &status);
    if (target.failure) std::rethrow_exception(target.failure);
    text.append(chunk, static_cast<std::int32_t>(chunkEnd - chunk));
  } while (status == U_BUFFER_OVERFLOW_ERROR);
  if (status == U_MEMORY_ALLOCATION_ERROR) throw std::bad_alloc();
  if (U_FAILURE(status)) throw std::runtime_error(std::string("text conversion failed: ") + u_errorName(status));
  return text;
}

/// Makes room for that many code units and half as many more, since many texts grow by a little at a time.
void reserveMore(UnicodeString& text, std::size_t needed) noexcept {
  if (needed > kMaxLength || text.getCapacity() > static_cast<std::int64_t>(needed)) return;
  const std::int32_t length = text.length();
  const auto room = static_cast<std::int32_t>(std::min(needed + needed / 2, kMaxLength));
  if (text.getBuffer(room) != nullptr) text.releaseBuffer(length);
}

}  // namespace

/// The text as ICU has it, when it is not short. Copies share its characters.
struct I18NString::Long {
  static UnicodeString& of(I18NString& text) noexcept {
    return *std::launder(reinterpret_cast<UnicodeString*>(text.m_long));
  }
  static const UnicodeString& of(const I18NString& text) noexcept {
    return *std::launder(reinterpret_cast<const UnicodeString*>(text.m_long));
  }

  /// Builds ICU's object in a short text.
  template <typename Source>
  static void build(I18NString& text, Source&& source) noexcept {
    static_assert(sizeof(text.m_long) >= sizeof(UnicodeString) && alignof(I18NString) >= alignof(UnicodeString));
    const UnicodeString& built = *new (text.m_long) UnicodeString(std::forward<Source>(source));
    text.m_units = built.getBuffer();
    text.m_length = static_cast<std::size_t>(built.length());
  }

  /// Gives an empty text the characters, short or long.
  /// @throws std::bad_alloc when ICU had no memory for them.
  static void assign(I18NString& text, UnicodeString&& characters) {
    if (characters.isBogus() || characters.getTerminatedBuffer() == nullptr) throw std::bad_alloc();
    const auto length = static_cast<std::size_t>(characters.length());
    if (length > kShortLength) return build(text, std::move(characters));
    copyFew(text.m_short, characters.getBuffer(), length + 1);
    text.m_length = length;
  }
};

// Once the empty text is there, whatever throws below leaves nothing behind.
I18NString::I18NString(const char* text, const char* encoding, long length, ConversionCallback callback, void* context)
    : I18NString() {
  Converter converter;
  if (encoding != nullptr) converter = openConverter(encoding);
  if (text == nullptr) return;

  const std::size_t size = length < 0 ? std::strlen(text) : static_cast<std::size_t>(length);
  const Listener listener{callback, context};
  if (converter && ucnv_getType(converter.get()) != UCNV_UTF8) {
    Long::assign(*this, converted(converter.get(), text, size, listener));
  } else if (size <= kShortLength) {
    const std::size_t units = convertUtf8(text, size, listener, m_short);
    m_short[units] = u'\0';
    m_length = units;
  } else {
    UnicodeString characters;
    char16_t* const buffer = openBuffer(characters, size);
    closeBuffer(characters, buffer, convertUtf8(text, size, listener, buffer));
    Long::assign(*this, std::move(characters));
  }
}

I18NString::I18NString(std::u16string_view text) {
  if (text.size() <= kShortLength) {
    copyFew(m_short, text.data(), text.size());
    m_short[text.size()] = u'\0';
    m_length = text.size();
    return;
  }
  makeLong(text);
}

void I18NString::makeLong(std::u16string_view text) {
  UnicodeString characters;
  char16_t* const buffer = openBuffer(characters, text.size());
  std::copy_n(text.data(), text.size(), buffer);
  closeBuffer(characters, buffer, text.size());
  Long::assign(*this, std::move(characters));
}

I18NString::I18NString(const I18NString& other) {
  copy(other);
}

I18NString::I18NString(I18NString&& other) noexcept {
  move(other);
}

I18NString& I18NString::operator=(const I18NString& other) {
  if (this == &other) return *this;
  makeEmpty();
  copy(other);
  return *this;
}

I18NString& I18NString::operator=(I18NString&& other) noexcept {
  if (this == &other) return *this;
  makeEmpty();
  move(other);
  return *this;
}

/// Of a short text, and another such.
inline void I18NString::copyShort(const I18NString& other) noexcept {
  copyFew(m_short, other.m_short, other.m_length + 1);
  m_length = other.m_length;
}

/// Of a short text.
void I18NString::copy(const I18NString& other) noexcept {
  if (other.isShort())
    copyShort(other);
  else
    Long::build(*this, Long::of(other));
}

/// Of a short text.
void I18NString::move(I18NString& other) noexcept {
  if (other.isShort()) {
    copyShort(other);
    other.m_length = 0;
    other.m_short[0] = u'\0';
  } else {
    Long::build(*this, std::move(Long::of(other)));
    other.makeEmpty();
  }
}

void I18NString::freeLong() noexcept {
  Long::of(*this).~UnicodeString();
}

void I18NString::makeEmpty() noexcept {
  if (!isShort()) freeLong();
  m_units = m_short;
  m_length = 0;
  m_short[0] = u'\0';
}

bool I18NString::startsWith(const char16_t* units, std::size_t length) const noexcept {
  // Most are short names, for which a call of memcmp costs as much as the comparison.
  constexpr std::size_t kWord = sizeof(std::uint64_t) / sizeof(char16_t);
  const auto same = [&](std::size_t at) {
    std::uint64_t ours;
    std::uint64_t theirs;
    std::memcpy(&ours, m_units + at, sizeof ours);
    std::memcpy(&theirs, units + at, sizeof theirs);
    return ours == theirs;
  };
  if (length < kWord) {
    for (std::size_t at = 0; at < length; ++at)
      if (m_units[at] != units[at]) return false;
    return true;
  }
  for (std::size_t at = 0; at < length - kWord; at += kWord)
    if (!same(at)) return false;
  return same(length - kWord);
}

std::string I18NString::toUtf8() const {
  std::string result(m_length, '\0');  // exact for ASCII
  for (;;) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t needed = 0;
    u_strToUTF8WithSub(result.data(), static_cast<std::int32_t>(result.size()), &needed, m_units,
                       static_cast<std::int32_t>(m_length), kReplacement, nullptr, &status);
    if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR) throw std::bad_alloc();
    result.resize(static_cast<std::size_t>(needed));
    if (U_SUCCESS(status)) return result;
  }
}

I18NString& I18NString::operator+=(const I18NString& other) {
  if (this == &other) return *this += I18NString(other);
  const std::size_t length = m_length + other.m_length;
  if (length <= kShortLength) {
    copyFew(m_short + m_length, other.m_short, other.m_length + 1);
    m_length = length;
    return *this;
  }
  UnicodeString characters;
  if (!isShort()) characters = std::move(Long::of(*this));
  reserveMore(characters, length);
  if (isShort()) characters.append(m_short, static_cast<std::int32_t>(m_length));
  makeEmpty();
  characters.append(other.m_units, static_cast<std::int32_t>(other.m_length));
  Long::assign(*this, std::move(characters));
  return *this;
}

std::ostream& operator<<(std::ostream& out, const I18NString& text) {
  return out << text.toUtf8();
}

std::size_t std::hash<I18NString>::operator()(const I18NString& text) const noexcept {
  return std::hash<std::u16string_view>()(text.view());
}
