#include "RowWriter.h"

#include <algorithm>
#include <deque>
#include <set>
#include <utility>

#include <tools/dxmd/Secrets.h>
#include <tools/dxmd/Table.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/text/Escape.h>

namespace dxmd_tool {

namespace {

/// Gathers small pieces for an output.
class Buffer {
 public:
  explicit Buffer(Output& out) : m_out(out) {}

  std::string& bytes() { return m_bytes; }
  void flushWhenFull() {
    constexpr std::size_t kFull = std::size_t{1} << 16;
    if (m_bytes.size() >= kFull) flush();
  }
  void flush() {
    if (!m_bytes.empty()) m_out.write(m_bytes);
    m_bytes.clear();
  }

 private:
  Output& m_out;
  std::string m_bytes;
};

class CsvWriter final : public RowWriter {
 public:
  CsvWriter(const std::vector<RowColumn>& columns, Output& out) : m_columns(columns.size()), m_buffer(out) {
    Row header;
    for (const RowColumn& column : columns) header.emplace_back(column.name);
    if (!header.empty()) write(header);
  }

  void write(const Row& row) override {
    std::string& csv = m_buffer.bytes();
    const std::size_t fields = std::max(row.size(), m_columns);
    for (std::size_t i = 0; i < fields; ++i) {
      if (i > 0) csv += ',';
      if (i < row.size() && row[i]) append(csv, *row[i]);
    }
    csv += "\r\n";
    m_buffer.flushWhenFull();
  }

  void finish() override { m_buffer.flush(); }

 private:
  static void append(std::string& csv, std::string_view text) {
    if (!text.empty() && text.find_first_of(",\"\r\n") == std::string_view::npos) {
      csv += text;
      return;
    }
    csv += '"';
    for (const char c : text) csv.append(c == '"' ? 2 : 1, c);
    csv += '"';
  }

  std::size_t m_columns;
  Buffer m_buffer;
};

class NdjsonWriter final : public RowWriter {
 public:
  NdjsonWriter(const std::vector<RowColumn>& columns, Output& out) : m_buffer(out) {
    for (const RowColumn& column : columns) addKey(column.name);
  }

  void write(const Row& row) override {
    while (m_keys.size() < row.size()) addKey("");
    std::string& json = m_buffer.bytes();
    json += '{';
    for (std::size_t i = 0; i < row.size(); ++i) {
      json += i > 0 ? "," : "";
      json += m_keys[i];
      if (row[i])
        appendJsonString(json, *row[i]);
      else
        json += "null";
    }
    json += "}\n";
    m_buffer.flushWhenFull();
  }

  void finish() override { m_buffer.flush(); }

 private:
  void addKey(std::string name) {
    if (name.empty() || m_known.count(name) != 0) name = "column" + std::to_string(m_keys.size() + 1);
    while (!m_known.insert(name).second) name += '_';
    std::string key;
    appendJsonString(key, name);
    m_keys.push_back(key + ":");
  }

  std::vector<std::string> m_keys;  ///< as JSON, with the colon
  std::set<std::string> m_known;
  Buffer m_buffer;
};

class TableWriter final : public RowWriter {
 public:
  TableWriter(const std::vector<RowColumn>& columns, Output& out)
      : m_buffer(out), m_table(namesOf(columns), [this](std::string_view lines) {
          m_buffer.bytes() += lines;
          m_buffer.flushWhenFull();
        }) {}

  void write(const Row& row) override {
    std::vector<std::string> cells;
    cells.reserve(row.size());
    for (const auto& value : row) cells.emplace_back(!value ? "" : value->empty() ? "\"\"" : shown(*value));
    m_table.addRow(cells);
  }

  void finish() override {
    m_table.finish();
    m_buffer.flush();
  }

 private:
  static std::vector<std::string> namesOf(const std::vector<RowColumn>& columns) {
    std::vector<std::string> names;
    names.reserve(columns.size());
    for (const RowColumn& column : columns) names.push_back(column.name);
    return names;
  }

  /// As much of a value as a table may show.
  static std::string_view shown(std::string_view value) {
    constexpr std::size_t kMost = 4096;
    return value.substr(0, kMost);
  }

