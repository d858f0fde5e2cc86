#include <trn/TRNAssert.h>

namespace trn_detail {

void assertFailed(const char* message, const TRNFileLocation& location) {
  const TRNAssertError error(0, message, location);
  error.hurl(location, 0, "TRN_THROW");
}

}  // namespace trn_detail
