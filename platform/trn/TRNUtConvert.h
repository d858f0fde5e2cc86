#ifndef TRN_TRNUTCONVERT_H
#define TRN_TRNUTCONVERT_H

#include <trn/I18NString.h>
#include <trn/TRNExport.h>

/// Numbers as text, in decimal.
///
/// Threads: safe from any number of threads at once.
class TRN_API TRNUtConvert {
 public:
  /// Writes a signed number. With `(value, 1, '0', 0, '+', '-')` this is `printf("%ld")`.
  /// @param value      the number.
  /// @param minDigits  fewest digits; shorter numbers are filled with `padDigit` in front.
  /// @param padDigit   what to fill with.
  /// @param width      fewest characters, sign included; shorter texts are filled with spaces in front.
  /// @param plus       never written; positive numbers carry no sign.
  /// @param minus      written before a negative number.
  static I18NString longCvt(long value, int minDigits, char padDigit, int width, char plus, char minus);

  /// The same for an unsigned number; `(value, 1, '0', 0, '+', '-')` is `printf("%lu")`.
  static I18NString ulongCvt(unsigned long value, int minDigits, char padDigit, int width, char plus, char minus);
};

#endif