  Buffer m_buffer;
  Table m_table;
};

class JsonRowWriter final : public RowWriter {
 public:
  JsonRowWriter(const std::string& head, std::string_view key, unsigned indent, Output& out)
      : m_indent(indent), m_buffer(out) {
    std::string& json = m_buffer.bytes();
    // The members without the closing brace and what stands before it.
    json = head.substr(0, head.find_last_not_of("\n ", head.size() - 2) + 1);
    if (json != "{") json += ',';
    json += newLine(m_indent);
    appendJsonString(json, key);
    json += m_indent > 0 ? ": [" : ":[";
  }

  void write(const Row& row) override {
    std::string& json = m_buffer.bytes();
    if (std::exchange(m_hasRows, true)) json += ',';
    json += newLine(2 * m_indent);
    const std::size_t start = json.size();
    appendOnOneLine(json, row);
    const bool fits = json.size() - start + 2 + 2 * m_indent <= kLineWidth;
    if (m_indent > 0 && !fits && !row.empty()) {
      json.resize(start);
      appendOnLines(json, row);
    }
    m_buffer.flushWhenFull();
  }

  void finish() override {
    std::string& json = m_buffer.bytes();
    json += (m_hasRows ? newLine(m_indent) : "") + "]" + newLine(0) + "}\n";
    m_buffer.flush();
  }

 private:
  static constexpr std::size_t kLineWidth = 100;

  std::string newLine(std::size_t column) const {
    return m_indent > 0 ? '\n' + std::string(column, ' ') : std::string();
  }

  static void append(std::string& json, const std::optional<std::string_view>& value) {
    if (value)
      appendJsonString(json, *value);
    else
      json += "null";
  }

  void appendOnOneLine(std::string& json, const Row& row) const {
    json += '[';
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) json += m_indent > 0 ? ", " : ",";
      append(json, row[i]);
    }
    json += ']';
  }

  void appendOnLines(std::string& json, const Row& row) const {
    json += '[';
    for (std::size_t i = 0; i < row.size(); ++i) {
      json += (i > 0 ? "," : "") + newLine(3 * m_indent);
      append(json, row[i]);
    }
    json += newLine(2 * m_indent) + "]";
  }

  std::size_t m_indent;
  bool m_hasRows = false;
  Buffer m_buffer;
};

class MaskingWriter final : public RowWriter {
 public:
  MaskingWriter(const std::vector<RowColumn>& columns, std::unique_ptr<RowWriter> writer)
      : m_columns(columns), m_writer(std::move(writer)) {}

  void write(const Row& row) override {
    m_masked.clear();
    m_row = row;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (!row[i] || row[i]->empty()) continue;
      if (i < m_columns.size() && m_columns[i].isSecret)
        m_row[i] = kMask;
      else if (mayHoldSecret(*row[i]) || row[i]->front() == '<')
        m_row[i] = m_masked.emplace_back(shownText(std::string(*row[i])));
    }
    m_writer->write(m_row);
  }

  void finish() override { m_writer->finish(); }

 private:
  std::vector<RowColumn> m_columns;
  std::unique_ptr<RowWriter> m_writer;
  Row m_row;
  std::deque<std::string> m_masked;  ///< what values of `m_row` refer to
};

}  // namespace

std::unique_ptr<RowWriter> csvWriter(const std::vector<RowColumn>& columns, Output& out) {
  return std::make_unique<CsvWriter>(columns, out);
}

std::unique_ptr<RowWriter> ndjsonWriter(const std::vector<RowColumn>& columns, Output& out) {
  return std::make_unique<NdjsonWriter>(columns, out);
}

std::unique_ptr<RowWriter> tableWriter(const std::vector<RowColumn>& columns, Output& out) {
  return std::make_unique<TableWriter>(columns, out);
}

std::unique_ptr<RowWriter> jsonWriter(const std::string& head, std::string_view key, unsigned indent, Output& out) {
  return std::make_unique<JsonRowWriter>(head, key, indent, out);
}

std::unique_ptr<RowWriter> maskingWriter(const std::vector<RowColumn>& columns, std::unique_ptr<RowWriter> writer) {
  return std::make_unique<MaskingWriter>(columns, std::move(writer));
}

}  // namespace dxmd_tool
