#ifndef TESTS_SUPPORT_FAILINGNEW_H
#define TESTS_SUPPORT_FAILINGNEW_H

#include <functional>

// Programs that link dxmd_test_failing_new get an `operator new` that fails on demand.

namespace dxmd_test {

/// Runs the action with its first `new` failing, then with its second, and so on until it needs no more. What fails
/// must leave the action as std::bad_alloc, if it does; the leak sanitizer sees what stays behind.
void withEachNewFailing(const std::function<void()>& action);

}  // namespace dxmd_test

#endif
