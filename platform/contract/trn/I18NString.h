#ifndef TRN_I18NSTRING_H
#define TRN_I18NSTRING_H

/// Unicode text: the type of every name and value.
///
/// A value: copies are independent of each other. Whether a moved-from text is empty does not matter.
///
/// Threads: constant texts are shared. Const operations are safe on one object from any number of threads at once.
class I18NString {
 public:
  /// Told of a malformed sequence: the context, the bytes and their number. The helpers give none.
  using ConversionCallback = void (*)(void* context, const char* bytes, unsigned long length);

  /// The empty text. Does not throw.
  I18NString();

  /// Converts 8-bit text; implicit, so that literals serve as texts.
  /// @param text      not kept; null is empty.
  /// @param encoding  null is UTF-8. The helpers give no other.
  /// @param length    number of bytes; -1 runs to the NUL. The helpers give no other.
  /// @param callback  told of malformed sequences. The helpers give null.
  /// @param context   handed to the callback. The helpers give null.
  I18NString(const char* text, const char* encoding = nullptr, long length = -1, ConversionCallback callback = nullptr,
             void* context = nullptr);

  /// The same text.
  I18NString(const I18NString& other);

  /// Becomes the same text.
  I18NString& operator=(const I18NString& other);
  ~I18NString();

  /// Whether it has no character.
  bool empty() const;

  /// Appends the other text, which may be this one. A loop of these should cost time linear in the result.
  I18NString& operator+=(const I18NString& other);
};

/// The two texts joined.
/// @relates I18NString
I18NString operator+(const I18NString& left, const I18NString& right);

/// Exact comparison, character by character, without regard to locale, case or normalisation.
/// @relates I18NString
bool operator==(const I18NString& left, const I18NString& right);

/// The opposite of `==`.
/// @relates I18NString
bool operator!=(const I18NString& left, const I18NString& right);

/// A total order that agrees with `==`. It is the order in which maps keyed by text are written: by UTF-16 code unit.
/// @relates I18NString
bool operator<(const I18NString& left, const I18NString& right);

#endif
