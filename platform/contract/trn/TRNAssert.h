#ifndef TRN_TRNASSERT_H
#define TRN_TRNASSERT_H

/// @file
/// The assertions that the helpers check received documents and their own state with.

#include <trn/TRNAssertError.h>
#include <trn/TRNFileLocation.h>

namespace trn_contract {
/// Stands for however the platform throws.
[[noreturn]] void assertFailed(const char* message, const char* file, int line);
}  // namespace trn_contract

/// Throws a TRNAssertError with code 0 when the condition is false, in every build. Its message is the text
/// "TRN_ASSERT(", the condition's own source text with no macro in it expanded, and ");". Its location is the line and
/// the name of the source file without folder and ending, as in "VqeRefineObjectsHelper". Conditions may hold commas.
#define TRN_ASSERT(...) \
  ((__VA_ARGS__) ? void() : ::trn_contract::assertFailed("TRN_ASSERT(" #__VA_ARGS__ ");", __FILE__, __LINE__))

/// The same with an explanation, a literal, which becomes part of the message: `TRN_ASSERT_NAMED(condition, "text");`.
#define TRN_ASSERT_NAMED(condition, text) \
  ((condition) ? void()                   \
               : ::trn_contract::assertFailed("TRN_ASSERT_NAMED(" #condition ", " #text ");", __FILE__, __LINE__))

#endif
