#include <memory>
#include <vector>

#include <dxmd/modelactions/DXExternalizeReportHelper.h>
#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

static void shape(Shape& s, DXExternalizeReportHelper::Entry& entry) {
  s.required("objectID", entry.objectID, "The object");
  s.required("method", entry.method, "How it was externalised");
  s.optional("path", entry.path, "The file that it was written to",
             neverReturns("it is read from the last \"file\" element of the entry, and written as an attribute"));
  s.optional("error", entry.error, "What went wrong", neverReturns("it is written, but never read"));
}

namespace {

struct ExternalizeReport {
  std::vector<DXExternalizeReportHelper::Entry> entries;
};

void shape(Shape& s, ExternalizeReport& report) {
  s.required("entries", report.entries, "The objects");
}

TRNIDOM_Element make(const ExternalizeReport& report) {
  DXExternalizeReportHelper helper;
  for (const DXExternalizeReportHelper::Entry& entry : report.entries)
    helper.AddEntry(std::make_unique<DXExternalizeReportHelper::Entry>(entry).release());
  return made(helper);
}

ExternalizeReport take(TRNIDOM_Element& root) {
  DXExternalizeReportHelper helper;
  helper.Take(root);
  ExternalizeReport report;
  for (const DXExternalizeReportHelper::Entry* entry : helper.GetEntries()) report.entries.push_back(*entry);
  return report;
}

}  // namespace

Kind kinds::externalizeReport() {
  Kind kind = kindOf(make, take);
  kind.summary = "How each model object was externalised, and to which file";
  kind.purpose = R"(Reports on the externalisation of model objects: for each its method, the file written, and what
went wrong.)";
  kind.helper = "DXExternalizeReportHelper";
  kind.roots = {"externalizeReport"};
  kind.example = R"({
  "entries": [
    {"objectID": "[Sales].[Region]", "method": "tab", "path": "/data/region.txt", "error": ""},
    {"objectID": "[Sales].[Fact]", "method": "csv", "path": "", "error": "disk full"}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
