#include <filesystem>
#include <system_error>

#include <dxmd/core/DXNamespaces.h>

#include <tools/dxmd/ToolError.h>
#include <tools/dxmd/Verbs.h>
#include <tools/dxmd/check/Checker.h>
#include <tools/dxmd/json/Json.h>
#include <tools/dxmd/json/JsonWriter.h>
#include <tools/dxmd/text/Escape.h>

namespace dxmd_tool {

namespace {

/// Where the schemas are: beside the program, where it is installed and where it is built.
std::string schemasFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  for (const char* relative : {DXMD_SCHEMAS_INSTALLED, DXMD_SCHEMAS_BUILT})
    if (std::filesystem::is_directory(program / relative, error)) return (program / relative).lexically_normal();
  throw ToolError(kStatusFile, "the schemas are not in " +
                                   (program / DXMD_SCHEMAS_INSTALLED).lexically_normal().string() +
                                   ": say where, by --schemas");
}

std::string toText(const Checked& checked) {
  std::string text;
  if (checked.kind != nullptr) {
    const std::size_t count = checked.findings.size();
    text = checked.name + ": " + checked.kind->name + ": " +
           (count == 0   ? "fits"
            : count == 1 ? "does not fit at 1 place"
                         : "does not fit at " + std::to_string(count) + " places");
    text = escaped(text) + "\n";
  }
  for (const Finding& finding : checked.findings) {
    const std::string place =
        finding.line == 0 ? "" : ":" + std::to_string(finding.line) + ":" + std::to_string(finding.column);
    text += escaped(checked.name + place + ": " + finding.message) + "\n";
  }
  return text;
}

Json toJson(const Checked& checked) {
  Json json = {{"file", checked.name}, {"wellFormed", checked.isWellFormed}, {"fits", checked.status == kStatusOk}};
  if (checked.kind != nullptr) json["kind"] = checked.kind->name;
  json["errors"] = Json::array();
  for (const Finding& finding : checked.findings) {
    Json error = Json::object();
    if (finding.line != 0) error = {{"line", finding.line}, {"column", finding.column}};
    error["message"] = escaped(finding.message);
    json["errors"].push_back(std::move(error));
  }
  return json;
}

}  // namespace

Status check(const Kind* kind, const Settings& settings, const CheckSettings& how,
             const std::vector<std::string>& files, std::istream& in, Output& out) {
  Checker checker(how.schemas.empty() ? schemasFolder() : how.schemas,
                  {DXNamespaces::GetQueryService().toUtf8(), DXNamespaces::GetServiceBus().toUtf8()});
  Status worst = kStatusOk;
  Json all = Json::array();
  for (const std::string& file : files) {
    const Checked checked = checker.check(file, in, settings.onRead, kind);
    worst = worse(worst, checked.status);
    if (how.errorsAsJson)
      all.push_back(toJson(checked));
    else
      out.write(toText(checked));
  }
  if (how.errorsAsJson) {
    out.isJson();
    out.write(toText(all, kJsonIndent) + "\n");
  }
  return worst;
}

}  // namespace dxmd_tool
