#ifndef TOOLS_DXMD_ROWS_ROWWRITER_H
#define TOOLS_DXMD_ROWS_ROWWRITER_H

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tools/dxmd/Files.h>
#include <tools/dxmd/rows/RowStore.h>

namespace dxmd_tool {

/// A column of rows.
struct RowColumn {
  std::string name;
  bool isSecret = false;  ///< its values are hidden
};

/// Writes rows, one by one, in some format.
class RowWriter {
 public:
  RowWriter() = default;
  RowWriter(const RowWriter&) = delete;
  RowWriter& operator=(const RowWriter&) = delete;
  virtual ~RowWriter() = default;

  virtual void write(const Row& row) = 0;
  virtual void finish() = 0;
};

/// CSV as RFC 4180 has it, with a header. NULL is an empty field, an empty text a field of two quotes. A row that is
/// shorter than the header is filled up with NULL.
std::unique_ptr<RowWriter> csvWriter(const std::vector<RowColumn>& columns, Output& out);

/// A line of JSON for each row: an object with the columns' names as keys. A column without a name of its own is named
/// by its number, as "column3".
std::unique_ptr<RowWriter> ndjsonWriter(const std::vector<RowColumn>& columns, Output& out);

/// Aligned columns for people. NULL is an empty cell, an empty text one of two quotes.
std::unique_ptr<RowWriter> tableWriter(const std::vector<RowColumn>& columns, Output& out);

/// An object of JSON with the rows as its last member, lists each.
/// @param head    the other members' text, as `toText` gives the object.
/// @param indent  as in the head; 0 writes one line.
std::unique_ptr<RowWriter> jsonWriter(const std::string& head, std::string_view key, unsigned indent, Output& out);

/// Hides the secrets in rows that another writer writes.
std::unique_ptr<RowWriter> maskingWriter(const std::vector<RowColumn>& columns, std::unique_ptr<RowWriter> writer);

}  // namespace dxmd_tool

#endif
