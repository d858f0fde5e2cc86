// Prints a list of parameters.

#include <iostream>

#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryengine/VqeGetParametersHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  VqeGetParametersHelper parameters;
  parameters.Take(root);
  for (const auto& [name, value] : parameters.GetParameters()) std::cout << name << " = " << value << "\n";
}
