#ifndef TRNIDOM_TEXT_H
#define TRNIDOM_TEXT_H

#include <string>
#include <string_view>
#include <type_traits>

#include <trn/I18NString.h>
#include <xercesc/util/XercesDefs.hpp>

namespace trnidom_detail {

static_assert(std::is_same_v<XMLCh, char16_t>, "Xerces-C and the core library share one UTF-16 type");

/// UTF-16 by pointer and length. Behind a name or a text that is handed on to Xerces-C there is a NUL.
using Text = std::u16string_view;

inline Text textOf(const I18NString& string) noexcept {
  return string.view();
}

inline I18NString stringOf(Text text) {
  return I18NString(text);
}

inline Text textOf(const XMLCh* text) noexcept {
  return text != nullptr ? Text(text) : Text();
}

/// Whether a node's name is that name, behind which there is a NUL. A name with a NUL in it is no node's.
inline bool isName(const XMLCh* candidate, Text name) noexcept {
  const XMLCh* at = name.data();
  for (; *at == *candidate; ++at, ++candidate)
    if (*at == 0) return at == name.data() + name.size();
  return false;
}

/// Compares names of one document with a name. A document keeps equal names at few addresses, so that most names are
/// told apart without looking at them.
class NameMatcher {
 public:
  explicit NameMatcher(Text name) noexcept : m_name(name) {}

  bool operator()(const XMLCh* name) noexcept {
    if (name == m_same) return true;
    if (name == m_other) return false;
    if (!isName(name, m_name)) {
      m_other = name;
      return false;
    }
    m_same = name;
    return true;
  }

 private:
  Text m_name;
  const XMLCh* m_same = nullptr;
  const XMLCh* m_other = nullptr;
};

}  // namespace trnidom_detail

#endif
