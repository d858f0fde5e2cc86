#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include <dxmd/modelactions/DXActionHelperIQDFile.h>
#include <tools/dxmd/Files.h>
#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/kinds/ModelActionsKinds.h>

namespace dxmd_tool {

namespace {

constexpr const char* kFrom = "--from";

/// A line of the file. Text of another encoding is refused rather than sent spoilt.
I18NString decodedLine(const std::string& path, std::size_t number, std::string_view line) {
  std::string refusal = path + ":" + std::to_string(number) + ": not UTF-8";
  const auto refuse = [](void* message, const char*, std::size_t) {
    throw ToolError(kStatusUnfit, *static_cast<const std::string*>(message));
  };
  return {line.data(), nullptr, static_cast<long>(line.size()), refuse, &refusal};
}

/// Adds the lines of a text file, without line ends and byte order mark.
void addLines(DXActionHelperIQDFile& file, const std::string& path) {
  const std::string text = readFile(path);
  std::string_view rest(text);
  if (rest.substr(0, 3) == "\xEF\xBB\xBF") rest.remove_prefix(3);
  for (std::size_t number = 1; !rest.empty(); ++number) {
    const std::size_t length = std::min(rest.find('\n'), rest.size());
    std::string_view line = rest.substr(0, length);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    file.addContentLine(decodedLine(path, number, line));
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }
}

TRNIDOM_Element encodeDefinitionFile(JsonObject& json, const KindOptions& options) {
  DXActionHelperIQDFile file;
  const std::optional<std::string> from = options.value(kFrom);
  if (from) {
    addLines(file, *from);
    if (file.getContents().empty()) throw ToolError(kStatusUnfit, *from + ": must not be empty");
  } else {
    const JsonValue contents = json.required("contents");
    file.setContents(contents.texts());
    if (file.getContents().empty()) contents.fail("must not be empty");
  }
  file.setFilePath(json.optional("filePath").text(from ? from->c_str() : ""));
  file.setDbConnectionName(json.optional("dbConnectionName").text());
  file.setCmDataSource(json.optional("cmDataSource").text());
  return made(file);
}

Decoded decodeDefinitionFile(TRNIDOM_Element& root, const KindOptions&) {
  DXActionHelperIQDFile file;
  file.Take(root);
  Json json = Json::object();
  putUnlessEmpty(json, "filePath", file.getFilePath());
  json["contents"] = file.getContents();
  putUnlessEmpty(json, "dbConnectionName", file.getDbConnectionName());
  putUnlessEmpty(json, "cmDataSource", file.getCmDataSource());
  return json;
}

}  // namespace

Kind definitionFileKind() {
  Kind kind;
  kind.name = "definitionFile";
  kind.summary = "A query definition file, line by line";
  kind.notes = R"("contents" lists the lines without their line ends.
Equal lines of a file are written once, where the first of them stands, and so read back as one.
With --from, the lines are those of a text file in UTF-8, the JSON has no "contents", and "filePath"
is the path of that file unless the JSON has another.)";
  kind.roots = {"file"};
  kind.encode = encodeDefinitionFile;
  kind.decode = decodeDefinitionFile;
  kind.roundTrips = true;
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
