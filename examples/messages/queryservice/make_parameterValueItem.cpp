// Makes a range of values: from 2023 to 2025, the latter excluded.

#include <iostream>

#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Writer.h>

#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>

int main() {
  QsParamValueItemRangeHelper range;
  range.SetStart("2023", 1);
  range.SetEnd("2025", 0);
  TRNIDOM_Element item;
  range.Make(item);
  std::cout << TRNIDOM_Writer::toString(item) << "\n";
}
