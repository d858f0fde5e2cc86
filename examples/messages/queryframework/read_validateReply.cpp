// Prints what a service says to a validate command.

#include <iostream>

#include <trn/TRNSeverity.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/queryframework/QFValidateCommandHelper.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TRNIDOM_Element root = TRNIDOM_Parser::parseFile(argv[1]).getDocumentElement();
  TRNSeverity severity = kSeverityNone;
  I18NString messages;
  QFValidateCommandHelper().CheckReponse(root, severity, messages);
  std::cout << (severity <= kSeverityError ? "It is wrong:\n" : "It will do:\n") << messages;
}
