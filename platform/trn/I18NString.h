#ifndef TRN_I18NSTRING_H
#define TRN_I18NSTRING_H

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include <trn/TRNExport.h>

/// Unicode text: the type of every name and value.
///
/// Text is held as UTF-16 and compared exactly, code unit by code unit, without regard to locale or normalisation.
/// It is immutable by habit: assignment and `+=` are the only operations that change an object. Copying a long text
/// shares its characters.
///
/// Threads: const operations are safe on one object from any number of threads at once, `c_str()` included.
/// Exhausted memory is `std::bad_alloc` throughout.
class TRN_API I18NString {
 public:
  /// Told of each malformed sequence while bytes are converted: the caller's context, the bytes and their number.
  /// It may throw, which abandons the conversion; when it returns, the sequence becomes U+FFFD.
  using ConversionCallback = void (*)(void* context, const char* bytes, std::size_t length);

  /// The empty text.
  I18NString() noexcept { m_short[0] = u'\0'; }

  /// Converts 8-bit text. Null text is empty.
  /// @param text      the bytes; not kept.
  /// @param encoding  name of their encoding; null is UTF-8.
  /// @param length    number of bytes; -1 runs to the NUL.
  /// @param callback  told of malformed sequences; may be null.
  /// @param context   handed to the callback.
  /// @throws std::invalid_argument for an unknown encoding, naming it; whatever the callback throws.
  I18NString(const char* text, const char* encoding = nullptr, long length = -1,  // NOLINT: implicit by design
             ConversionCallback callback = nullptr, void* context = nullptr);

  /// The text of those UTF-16 code units.
  explicit I18NString(std::u16string_view text);

  /// The text of `length` UTF-16 code units; null text with length 0 is empty.
  static I18NString fromUtf16(const char16_t* text, std::size_t length) {
    return I18NString(std::u16string_view(text, length));
  }

  /// The same text; a long one is shared, not copied.
  I18NString(const I18NString& other);

  /// Leaves the other text empty.
  I18NString(I18NString&& other) noexcept;

  /// Becomes the same text; a long one is shared, not copied.
  I18NString& operator=(const I18NString& other);

  /// Leaves the other text empty, but for an assignment to itself, which changes nothing.
  I18NString& operator=(I18NString&& other) noexcept;

  ~I18NString() {
    if (!isShort()) freeLong();
  }

  /// Whether the text has no code unit.
  bool empty() const noexcept { return m_length == 0; }

  /// Length in UTF-16 code units.
  std::size_t length() const noexcept { return m_length; }

  /// The text as NUL-terminated UTF-16, valid while this object is unchanged.
  const char16_t* c_str() const noexcept { return m_units; }

  /// The same with its length; a NUL follows.
  std::u16string_view view() const noexcept { return {m_units, m_length}; }

  /// The text as UTF-8; a lone surrogate becomes U+FFFD.
  std::string toUtf8() const;

  /// Appends the other text, which may be this one.
  /// @throws std::bad_alloc, and this text is empty then.
  I18NString& operator+=(const I18NString& other);

  /// The two texts joined.
  friend I18NString operator+(const I18NString& left, const I18NString& right) {
    I18NString result(left);
    result += right;
    return result;
  }

  /// Whether both have the same code units.
  friend bool operator==(const I18NString& left, const I18NString& right) noexcept {
    return left.m_length == right.m_length && left.startsWith(right.m_units, right.m_length);
  }

  /// Whether they differ in a code unit.
  friend bool operator!=(const I18NString& left, const I18NString& right) noexcept { return !(left == right); }

  /// A total order by UTF-16 code unit.
  friend bool operator<(const I18NString& left, const I18NString& right) noexcept { return left.view() < right.view(); }

 private:
  struct Long;

  static constexpr std::size_t kShortLength = 31;

  bool isShort() const noexcept { return m_length <= kShortLength; }
  bool startsWith(const char16_t* units, std::size_t length) const noexcept;
  [[gnu::noinline]] void makeLong(std::u16string_view text);  // apart, so that a short text is made with few registers
  void copyShort(const I18NString& other) noexcept;
  void copy(const I18NString& other) noexcept;
  void move(I18NString& other) noexcept;
  void freeLong() noexcept;
  void makeEmpty() noexcept;

  // The characters, which end with a NUL. Those of a short text are in the object itself; for a longer one there is
  // ICU's string object instead, built in place; the source asserts that it fits.
  const char16_t* m_units = m_short;
  std::size_t m_length = 0;
  union {
    char16_t m_short[kShortLength + 1];
    alignas(8) unsigned char m_long[64];
  };
};

/// Writes the text as UTF-8; a lone surrogate becomes U+FFFD.
/// @relates I18NString
TRN_API std::ostream& operator<<(std::ostream& out, const I18NString& text);

/// Hashes the code units, so that equal texts have equal hashes.
template <>
struct std::hash<I18NString> {
  /// The text's hash; the same as long as the process runs.
  TRN_API std::size_t operator()(const I18NString& text) const noexcept;
};

#endif
