// Prints the tasks of a request, and which file goes to which table.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/materialize/DXMaterializeRequestHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  using Request = DXMaterializeRequestHelper;
  Request request;
  request.Take(root);
  for (const Request::ETasks task : request.GetTasks()) std::cout << Request::GetTaskName(task) << "\n";
  I18NString file;
  I18NString table;
  if (request.GetParameter(Request::kParamDataFilePath, file) && request.GetParameter(Request::kParamTableName, table))
    std::cout << file << " goes to " << table << "\n";
}
