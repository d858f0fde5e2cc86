// Reads a reply to an execute command from a file and prints its columns and rows, separated by tabs.

#include <iostream>
#include <map>
#include <vector>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryframework/QFResponseDomHelper.h>

#include "errors.h"

namespace {

void printLine(const std::vector<I18NString>& cells) {
  const char* separator = "";
  for (const I18NString& cell : cells) {
    std::cout << separator << cell;
    separator = "\t";
  }
  std::cout << "\n";
}

void printReply(const char* path) {
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(path).getDocumentElement();
  QFResponseDomHelper reply;
  reply.Take(root);

  std::vector<std::map<QFResponseDomHelper::EColumnProp, I18NString>> columns;
  reply.GetColumnList(columns);
  std::vector<I18NString> names;
  for (auto& column : columns) names.push_back(column[QFResponseDomHelper::kColumnPropName]);
  printLine(names);

  TRNIDOM_Element row = reply.GetFirstResultSetRow();
  while (!row.isNull()) {
    std::vector<I18NString> values;  // getters append
    reply.GetResultSetRowValues(row, values);
    printLine(values);
    row = reply.GetNextResultSetRow(row);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: read_reply FILE\n";
    return 2;
  }
  return exitStatus(argv[1], [&] { printReply(argv[1]); });
}
