#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <dxmd/modelactions/DXActionHelperIQDFile.h>
#include <tools/dxmd/Files.h>
#include <tools/dxmd/Kind.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/text/Escape.h>

namespace dxmd_tool {

namespace {

constexpr const char* kFrom = "--from";

/// What the file's query runs against.
struct Database {
  I18NString dbConnectionName;
  I18NString cmDataSource;
};

void shapeDatabase(Shape& s, Database& database) {
  s.optional("dbConnectionName", database.dbConnectionName, "The name of the database connection that the query uses");
  s.optional("cmDataSource", database.cmDataSource, "The data source that it runs against");
}

struct DefinitionFile {
  I18NString filePath;
  std::vector<I18NString> contents;
  Database database;
};

void shape(Shape& s, DefinitionFile& file) {
  s.optional("filePath", file.filePath, "The file's path");
  s.required("contents", file.contents, "Its lines, without their line ends", nonEmpty(),
             repeatedIsLost("Equal lines are written once, where the first of them stands"));
  shapeDatabase(s, file.database);
}

/// What `--from` leaves to the JSON.
struct FileFromText {
  std::optional<I18NString> filePath;
  Database database;
};

void shape(Shape& s, FileFromText& file) {
  s.optional("filePath", file.filePath, "The file's path; by default that of the text file");
  shapeDatabase(s, file.database);
}

/// A line of the file. Text of another encoding is refused rather than sent spoilt.
I18NString decodedLine(const std::string& path, std::size_t number, std::string_view line) {
  const std::string place = path + ":" + std::to_string(number) + ": ";
  std::string refusal = place + "not UTF-8";
  const auto refuse = [](void* message, const char*, std::size_t) {
    throw ToolError(kStatusUnfit, *static_cast<const std::string*>(message));
  };
  I18NString decoded(line.data(), nullptr, static_cast<long>(line.size()), refuse, &refusal);
  if (const std::string why = refusedByXml(line); !why.empty()) throw ToolError(kStatusUnfit, place + why);
  return decoded;
}

/// The lines of a text file, without line ends and byte order mark.
std::vector<I18NString> readLines(const std::string& path) {
  const std::string text = readFile(path);
  std::vector<I18NString> lines;
  std::string_view rest(text);
  if (rest.substr(0, 3) == "\xEF\xBB\xBF") rest.remove_prefix(3);
  while (!rest.empty()) {
    const std::size_t length = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, length);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.push_back(decodedLine(path, lines.size() + 1, line));
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }
  if (lines.empty()) throw ToolError(kStatusUnfit, path + ": must not be empty");
  return lines;
}

DefinitionFile readDefinitionFile(JsonObject& json, const std::optional<std::string>& from) {
  DefinitionFile file;
  if (from) {
    file.contents = readLines(*from);
    FileFromText rest;
    readRecord(json, rest);
    file.filePath = rest.filePath.value_or(from->c_str());
    file.database = rest.database;
  } else {
    readRecord(json, file);
  }
  return file;
}

TRNIDOM_Element encodeDefinitionFile(JsonObject& json, const KindOptions& options) {
  const DefinitionFile file = readDefinitionFile(json, options.value(kFrom));
  DXActionHelperIQDFile helper;
  helper.setFilePath(file.filePath);
  helper.setContents(file.contents);
  helper.setDbConnectionName(file.database.dbConnectionName);
  helper.setCmDataSource(file.database.cmDataSource);
  return made(helper);
}

Decoded decodeDefinitionFile(TRNIDOM_Element& root, const KindOptions&) {
  DXActionHelperIQDFile helper;
  helper.Take(root);
  return decodedRecord(DefinitionFile{
      helper.getFilePath(), helper.getContents(), {helper.getDbConnectionName(), helper.getCmDataSource()}});
}

}  // namespace

Kind kinds::definitionFile() {
  Kind kind;
  kind.describe = [] { return describe<DefinitionFile>(); };
  kind.encode = encodeDefinitionFile;
  kind.decode = decodeDefinitionFile;
  kind.summary = "A query definition file, line by line";
  kind.purpose = "Carries a query definition file: its path, its text line by line, and what its query runs against.";
  kind.notes = R"(With --from, the lines are those of a text file in UTF-8, the JSON has no "contents", and "filePath"
is the path of that file unless the JSON has another.)";
  kind.helper = "DXActionHelperIQDFile";
  kind.roots = {"file"};
  kind.example = R"({
  "filePath": "/queries/sales.def",
  "contents": ["[Query]", "title=Sales", "", "select REGION, REVENUE", "from SALES"],
  "dbConnectionName": "Sales warehouse",
  "cmDataSource": "/content/dataSource[@name='Sales']"
})";
  KindOption from{KindOption::kEncode, kFrom, "FILE", "take the lines from a text file"};
  from.replacesInput = true;
  kind.options = {from};
  return kind;
}

}  // namespace dxmd_tool
