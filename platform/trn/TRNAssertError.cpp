#include <trn/TRNAssertError.h>

namespace {

std::string describe(const I18NString& message, const TRNFileLocation& location) {
  return std::string(location.getFile()) + "(" + std::to_string(location.getLine()) + "): " + message.toUtf8();
}

}  // namespace

TRNAssertError::TRNAssertError(long code, const I18NString& message, const TRNFileLocation& location)
    : m_code(code),
      m_message(message),
      m_location(location),
      m_what(std::make_shared<const std::string>(describe(message, location))) {}

TRNAssertError::TRNAssertError(const TRNAssertError&) noexcept = default;

TRNAssertError::~TRNAssertError() = default;

void TRNAssertError::hurl(const TRNFileLocation& location, long code, const char* origin) const {
  static_cast<void>(origin);
  throw TRNAssertError(code, m_message, location);
}
