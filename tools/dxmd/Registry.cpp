#include "Registry.h"

#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/json/Quote.h>
#include <tools/dxmd/text/Suggest.h>
#include <tools/dxmd/text/Words.h>

namespace dxmd_tool {

const std::vector<Kind>& allKinds() {
  static const std::vector<Kind> kinds = [] {
    std::vector<Kind> all;
    const auto add = [&](const char* family, const char* name, Kind kind) {
      kind.family = family;
      kind.name = name;
      all.push_back(std::move(kind));
    };
#define DXMD_KIND(family, kind) add(#family, #kind, kinds::kind());
#include <tools/dxmd/kinds/kinds.def>
#undef DXMD_KIND
    return all;
  }();
  return kinds;
}

const Kind& findKind(const std::string& name) {
  const std::string lower = lowerCase(name);
  std::vector<std::string> names;
  std::string list;
  for (const Kind& kind : allKinds()) {
    if (lowerCase(kind.name) == lower) return kind;
    names.push_back(kind.name);
    list += (list.empty() ? "" : ", ") + kind.name;
  }
  throw ToolError(kStatusUsage,
                  inQuotes(name) + " is no kind of message; the kinds are " + list + didYouMean(name, names));
}

}  // namespace dxmd_tool
