// Makes the description of a dimension with two levels.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/core/DimensionInfoHelper.h>

int main() {
  DimensionInfoHelper dimension;
  dimension.AddLevel("Year", "Year key", {"[Time].[Year]"}, 1, {"[Time].[Year caption]"});
  dimension.AddLevel("Month", "Month key", {"[Time].[Year]", "[Time].[Month]"}, 0, {});
  dimension.AddHierarchy("Calendar", {"[Time].[Year]", "[Time].[Month]"});
  TRNIDOM_Element message;
  dimension.Make(message);
  std::cout << TRNIDOM_Writer::toString(message) << "\n";
}
