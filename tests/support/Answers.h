#ifndef TESTS_SUPPORT_ANSWERS_H
#define TESTS_SUPPORT_ANSWERS_H

#include <new>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Node.h>
#include <trnidom/TRNIDOM_Writer.h>

namespace dxmd_test {

/// What a message's getters gave, as text.
class Answers {
 public:
  /// One getter's answer.
  class Line {
   public:
    template <typename Value>
    std::enable_if_t<std::is_arithmetic_v<Value> || std::is_enum_v<Value>, Line&> operator<<(Value value) {
      m_text += std::to_string(static_cast<long long>(value)) + " ";
      return *this;
    }
    Line& operator<<(const I18NString& text) {
      m_text += text.toUtf8() + "|";
      return *this;
    }
    Line& operator<<(const TRNIDOM_Node& node) {
      m_text += (node.isNull() ? "null" : TRNIDOM_Writer::toString(node)) + "|";
      return *this;
    }
    template <typename First, typename Second>
    Line& operator<<(const std::pair<First, Second>& pair) {
      return *this << pair.first << pair.second;
    }
    template <typename Values>
    auto operator<<(const Values& values) -> decltype(*this << values.size() << *values.begin()) {
      *this << values.size();
      for (const auto& value : values) *this << value;
      return *this;
    }
    const std::string& text() const { return m_text; }

   private:
    std::string m_text;
  };

  /// @param again  asks a second time for what memory was lacking for.
  explicit Answers(bool again = false) : m_again(again) {}

  /// Adds what the getter writes to the line that it is given.
  template <typename Getter>
  void ask(Getter getter) {
    m_text += call([&] {
      Line line;
      getter(line);
      return line.text() + '\n';
    });
  }

  /// Calls a getter that moves on, so that its answer is written when it has succeeded.
  template <typename Getter>
  auto call(Getter getter) -> decltype(getter()) {
    try {
      return getter();
    } catch (const std::bad_alloc&) {
      if (!m_again) throw;
      return getter();
    }
  }

  /// What does not hold is thrown as std::logic_error.
  static void require(bool holds, const char* what) {
    if (!holds) throw std::logic_error(what);
  }

  const std::string& text() const { return m_text; }

 private:
  const bool m_again;
  std::string m_text;
};

}  // namespace dxmd_test

#endif
