#ifndef TOOLS_DXMD_ROWS_ROWSTORE_H
#define TOOLS_DXMD_ROWS_ROWSTORE_H

#include <cstddef>
#include <cstdio>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dxmd_tool {

/// The values of a row; none is NULL.
using Row = std::vector<std::optional<std::string_view>>;

/// Rows that were read, for when all of the document is known: its columns may stand behind them, and a document that
/// is not well-formed prints nothing. What is more than some megabytes goes into a temporary file, which nobody else
/// sees.
class RowStore {
 public:
  /// @param limit  more rows than that are dropped.
  explicit RowStore(std::size_t limit = std::numeric_limits<std::size_t>::max()) : m_limit(limit) {}

  bool isFull() const { return m_size >= m_limit; }

  /// Adds a row, value by value: `begin`, then `add` or `addNull` for each.
  void begin();
  void add(std::string_view value);
  void addNull();

  /// The rows in the order added, each valid until the next. Nothing may be added any more.
  /// @throws ToolError (file)
  void forEach(const std::function<void(const Row&)>& visit);

 private:
  using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

  void spill();

  std::size_t m_limit;
  std::size_t m_size = 0;
  std::string m_bytes;
  File m_file{nullptr, &std::fclose};
};

}  // namespace dxmd_tool

#endif
