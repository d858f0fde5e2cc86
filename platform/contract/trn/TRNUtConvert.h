#ifndef TRN_TRNUTCONVERT_H
#define TRN_TRNUTCONVERT_H

#include <trn/I18NString.h>

/// Numbers as text. The helpers give (value, 1, '0', 0, '+', '-') and require plain decimal for it: at least one digit,
/// no padding, no plus sign, a leading '-' for negative values.
class TRNUtConvert {
 public:
  /// A signed number; as `printf("%ld")` for what the helpers give.
  static I18NString longCvt(long value, int minDigits, char padDigit, int width, char plus, char minus);

  /// An unsigned number; as `printf("%lu")` for what the helpers give.
  static I18NString ulongCvt(unsigned long value, int minDigits, char padDigit, int width, char plus, char minus);
};

#endif
