#include "ToolError.h"

#include <exception>
#include <new>

#include <tools/dxmd/text/Escape.h>

namespace dxmd_tool {

Outcome outcomeOf(const std::function<void()>& action) {
  try {
    try {
      action();
    } catch (const ToolError& error) {
      return {error.status(), escaped(error.what())};
    } catch (const std::bad_alloc&) {
      throw;
    } catch (const std::exception& error) {
      return {kStatusUnfit, escaped(error.what())};
    }
  } catch (const std::bad_alloc&) {
    // Short enough to need no memory.
    return {kStatusMemory, "out of memory"};
  }
  return {};
}

}  // namespace dxmd_tool
