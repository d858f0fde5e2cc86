// Makes a report on two objects.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/modelactions/DXExternalizeReportHelper.h>

int main() {
  using Entry = DXExternalizeReportHelper::Entry;
  DXExternalizeReportHelper report;
  report.AddEntry(new Entry{"[Sales].[Region]", "tab", "/data/region.txt", ""});  // the report owns it from here on
  report.AddEntry(new Entry{"[Sales].[Fact]", "csv", "", "disk full"});
  TRNIDOM_Element message;
  report.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
