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

// How termination is kept. ICU holds a short text inside its object and a longer one in a counted buffer that copies
// share. Every text is terminated when it is built, so a shared buffer always is; only a text inside the object has to
// be terminated again when the object is copied or moved, because ICU copies no more than its characters.

namespace {

using icu::UnicodeString;

constexpr char16_t kReplacement = 0xFFFD;
/// A text shorter than this fits inside ICU's object together with its NUL.
constexpr std::size_t kShortLength = (UNISTR_OBJECT_SIZE - sizeof(void*) - 2) / sizeof(char16_t);
constexpr std::size_t kMaxLength = std::numeric_limits<std::int32_t>::max() - 1;

UnicodeString& icuText(unsigned char* storage) noexcept {
  return *std::launder(reinterpret_cast<UnicodeString*>(storage));
}

const UnicodeString& icuText(const unsigned char* storage) noexcept {
  return *std::launder(reinterpret_cast<const UnicodeString*>(storage));
}

/// Whether the characters of a text are inside the object itself.
bool isInside(const UnicodeString& text) noexcept {
  const auto characters = reinterpret_cast<std::uintptr_t>(text.getBuffer());
  return characters - reinterpret_cast<std::uintptr_t>(&text) < sizeof text;
}

/// Terminates a text whose characters are inside the object itself; there is room, for the text had a NUL where it
/// came from.
void terminateShort(UnicodeString& text) noexcept {
  if (isInside(text)) const_cast<char16_t*>(text.getBuffer())[text.length()] = 0;
}

/// Copies fewer than kShortLength code units, by words of which the last ones may overlap: a call would cost more.
inline void copyFew(unsigned char* to, const char16_t* text, std::size_t length) noexcept {
  const auto copy = [&](std::size_t at, std::size_t units) {
    std::memcpy(to + at * sizeof(char16_t), text + at, units * sizeof(char16_t));
  };
  if (length >= 8) {
    static_assert(kShortLength <= 32);
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

/// A text of each short length. Texts are made and moved by the hundred thousand when a document is read, and most are
/// short, so this is done by the bytes: ICU's object has no pointer into itself and nobody knows its address.
class ShortTexts {
 public:
  ShortTexts() {
    for (std::size_t length = 0; length < kShortLength; ++length)
      m_texts[length] = UnicodeString(0, u' ', static_cast<std::int32_t>(length));
  }

  void make(unsigned char* storage, const char16_t* text, std::size_t length) const noexcept {
    std::memcpy(storage, static_cast<const void*>(&m_texts[length]), kHead);
    copyFew(storage + kHead, text, length);
    std::memset(storage + kHead + length * sizeof(char16_t), 0, sizeof(char16_t));
  }

 private:
  /// What the object has before its characters, which fill it to the end.
  static constexpr std::size_t kHead = sizeof(UnicodeString) - kShortLength * sizeof(char16_t);

  UnicodeString m_texts[kShortLength];
};

/// Never destroyed: texts are still made while static objects go.
const ShortTexts& shortTexts() noexcept {
  alignas(ShortTexts) static unsigned char place[sizeof(ShortTexts)];
  static const auto* const theTexts = new (place) ShortTexts;
  return *theTexts;
}

/// Makes the text that another was moved out of a proper empty one.
void makeEmpty(UnicodeString& text) noexcept {
  text.remove();
  terminateShort(text);
}

/// Terminates a text that was changed.
/// @throws std::bad_alloc when ICU had no memory for it; the text is empty then.
void finish(UnicodeString& text) {
  if (!text.isBogus() && text.getTerminatedBuffer() != nullptr) return;
  makeEmpty(text);
  throw std::bad_alloc();
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

void assignUtf8(UnicodeString& text, const char* bytes, std::size_t length, const Listener& listener) {
  // No sequence of bytes has more code units than bytes.
  char16_t* const buffer = openBuffer(text, length);
  char16_t* end = buffer;
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
  closeBuffer(text, buffer, static_cast<std::size_t>(end - buffer));
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

void assignConverted(UnicodeString& text, UConverter* converter, const char* bytes, std::size_t length,
                     const Listener& listener) {
  ConversionListener target{listener, nullptr};
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setToUCallBack(converter, onMalformed, &target, nullptr, nullptr, &status);

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
  finish(text);
}

}  // namespace

I18NString::I18NString() noexcept {
  static_assert(sizeof(m_storage) >= sizeof(UnicodeString) && alignof(I18NString) >= alignof(UnicodeString));
  terminateShort(*new (m_storage) UnicodeString);
}

// Once the empty text is there, whatever throws below leaves nothing behind.
I18NString::I18NString(const char* text, const char* encoding, long length, ConversionCallback callback, void* context)
    : I18NString() {
  Converter converter;
  if (encoding != nullptr) converter = openConverter(encoding);
  if (text == nullptr) return;

  const std::size_t size = length < 0 ? std::strlen(text) : static_cast<std::size_t>(length);
  const Listener listener{callback, context};
  if (!converter || ucnv_getType(converter.get()) == UCNV_UTF8) {
    assignUtf8(icuText(m_storage), text, size, listener);
  } else {
    assignConverted(icuText(m_storage), converter.get(), text, size, listener);
  }
}

I18NString::I18NString(std::u16string_view text) {
  if (text.size() < kShortLength) {
    shortTexts().make(m_storage, text.data(), text.size());
    return;
  }
  UnicodeString& target = *new (m_storage) UnicodeString;  // holds nothing when there is no memory for more
  char16_t* const buffer = openBuffer(target, text.size());
  std::copy_n(text.data(), text.size(), buffer);
  closeBuffer(target, buffer, text.size());
}

I18NString::I18NString(const I18NString& other) {
  const UnicodeString& text = icuText(other.m_storage);
  // A short text is copied by the words that it was made with: whole, it would have to wait for them.
  if (isInside(text))
    shortTexts().make(m_storage, text.getBuffer(), static_cast<std::size_t>(text.length()));
  else
    new (m_storage) UnicodeString(text);
}

I18NString::I18NString(I18NString&& other) noexcept {
  const UnicodeString& text = icuText(other.m_storage);
  if (isInside(text))
    shortTexts().make(m_storage, text.getBuffer(), static_cast<std::size_t>(text.length()));
  else
    std::memcpy(m_storage, other.m_storage, sizeof(UnicodeString));
  terminateShort(*new (other.m_storage) UnicodeString);
}

I18NString& I18NString::operator=(const I18NString& other) {
  if (this == &other) return *this;
  icuText(m_storage) = icuText(other.m_storage);
  terminateShort(icuText(m_storage));
  return *this;
}

I18NString& I18NString::operator=(I18NString&& other) noexcept {
  if (this == &other) return *this;
  icuText(m_storage) = std::move(icuText(other.m_storage));
  terminateShort(icuText(m_storage));
  makeEmpty(icuText(other.m_storage));
  return *this;
}

I18NString::~I18NString() {
  UnicodeString& text = icuText(m_storage);
  if (!isInside(text)) text.~UnicodeString();  // otherwise it holds nothing
}

std::size_t I18NString::length() const noexcept {
  return static_cast<std::size_t>(icuText(m_storage).length());
}

const char16_t* I18NString::c_str() const noexcept {
  return icuText(m_storage).getBuffer();
}

std::u16string_view I18NString::view() const noexcept {
  const UnicodeString& text = icuText(m_storage);
  return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

std::string I18NString::toUtf8() const {
  const UnicodeString& text = icuText(m_storage);
  std::string result(length(), '\0');  // exact for ASCII
  for (;;) {
    UErrorCode status = U_ZERO_ERROR;
    std::int32_t needed = 0;
    u_strToUTF8WithSub(result.data(), static_cast<std::int32_t>(result.size()), &needed, text.getBuffer(),
                       text.length(), kReplacement, nullptr, &status);
    if (U_FAILURE(status) && status != U_BUFFER_OVERFLOW_ERROR) throw std::bad_alloc();
    result.resize(static_cast<std::size_t>(needed));
    if (U_SUCCESS(status)) return result;
  }
}

I18NString& I18NString::operator+=(const I18NString& other) {
  UnicodeString& text = icuText(m_storage);
  const std::int32_t length = text.length();
  const std::int64_t needed = std::int64_t{length} + static_cast<std::int64_t>(other.length()) + 1;
  if (needed > text.getCapacity() && needed <= static_cast<std::int64_t>(kMaxLength)) {
    // Room for more, since many texts grow by a little at a time; terminating one makes just enough for the NUL.
    const std::int64_t room = std::min(needed + needed / 2, static_cast<std::int64_t>(kMaxLength));
    if (text.getBuffer(static_cast<std::int32_t>(room)) != nullptr) text.releaseBuffer(length);
  }
  text.append(icuText(other.m_storage));
  finish(text);
  return *this;
}

bool I18NString::equals(const I18NString& other) const noexcept {
  const std::u16string_view left = view();
  const std::u16string_view right = other.view();
  if (left.size() != right.size()) return false;
  // Most are short names, for which a call of memcmp costs as much as the comparison.
  for (std::size_t i = 0; i < left.size(); ++i)
    if (left[i] != right[i]) return false;
  return true;
}

bool I18NString::precedes(const I18NString& other) const noexcept {
  return icuText(m_storage).compare(icuText(other.m_storage)) < 0;
}

std::ostream& operator<<(std::ostream& out, const I18NString& text) {
  return out << text.toUtf8();
}

std::size_t std::hash<I18NString>::operator()(const I18NString& text) const noexcept {
  return std::hash<std::u16string_view>()(std::u16string_view(text.c_str(), text.length()));
}
