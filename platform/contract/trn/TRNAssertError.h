#ifndef TRN_TRNASSERTERROR_H
#define TRN_TRNASSERTERROR_H

#include <trn/I18NString.h>
#include <trn/TRNFileLocation.h>

/// A failed invariant. The helpers throw it through `TRN_ASSERT` and never catch it.
class TRNAssertError {
 public:
  /// An error with that code, message and location, yet to be thrown.
  TRNAssertError(long code, const I18NString& message, const TRNFileLocation& location);

  /// Throws a TRNAssertError with this one's message and that location and code.
  /// @param location  of the assertion.
  /// @param code      0 of an assertion.
  /// @param origin    name of the throwing mechanism, "TRN_THROW".
  [[noreturn]] void hurl(const TRNFileLocation& location, long code, const char* origin) const;
};

#endif
