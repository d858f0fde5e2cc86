#include <vector>

#include <dxmd/modelactions/DXPackagesReportHelper.h>
#include <tools/dxmd/Kind.h>

namespace dxmd_tool {

namespace {

struct Package {
  I18NString defaultName;
  I18NString cmSearchPath;
};

void shape(Shape& s, Package& package) {
  s.required("defaultName", package.defaultName, "The package's name");
  s.required("cmSearchPath", package.cmSearchPath, "Where the content manager finds it");
}

struct Packages {
  std::vector<Package> packages;
};

void shape(Shape& s, Packages& report) {
  s.required("packages", report.packages, "The packages");
}

TRNIDOM_Element make(const Packages& report) {
  DXPackagesReportHelper helper;
  for (const Package& package : report.packages) helper.AddPackage(package.defaultName, package.cmSearchPath);
  return made(helper);
}

Packages take(TRNIDOM_Element& root) {
  DXPackagesReportHelper helper;
  helper.Take(root);
  Packages report;
  for (const auto* package : helper.GetPackages())
    report.packages.push_back({package->defaultName, package->searchPath});
  return report;
}

}  // namespace

Kind kinds::packages() {
  Kind kind = kindOf(make, take);
  kind.summary = "The published packages of a model";
  kind.purpose = "Lists the published packages of a model: their default names, and where the content store has them.";
  kind.helper = "DXPackagesReportHelper";
  kind.roots = {"packages"};
  kind.example = R"({
  "packages": [
    {"defaultName": "Sales", "cmSearchPath": "/content/package[@name='Sales']"},
    {"defaultName": "Stock", "cmSearchPath": "/content/package[@name='Stock']"}
  ]
})";
  return kind;
}

}  // namespace dxmd_tool
