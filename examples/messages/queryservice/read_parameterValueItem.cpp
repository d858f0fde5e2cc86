// Prints a simple value or a range.

#include <iostream>
#include <memory>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>
#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  const std::unique_ptr<QsParamValueItemHelper> item(
      QsParamValueItemHelper::Create(root.getAttribute("xsi:type"), root));
  if (item == nullptr) {
    std::cout << "null\n";
    return 0;
  }
  item->Take(root);
  if (auto* simple = dynamic_cast<QsParamValueItemSimpleHelper*>(item.get())) std::cout << simple->GetUse() << "\n";
  if (auto* range = dynamic_cast<QsParamValueItemRangeHelper*>(item.get())) {
    if (auto* start = range->GetStart()) std::cout << (start->IsInclusive() ? "from " : "after ") << start->GetUse();
    if (auto* end = range->GetEnd()) std::cout << (end->IsInclusive() ? " to " : " to before ") << end->GetUse();
    std::cout << "\n";
  }
}
