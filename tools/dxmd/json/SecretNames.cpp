#include "SecretNames.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include <tools/dxmd/text/Words.h>

namespace dxmd_tool {

namespace {

using namespace std::string_view_literals;

// A word that ends in one of these, as "cubepassword" does, is one.
constexpr std::string_view kPasswords[] = {"password"sv, "passwd"sv, "passphrase"sv, "pwd"sv, "passwords"sv};
constexpr std::string_view kSecrets[] = {"secret"sv, "secrets"sv, "credential"sv, "credentials"sv, "authorization"sv};
// These are secrets only as the last word.
constexpr std::string_view kLastEnds[] = {"ticket"sv, "passport"sv, "apikey"sv};
constexpr std::string_view kLast[] = {"token"sv, "pass"sv, "accesskey"sv, "privatekey"sv};
constexpr std::string_view kBeforeKey[] = {"api"sv, "access"sv, "private"sv, "encryption"sv, "account"sv};

template <std::size_t N>
bool isAmong(const std::string_view (&words)[N], std::string_view word) {
  return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

template <std::size_t N>
bool endsInAny(const std::string_view (&ends)[N], std::string_view word) {
  return std::any_of(std::begin(ends), std::end(ends), [&](std::string_view end) {
    return word.size() >= end.size() && word.substr(word.size() - end.size()) == end;
  });
}

bool isSmall(char c) {
  return ('a' <= c && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}
bool isCapital(char c) {
  return 'A' <= c && c <= 'Z';
}
bool isDigit(char c) {
  return '0' <= c && c <= '9';
}
bool isWord(char c) {
  return isSmall(c) || isCapital(c) || isDigit(c);
}
bool isSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// The words in small letters, without digits at their ends.
std::vector<std::string> wordsOf(std::string_view text) {
  std::vector<std::string> words;
  for (std::size_t at = 0; at < text.size();) {
    if (!isWord(text[at])) {
      ++at;
      continue;
    }
    const std::size_t start = at++;
    // A word ends before "Pw" of "dbPwd", and before "Ti" of "SSOTicket".
    while (at < text.size() && isWord(text[at]) && !(isCapital(text[at]) && !isCapital(text[at - 1])) &&
           !(isCapital(text[at]) && at + 1 < text.size() && isSmall(text[at + 1])))
      ++at;
    std::size_t end = at;
    while (end > start && isDigit(text[end - 1])) --end;
    if (end > start) words.push_back(lowerCase(text.substr(start, end - start)));
  }
  return words;
}

bool isSecretAnywhere(std::string_view word) {
  return endsInAny(kPasswords, word) || isAmong(kSecrets, word);
}

bool isSecretLast(const std::vector<std::string>& words, std::size_t index) {
  const std::string& word = words[index];
  if (endsInAny(kLastEnds, word) || isAmong(kLast, word)) return true;
  return index > 0 && word == "key" && isAmong(kBeforeKey, words[index - 1]);
}

bool areSecret(const std::vector<std::string>& words) {
  for (std::size_t i = 0; i < words.size(); ++i)
    if (isSecretAnywhere(words[i]) || (i > 0 && isAmong(kPasswords, words[i - 1] + words[i]))) return true;  // PassWord
  return !words.empty() && isSecretLast(words, words.size() - 1);
}

/// Finds the secrets of a text from left to right.
class Finder {
 public:
  explicit Finder(std::string_view text) : m_text(text) {}

  /// Moves to the next secret.
  bool next() {
    while (m_at < m_text.size()) {
      m_at = m_text.find_first_of("=:@>", m_at);
      if (m_at == std::string_view::npos) break;
      const std::size_t sign = m_at++;
      m_begin = m_end = 0;
      switch (m_text[sign]) {
        case '@':
          login(sign);
          break;
        case '>':
          element(sign);
          break;
        default:
          value(sign);
      }
      if (m_begin < m_end) {
        m_done = m_at = m_end;
        return true;
      }
    }
    return false;
  }

  std::size_t begin() const { return m_begin; }
  std::size_t end() const { return m_end; }

 private:
  static constexpr std::size_t kLongestName = 128;
  static constexpr std::size_t kLongestLogin = 512;
  static constexpr std::size_t kLongestTag = 512;
  static constexpr std::size_t kLongestInner = 4096;

  char at(std::size_t index) const { return index < m_text.size() ? m_text[index] : '\0'; }

  std::size_t skipSpaces(std::size_t index) const {
    while (at(index) == ' ' || at(index) == '\t') ++index;
    return index;
  }

  std::size_t find(std::string_view what, std::size_t from) const {
    return std::min(m_text.find(what, from), m_text.size());
  }

  std::size_t findAny(std::string_view characters, std::size_t from) const {
    return std::min(m_text.find_first_of(characters, from), m_text.size());
  }

  /// The words before the sign as far as they may be a name: of prose before a colon, the last three.
  std::vector<std::string> nameBefore(std::size_t sign) const {
    std::size_t end = sign;
    while (end > m_done &&
           (m_text[end - 1] == '"' || m_text[end - 1] == '\'' || m_text[end - 1] == '\\' || isSpace(m_text[end - 1])))
      --end;
    std::size_t begin = end;
    while (begin > m_done && end - begin < kLongestName &&
           ";&?={\"'\n\r,:([<>"sv.find(m_text[begin - 1]) == std::string_view::npos)
      --begin;
    if (m_text[sign] == '=') return wordsOfLast(m_text.substr(begin, end - begin));
    std::vector<std::string> words = wordsOf(m_text.substr(begin, end - begin));
    constexpr std::ptrdiff_t kMost = 3;
    if (words.size() > static_cast<std::size_t>(kMost)) words.erase(words.begin(), words.end() - kMost);
    return words;
  }

  /// The words of what stands behind the last space; with what is before that too when it is just "key" or a number.
  static std::vector<std::string> wordsOfLast(std::string_view segment) {
    std::vector<std::string> words;
    std::size_t begin = segment.size();
    do {
      begin = begin == 0 ? std::string_view::npos : segment.find_last_of(" \t", begin - 1);
      words = wordsOf(begin == std::string_view::npos ? segment : segment.substr(begin));
    } while (begin != std::string_view::npos && (words.empty() || (words.size() == 1 && words[0] == "key")));
    return words;
  }

  /// What stands behind a sign, as far as it may be one value.
  struct Value {
    std::size_t begin;
    std::size_t inside;  ///< behind the quote that it may begin with
    std::size_t end;
    std::size_t closing;  ///< the length of the quote that it ends with
  };

  Value valueBehind(std::size_t sign) const {
    const std::size_t first = skipSpaces(sign + 1);
    std::size_t quote = first;
    while (at(quote) == '\\') ++quote;
    const char open = at(quote);
    if (open == '"' || open == '\'' || open == '{' || open == '[') {
      const char close = open == '{' ? '}' : open == '[' ? ']' : open;
      const bool isQuote = open == close;
      // In a text within a text the quotes are escaped: there the closing one is as the opening one.
      const std::string closing = std::string(m_text.substr(first, quote - first)) + close;
      const std::size_t end = closingAt(quote + 1, closing);
      const bool isClosed = end < m_text.size();
      const std::size_t behind = std::min(end + closing.size(), m_text.size());
      const std::size_t next = skipSpaces(behind);
      if (!isClosed || next == m_text.size() || ";,&)}]>/\n\r?\"'\\"sv.find(m_text[next]) != std::string_view::npos ||
          (isQuote && next > behind))
        return {first, isQuote ? quote + 1 : first, behind, isQuote && isClosed ? closing.size() : 0};
    }
    // Spaces behind "=" may belong to the value.
    return {first, first, findAny(isJsonKey(sign) ? ",}];\n\r"sv : ";\n\r"sv, first), 0};
  }

  /// `name=value` and `name: value`
  void value(std::size_t sign) {
    if (at(sign + 1) == '/' && at(sign + 2) == '/') return;  // of a URL
    if (!areSecret(nameBefore(sign))) return;
    const Value found = valueBehind(sign);
    const std::size_t end = endWithSecrets(found);
    // JSON stays JSON.
    const bool isClosed = found.closing > 0 && m_text[end - 1] == m_text[found.end - 1];
    set(m_text[sign] == '=' ? sign + 1 : found.inside, m_text[sign] == ':' && isClosed ? end - found.closing : end);
  }

  /// The end of the value, or of a secret that begins in it and goes on behind it: in a text of any making a quote may
  /// close one value and open another.
  std::size_t endWithSecrets(const Value& value) const {
    std::size_t end = value.end;
    for (std::size_t sign = findAny("=:", value.begin); sign < end && end < m_text.size();
         sign = findAny("=:", sign + 1)) {
      if (!areSecret(nameBefore(sign))) continue;
      // No further than that, so that the time does not grow with the square of the text: then all the rest is hidden.
      const Finder near(m_text.substr(0, sign + kLongestInner));
      const std::size_t innerEnd = near.valueBehind(sign).end;
      end = std::max(end, innerEnd < near.m_text.size() ? innerEnd : m_text.size());
    }
    return end;
  }

  /// Whether the name before the sign is in quotes, and the sign a colon.
  bool isJsonKey(std::size_t sign) const {
    if (m_text[sign] != ':') return false;
    std::size_t before = sign;
    while (before > 0 && isSpace(m_text[before - 1])) --before;
    return before > 0 && (m_text[before - 1] == '"' || m_text[before - 1] == '\'');
  }

  /// The closing quote: not one that is escaped, nor one that stands twice.
  std::size_t closingAt(std::size_t from, const std::string& closing) const {
    std::size_t end = find(closing, from);
    while (end < m_text.size()) {
      const std::size_t behind = end + closing.size();
      std::size_t escapes = 0;
      while (end - escapes > from && m_text[end - escapes - 1] == '\\') ++escapes;
      const bool isEscaped = closing.back() != '}' && closing.back() != ']' && escapes % 2 == 1;
      const bool isDouble = closing != "]" && m_text.substr(behind, closing.size()) == closing;
      if (!isEscaped && !isDouble) break;
      end = find(closing, isEscaped ? behind : behind + closing.size());
    }
    return end;
  }

  /// `<name ...>value<`
  void element(std::size_t sign) {
    std::size_t open = sign;
    while (open > 0 && sign - open < kLongestTag && m_text[open] != '<') --open;
    if (at(open) != '<' || at(open + 1) == '/' || m_text[sign - 1] == '/') return;
    const std::size_t nameEnd = std::min(findAny(" \t\r\n>", open), sign);
    if (areSecret(wordsOf(m_text.substr(open + 1, nameEnd - open - 1)))) set(sign + 1, find("<", sign));
  }

  /// `//user:password@host`, `user:password@host`, `user/password@base`
  void login(std::size_t sign) {
    if (sign == 0 || m_text[sign - 1] == '[' || m_text[sign - 1] == '/') return;
    // The password may have such a sign too.
    std::size_t last = sign;
    for (std::size_t next = sign + 1; next < m_text.size() && next - sign < kLongestLogin && !isSpace(m_text[next]) &&
                                      "\"'<>;,/?"sv.find(m_text[next]) == std::string_view::npos;
         ++next)
      if (m_text[next] == '@') last = next;
    m_at = last + 1;
    const std::size_t start = startOfLogin(last);
    const std::string_view token = m_text.substr(start, last - start);
    const std::size_t scheme = token.find("://");
    const std::size_t user = scheme == std::string_view::npos ? (token.substr(0, 2) == "//" ? 2 : 0) : scheme + 3;
    const std::size_t parting = token.find_first_of(":/", user);
    if (parting == std::string_view::npos || parting + 1 >= token.size() || parting == user) return;
    if (token.substr(0, parting) == "mailto") return;
    if (user > 0 && token[parting] == '/') return;  // a path behind a host
    if (user > 0 && isPortAndPath(token.substr(parting + 1))) return;
    // It may begin in what was taken for the value of a name.
    set(std::max(start + parting + 1, m_done), last);
  }

  /// Where the run of characters that ends at the sign begins. What was looked at for an earlier sign is not again.
  std::size_t startOfLogin(std::size_t sign) {
    std::size_t start = sign;
    while (start > m_loginSeen && !isSpace(m_text[start - 1]) &&
           "\"'<>;,=({[&?"sv.find(m_text[start - 1]) == std::string_view::npos)
      --start;
    if (start == m_loginSeen && m_loginStart >= m_done) start = m_loginStart;
    m_loginStart = start;
    m_loginSeen = sign;
    return std::max(start, sign > kLongestLogin ? sign - kLongestLogin : 0);
  }

  static bool isPortAndPath(std::string_view text) {
    std::size_t digits = 0;
    while (digits < text.size() && isDigit(text[digits])) ++digits;
    return digits > 0 && digits < text.size() && text[digits] == '/';
  }

  void set(std::size_t begin, std::size_t end) {
    m_begin = begin;
    m_end = end;
  }

  std::string_view m_text;
  std::size_t m_at = 0;
  std::size_t m_done = 0;  ///< before it all is found
  std::size_t m_begin = 0;
  std::size_t m_end = 0;
  std::size_t m_loginStart = 0;
  std::size_t m_loginSeen = 0;  ///< up to where `startOfLogin` has looked
};

}  // namespace

bool isSecretName(std::string_view name) {
  return areSecret(wordsOf(name));
}

bool hasSecretWord(std::string_view text) {
  const std::vector<std::string> words = wordsOf(text);
  for (std::size_t i = 0; i < words.size(); ++i)
    if (isSecretAnywhere(words[i]) || isSecretLast(words, i)) return true;
  return false;
}

bool mayHoldSecret(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char c) { return c == '=' || c == ':' || c == '@' || c == '>'; });
}

std::string withSecretsReplaced(const std::string& text, const std::function<std::string(std::string_view)>& replace) {
  std::string replaced;
  std::size_t done = 0;
  for (Finder finder(text); finder.next(); done = finder.end()) {
    replaced.append(text, done, finder.begin() - done);
    replaced += replace(std::string_view(text).substr(finder.begin(), finder.end() - finder.begin()));
  }
  if (done == 0) return text;
  return replaced.append(text, done, std::string::npos);
}

std::string maskedText(const std::string& text) {
  return withSecretsReplaced(text, [](std::string_view) { return kMask; });
}

}  // namespace dxmd_tool
