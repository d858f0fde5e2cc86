// Prints the columns and rows of a reply.

#include <iostream>
#include <map>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryframework/QFResponseDomHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  QFResponseDomHelper reply;
  reply.Take(root);

  std::vector<std::map<QFResponseDomHelper::EColumnProp, I18NString>> columns;
  reply.GetColumnList(columns);
  for (auto& column : columns) std::cout << "column " << column[QFResponseDomHelper::kColumnPropName] << "\n";

  TRNIDOM_Element row = reply.GetFirstResultSetRow();
  while (!row.isNull()) {
    std::vector<I18NString> values;  // getters append
    reply.GetResultSetRowValues(row, values);
    std::cout << "row";
    for (const I18NString& value : values) std::cout << " [" << value << "]";
    std::cout << "\n";
    row = reply.GetNextResultSetRow(row);
  }
}
