#ifndef TRN_TRNASSERT_H
#define TRN_TRNASSERT_H

/// @file
/// The assertions that the helpers check received documents and their own state with.

#include <array>
#include <cstddef>

#include <trn/TRNAssertError.h>
#include <trn/TRNExport.h>
#include <trn/TRNFileLocation.h>

namespace trn_detail {

/// The name of a source file without folder and ending, worked out at compile time.
template <std::size_t N>
struct FileStem {
  std::array<char, N> text{};

  constexpr explicit FileStem(const char (&path)[N]) {
    std::size_t begin = 0;
    std::size_t end = N - 1;
    for (std::size_t i = 0; i < N - 1; ++i)
      if (path[i] == '/') begin = i + 1;
    for (std::size_t i = begin; i < N - 1; ++i)
      if (path[i] == '.') end = i;
    for (std::size_t i = begin; i < end; ++i) text[i - begin] = path[i];
  }
};

/// Builds the TRNAssertError of a failed check and hurls it.
[[noreturn]] TRN_API void assertFailed(const char* message, const TRNFileLocation& location);

}  // namespace trn_detail

/// What the assertion macros share. The message arrives stringified, so no macro in the condition is expanded in it.
#define TRN_DETAIL_CHECK(message, ...)                                                        \
  do {                                                                                        \
    if (!(__VA_ARGS__)) {                                                                     \
      static constexpr ::trn_detail::FileStem trn_file(__FILE__);                             \
      ::trn_detail::assertFailed(message, ::TRNFileLocation(trn_file.text.data(), __LINE__)); \
    }                                                                                         \
  } while (false)

/// Throws a TRNAssertError with code 0 when the condition is false. Never compiled out.
///
/// Its message is this call's own source text, as in `TRN_ASSERT(!elem.isNull());`, and its location the line and the
/// name of the source file without folder and ending. The condition may hold commas.
#define TRN_ASSERT(...) TRN_DETAIL_CHECK("TRN_ASSERT(" #__VA_ARGS__ ");", __VA_ARGS__)

/// The same with an explanation, a literal, which becomes part of the message.
#define TRN_ASSERT_NAMED(condition, text) TRN_DETAIL_CHECK("TRN_ASSERT_NAMED(" #condition ", " #text ");", condition)

#endif
