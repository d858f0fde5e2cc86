#ifndef TESTS_SUPPORT_MESSAGES_H
#define TESTS_SUPPORT_MESSAGES_H

#include <iosfwd>
#include <vector>

#include <trnidom/TRNIDOM_Element.h>

#include "Answers.h"

namespace dxmd_test {

/// How to make and read a message, for tests of every one of them: on random trees, without memory, of their cost, and
/// under a fuzzer, which has no GoogleTest.
struct Message {
  const char* family;  ///< the folder of its helper
  const char* name;

  /// An example, from the helper's writer where what it writes is what its reader reads.
  TRNIDOM_Element (*make)();

  /// Has a new helper take the element, which stays as it is, and asks every getter. Whatever the element, it returns
  /// or throws TRNAssertError or TRNIDOM_DOMException; std::logic_error says which answers contradict each other. Null
  /// for what is only written.
  void (*read)(TRNIDOM_Element& element, Answers& answers) = nullptr;

  /// The same for what writes into the element that it is given. Null where nothing does.
  void (*change)(TRNIDOM_Element& element) = nullptr;
};

/// Every message, by family; several for a helper that writes and reads different things.
const std::vector<Message>& allMessages();

/// Writes "family_name".
std::ostream& operator<<(std::ostream& out, const Message& message);

}  // namespace dxmd_test

#endif
