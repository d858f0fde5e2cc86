#ifndef TOOLS_DXMD_JSON_JSONPLACE_H
#define TOOLS_DXMD_JSON_JSONPLACE_H

#include <cstddef>
#include <string>
#include <string_view>

namespace dxmd_tool {

/// Where a value stands; linked to where its parent stands, and written out only when something is wrong.
struct JsonPlace {
  const JsonPlace* parent;
  std::string_view name;  ///< the key; the source's name for the whole text
  std::size_t index = 0;  ///< of a list's item, whose name is null

  /// `$.queries[2].name`
  std::string path() const;
  /// Writes one step of a path: `.name`, `["odd name"]`, or `[3]` where there is no name.
  static void appendStep(std::string& path, std::string_view name, std::size_t index);
  std::string_view source() const;
  /// Whether a key on the way here is that of a secret.
  bool isSecret() const;
};

}  // namespace dxmd_tool

#endif
