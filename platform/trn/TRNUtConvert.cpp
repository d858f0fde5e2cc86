#include <trn/TRNUtConvert.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <string>

namespace {

/// The magnitude's digits behind the sign, which is empty for none, filled up as `longCvt` says.
I18NString decimal(unsigned long magnitude, const std::string& sign, int minDigits, char padDigit, int width) {
  char digits[std::numeric_limits<unsigned long>::digits10 + 1];
  const char* const end = std::to_chars(std::begin(digits), std::end(digits), magnitude).ptr;

  const auto count = static_cast<std::size_t>(end - digits);
  const auto wanted = static_cast<std::size_t>(std::max(minDigits, 0));
  std::string text = sign;
  text.append(wanted > count ? wanted - count : 0, padDigit);
  text.append(digits, count);

  const auto total = static_cast<std::size_t>(std::max(width, 0));
  if (text.size() < total) text.insert(0, total - text.size(), ' ');
  return {text.data(), nullptr, static_cast<long>(text.size())};
}

}  // namespace

I18NString TRNUtConvert::longCvt(long value, int minDigits, char padDigit, int width, char plus, char minus) {
  static_cast<void>(plus);
  const auto bits = static_cast<unsigned long>(value);
  if (value < 0) return decimal(0UL - bits, std::string(1, minus), minDigits, padDigit, width);
  return decimal(bits, std::string(), minDigits, padDigit, width);
}

I18NString TRNUtConvert::ulongCvt(unsigned long value, int minDigits, char padDigit, int width, char plus, char minus) {
  static_cast<void>(plus);
  static_cast<void>(minus);
  return decimal(value, std::string(), minDigits, padDigit, width);
}
