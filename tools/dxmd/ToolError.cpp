#include "ToolError.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <new>

#include <tools/dxmd/text/Escape.h>

namespace dxmd_tool {

Status worse(Status one, Status other) {
  constexpr Status kFromBest[] = {kStatusOk, kStatusReported, kStatusUnfit, kStatusSyntax, kStatusFile, kStatusMemory};
  const auto rank = [&](Status status) { return std::find(std::begin(kFromBest), std::end(kFromBest), status); };
  return rank(one) < rank(other) ? other : one;
}

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
