#include "parse/XmlName.h"

#include <algorithm>
#include <limits>
#include <new>
#include <string>

#include "parse/Expat.h"
#include "text/Utf8.h"

namespace trnidom_detail {

namespace {

constexpr bool isNameStart(char16_t unit) noexcept {
  return unit >= 0x80 || (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'_' ||
         unit == u':';
}

constexpr bool isNameCharacter(char16_t unit) noexcept {
  return isNameStart(unit) || (unit >= u'0' && unit <= u'9') || unit == u'-' || unit == u'.';
}

/// Whether expat reads the name in an empty-element tag. No ASCII character in it ends a name.
bool isExpatName(std::u16string_view name) {
  constexpr std::size_t kMaxBytes = 3;  // of a code unit
  std::string tag;
  tag.reserve(name.size() + kMaxBytes);
  tag += '<';
  const char16_t* at = name.data();
  const char16_t* const end = at + name.size();
  while (at != end) {
    const char32_t character = nextCharacter(at, end);
    if (character >= 0xD800 && character < 0xE000) return false;  // a lone surrogate
    char bytes[4];
    tag.append(bytes, putUtf8(character, bytes));
  }
  tag += "/>";
  if (tag.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) throw std::bad_alloc();

  const Expat parser = newExpat();
  if (XML_Parse(parser.get(), tag.data(), static_cast<int>(tag.size()), XML_TRUE) == XML_STATUS_OK) return true;
  if (XML_GetErrorCode(parser.get()) == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
  return false;
}

}  // namespace

bool isXmlName(std::u16string_view name) {
  if (name.empty() || !isNameStart(name.front()) || !std::all_of(name.begin(), name.end(), isNameCharacter))
    return false;
  const auto isAscii = [](char16_t unit) { return unit < 0x80; };
  return std::all_of(name.begin(), name.end(), isAscii) || isExpatName(name);
}

}  // namespace trnidom_detail
