#ifndef TRN_TRNASSERTERROR_H
#define TRN_TRNASSERTERROR_H

#include <exception>
#include <memory>
#include <string>

#include <trn/I18NString.h>
#include <trn/TRNExport.h>
#include <trn/TRNFileLocation.h>

/// A failed invariant: what was asserted and where. Thrown by `TRN_ASSERT`, that is, by a helper's `Take` or getters
/// for a document that is not what the reader requires, and by `Make` for a required value that is missing.
class TRN_API TRNAssertError : public std::exception {
 public:
  /// An error that is yet to be thrown, with `hurl` or `throw`.
  TRNAssertError(long code, const I18NString& message, const TRNFileLocation& location);

  /// A copy, as catching by value and rethrowing make them; it cannot fail.
  TRNAssertError(const TRNAssertError&) noexcept;
  TRNAssertError& operator=(const TRNAssertError&) = delete;
  ~TRNAssertError() override;

  /// The code it was made or hurled with; 0 of every assertion.
  long getCode() const noexcept { return m_code; }

  /// The assertion's own source text, such as `TRN_ASSERT(!elem.isNull());`.
  const I18NString& getMessage() const noexcept { return m_message; }

  /// The source file and line of the assertion.
  const TRNFileLocation& getLocation() const noexcept { return m_location; }

  /// `FILE(LINE): MESSAGE` in UTF-8, valid as long as the error.
  const char* what() const noexcept override { return m_what->c_str(); }

  /// Throws a copy of this error that carries the given code and location.
  /// @param location  what `getLocation` gives of the copy.
  /// @param code      what `getCode` gives of the copy.
  /// @param origin    name of the throwing mechanism, "TRN_THROW"; not kept.
  [[noreturn]] void hurl(const TRNFileLocation& location, long code, const char* origin) const;

 private:
  long m_code;
  I18NString m_message;
  TRNFileLocation m_location;
  std::shared_ptr<const std::string> m_what;  // shared, so that copying an error cannot fail
};

#endif
